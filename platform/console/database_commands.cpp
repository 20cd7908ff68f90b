#include "base/vb/text.h"
#include "platform/console/escape.h"
#include "platform/console/looking_commands.h"
#include "platform/console/value_text.h"

namespace console {
namespace {

constexpr std::string_view kServerFailure = "Server error: the statement has been terminated.";

void Sql(DatabaseTools& database, Output& output, const Words& words) {
  if (words.AtEnd()) throw CommandError("the statement is missing");
  database.Query(words.Raw(), [&](std::span<const late::Value> row) {
    std::string cells;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) cells += '\t';
      cells += CellText(row[i]);
    }
    output.Line("row", cells);
  });
}

void Fail(DatabaseTools& database, Words& words) {
  const long n = words.NeedNumber("the number of the statement");
  if (n < 1) throw CommandError("statements are counted from 1");
  const std::string text = words.Text();
  database.FailAt(static_cast<int>(n), text.empty() ? std::string(kServerFailure) : text);
}

void Trace(Output& output, Words& words) {
  const std::string_view state = words.Need("on or off");
  words.End();
  const bool on = vb::EqualNoCase(state, "on");
  if (!on && !vb::EqualNoCase(state, "off")) throw CommandError("trace is on or off, not " + Quote(state));
  output.SetTracing(on);
}

}  // namespace

CommandGroup DatabaseCommands(DatabaseTools& database, Output& output) {
  CommandGroup group{"The database", {}};
  group.commands.push_back(
      {"sql", "STATEMENT", "on a second connection", Moment::Always, [&](Words& words) { Sql(database, output, words); }});
  group.commands.push_back(
      {"fail", "N [TEXT]",
       "let the N-th statement, row change or commit from now on fail; with a TEXT that begins \"rolled back by the "
       "server\" the server has undone the transaction, too",
       Moment::Always, [&](Words& words) { Fail(database, words); }});
  group.commands.push_back({"trace", "on | off", "statements, helper calls, pointer changes", Moment::Always,
                            [&](Words& words) { Trace(output, words); }});
  return group;
}

}  // namespace console
