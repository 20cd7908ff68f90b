// The script that tries a shop's server, run on the embedded engine: what it decides, and that it decides.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

#include "platform/windows/com/com_factory.h"
#include "platform/windows/wide_text.h"
#include "tests/windows/products/person/hands.h"
#include "tests/windows/products/person/shop_folder.h"

namespace person {
namespace {

using Ids = std::set<std::string>;

std::string OnWindows(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return "Z:" + path;
}

std::string TextOfFile(const std::string& path) {
  const std::ifstream file(std::filesystem::path(windows::Wide(path)), std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

/// A run of the script and the lines of its report.
class Trial {
 public:
  struct Line {
    std::string id;
    std::string verdict;
    std::string all;
  };

  explicit Trial(const ShopFolder& folder, const std::string& switches = "")
      : report_(folder.File("report.txt")),
        program_("cscript //nologo \"" + OnWindows(SOURCE_FOLDER "/tools/try_server.vbs") +
                 "\" \"/connection:embedded:" + folder.Database() + "\" \"/report:" + report_ + "\" " + switches) {}

  Program& Running() { return program_; }
  /// Waits for the end and reads the report.
  DWORD ExitCode() {
    const DWORD code = program_.ExitCode();
    static const std::regex form("([A-Z][0-9]+) +(passed|failed|not tried) .*");
    std::istringstream report(TextOfFile(report_));
    for (std::string line; std::getline(report, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      std::smatch parts;
      if (std::regex_match(line, parts, form)) lines_.push_back({parts[1], parts[2], line});
      last_ = line;
    }
    return code;
  }
  const std::vector<Line>& Lines() const { return lines_; }
  const std::string& LastLine() const { return last_; }
  Ids With(const std::string& verdict) const {
    Ids ids;
    for (const Line& line : lines_) {
      if (line.verdict == verdict) ids.insert(line.id);
    }
    return ids;
  }
  Ids All() const {
    Ids ids;
    for (const Line& line : lines_) ids.insert(line.id);
    return ids;
  }

 private:
  std::string report_;
  Program program_;
  std::vector<Line> lines_;
  std::string last_;
};

std::string Joined(const Ids& ids) {
  std::string text;
  for (const std::string& id : ids) text += id + " ";
  return text;
}

Ids Without(Ids ids, const Ids& others) {
  for (const std::string& other : others) ids.erase(other);
  return ids;
}

/// What the script asks the person who runs it with /road.
void RaiseARequest(Program& program) {
  Person engineer(program);
  FormOnScreen requests = engineer.Meets("Goods Request to HQ");
  requests.Click("New");
  engineer.Answers("No");
  FormOnScreen editor = engineer.Meets("Goods Request");
  editor.RightClickList();
  engineer.Picks('A');
  FormOnScreen entry = engineer.Meets("Goods Request Details");
  for (const char* code : {"KT1003", "KT1001"}) {
    entry.Write("Barcode:", code);
    entry.Press("Enter");
    entry.HasFocusBehind("Quantity:");
    entry.Write("Quantity:", "3");
    entry.Click("Ok");
    entry.HasFocusBehind("Barcode:");
  }
  entry.Press("Esc");
  entry.Goes();
  editor.HasRows(2);
  editor.Click("OK");
  editor.Goes();
  requests.Click("Close");
}

/// The ids of the document's tables that it says are tried.
Ids TriedInTheDocument() {
  static const std::regex row("\\| ([A-Z][0-9]+) \\|.*\\| (yes|no) \\|");
  std::istringstream document(TextOfFile(SOURCE_FOLDER "/docs/SERVER.md"));
  Ids ids;
  for (std::string line; std::getline(document, line);) {
    std::smatch parts;
    if (!std::regex_match(line, parts, row) || parts[2] == "no") continue;
    EXPECT_TRUE(ids.insert(parts[1]).second) << parts[1] << " stands there twice";
  }
  return ids;
}

TEST(ServerTrial, TheEmbeddedEngineIsAsTheServerIsAssumedToBe) {
  const ShopFolder folder;
  Trial trial(folder, "/road");
  RaiseARequest(trial.Running());
  EXPECT_EQ(trial.ExitCode(), 0u);
  for (const Trial::Line& line : trial.Lines()) EXPECT_NE(line.verdict, "failed") << line.all;

  // It has no triggers, no second writer that waits inside a transaction, no lock time-out of its own and no KILL. All else was
  // decided, on each kind of connection.
  EXPECT_EQ(Joined(Without(trial.All(), trial.With("passed"))), "N6 N7 T10 T11 T5 T6 T7 T8 T9 U2 U3 U4 ");
  const auto passed = std::ranges::count(trial.Lines(), "passed", &Trial::Line::verdict);
  const auto untried = std::ranges::count(trial.Lines(), "not tried", &Trial::Line::verdict);
  EXPECT_EQ(trial.LastLine(), std::to_string(passed) + " passed, 0 failed, " + std::to_string(untried) + " not tried");

  // The document's ids are the script's.
  EXPECT_EQ(Joined(TriedInTheDocument()), Joined(trial.All()));

  // Nothing is left: the database would do for another trial.
  Trial again(folder);
  EXPECT_EQ(again.ExitCode(), 0u) << again.LastLine();
  EXPECT_EQ(Joined(again.With("failed")), "");
}

TEST(ServerTrial, AnAssumptionThatDoesNotHoldIsNamed) {
  // A shop whose quantities have one decimal.
  const ShopFolder folder;
  const std::filesystem::path sql = windows::Wide(folder.File("sql"));
  std::filesystem::copy(std::filesystem::path(windows::Wide(OnWindows(SOURCE_FOLDER "/suite/shop"))), sql,
                        std::filesystem::copy_options::recursive);
  std::string schema = TextOfFile(folder.File("sql\\schema.sql"));
  const std::string column = "GRDgoodQty decimal(18,3)";
  const std::size_t place = schema.find(column);
  ASSERT_NE(place, std::string::npos);
  schema.replace(place, column.size(), "GRDgoodQty decimal(18,1)");
  std::ofstream(sql / "schema.sql", std::ios::binary) << schema;

  Trial trial(folder, "\"/sql:" + folder.File("sql") + "\"");
  EXPECT_EQ(trial.ExitCode(), 1u);
  EXPECT_EQ(Joined(trial.With("failed")), "N5 N8 ");
}

TEST(ServerTrial, AShopsDatabaseIsRefusedAndLeftAlone) {
  const ShopFolder folder;
  ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
  {
    windows::ComFactory factory;
    const late::ObjectPtr database = factory.Create("ShopSuite.Database");
    const late::ObjectPtr connection = database->Call("Open", {folder.Database()}).ToObject();
    Trial trial(folder);
    EXPECT_EQ(trial.ExitCode(), 2u);
    EXPECT_EQ(trial.LastLine(), "The database holds mosGoodsRequestHeader already. The trial needs an empty scratch database.");
    EXPECT_TRUE(trial.Lines().empty());
    const late::ObjectPtr rows = connection->Call("Execute", {"select count(*) from mosGoodsRequestHeader"}).ToObject();
    EXPECT_EQ(rows->Get("Collect", {std::int32_t{0}}).ToInt32(), 40);
    rows->Call("Close");
    connection->Call("Close");
  }
  CoUninitialize();
}

}  // namespace
}  // namespace person
