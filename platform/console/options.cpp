#include "platform/console/options.h"

#include <functional>

#include "platform/console/command_line.h"

namespace console {
namespace {

long ParseNumber(const std::string& option, const std::string& text, long least) {
  long number = 0;
  if (!ReadNumber(text, number) || number < least) throw OptionError(option + " needs a number, not \"" + text + "\"");
  return number;
}

/// yyyy-mm-dd, followed by a time where `withTime`.
vb::Date ParseMoment(const std::string& option, const std::string& text, bool withTime) {
  const bool shaped = text.size() >= 10 && text[4] == '-' && text[7] == '-' && (withTime || text.size() == 10);
  if (const auto date = vb::TryParseDate(text); date && shaped) return *date;
  throw OptionError(option + " needs " + (withTime ? "YYYY-MM-DD HH:MM:SS" : "YYYY-MM-DD") + ", not \"" + text + "\"");
}

struct Option {
  std::string_view name;
  std::string_view argument;  ///< "" for a switch
  std::string_view purpose;
  std::function<void(Options& options, const std::string& text)> take;
};

const std::vector<Option>& AllOptions() {
  using O = Options;
  using S = const std::string&;
  static const std::vector<Option> options = {
      {"--database", "FILE", "the embedded database (default: in memory)", [](O& o, S t) { o.database = t; }},
      {"--empty", "", "a new database holds no sample data", [](O& o, S) { o.empty = true; }},
      {"--sample", "", "a new database holds the sample shop (default)", [](O& o, S) { o.empty = false; }},
      {"--replication", "", "a new database has row identifiers", [](O& o, S) { o.replication = true; }},
      {"--requests", "N", "scale a new database to N requests", [](O& o, S t) { o.requests = ParseNumber("--requests", t, 0); }},
      {"--items", "N", "scale a new database to N items", [](O& o, S t) { o.items = ParseNumber("--items", t, 0); }},
      {"--company", "N", "company id (default 1)", [](O& o, S t) { o.company = ParseNumber("--company", t, -2147483647); }},
      {"--shop", "N", "shop id (default 1)", [](O& o, S t) { o.shop = ParseNumber("--shop", t, -2147483647); }},
      {"--user", "N", "user id (default 1)", [](O& o, S t) { o.user = ParseNumber("--user", t, -2147483647); }},
      {"--date", "YYYY-MM-DD", "process date", [](O& o, S t) { o.date = ParseMoment("--date", t, false); }},
      {"--title", "TEXT", "title of the message boxes (default Shop)", [](O& o, S t) { o.title = t; }},
      {"--app-folder", "DIR", "the application folder (default: the current one)", [](O& o, S t) { o.applicationFolder = t; }},
      {"--now", "\"YYYY-MM-DD HH:MM:SS\"", "stops the clock there", [](O& o, S t) { o.now = ParseMoment("--now", t, true); }},
      {"--script", "FILE", "the commands (default: standard input)", [](O& o, S t) { o.script = t; }},
      {"--init", "FILE.sql", "statements to run before the session", [](O& o, S t) { o.init = t; }},
      {"--trace", "", "start with trace on", [](O& o, S) { o.trace = true; }},
      {"--echo", "", "print every input line before it is carried out", [](O& o, S) { o.echo = true; }},
      {"--windows-directory", "DIR", "the Windows directory (default C:\\WINDOWS)", [](O& o, S t) { o.windowsDirectory = t; }},
      {"--report-server", "", "a report server that records its calls", [](O& o, S) { o.reportServer = true; }},
      {"--live", "", "the forms full screen in this terminal", [](O& o, S) { o.live = true; }},
      {"--help", "", "this", [](O& o, S) { o.help = true; }},
  };
  return options;
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Option* found = nullptr;
    for (const Option& option : AllOptions()) {
      if (option.name == arguments[i]) found = &option;
    }
    if (!found) throw OptionError("unknown option " + arguments[i]);
    if (found->argument.empty()) {
      found->take(options, {});
    } else if (++i < arguments.size()) {
      found->take(options, arguments[i]);
    } else {
      throw OptionError(std::string(found->name) + " needs " + std::string(found->argument));
    }
  }
  if (options.live && (!options.script.empty() || options.trace || options.echo)) {
    throw OptionError("--live goes without --script, --trace and --echo");
  }
  return options;
}

std::string UsageText() {
  std::string text = "goods-request: the goods request component, driven as text\n\n";
  for (const Option& option : AllOptions()) {
    std::string usage = "  " + std::string(option.name) + ' ' + std::string(option.argument);
    usage.resize(std::max<std::size_t>(usage.size(), 34), ' ');
    text.append(usage).append("  ").append(option.purpose).append("\n");
  }
  return text + "\nType help for the commands.\n";
}

}  // namespace console
