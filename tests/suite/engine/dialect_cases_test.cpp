// Runs the dialect's cases, which are text files beside this one: a new case needs no recompiling.
//
//   == script PATH      runs a script of the repository (from its root) before the cases
//   == setup            the lines up to the next == are a script
//   == case NAME        the lines up to -- are a statement; then its outcome:
//   -- rows             the lines up to the next == are the rows, cells separated by " | "
//   -- count N          rows changed
//   -- error N TEXT     the server's own number, and a part of the message
//
// Cells show their type: 'text', 12 (32 bits), 12s (16 bits), 2.500 (decimal), 2.5d (double), true, null, 2005-03-15 10:20:30.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "suite/engine/objects/database.h"
#include "suite/engine/values/errors.h"

namespace {

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) ADD_FAILURE() << "cannot read " << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string CellText(const late::Value& value) {
  if (value.IsNull()) return "null";
  if (const auto* text = value.If<std::string>()) return "'" + *text + "'";
  if (const auto* flag = value.If<bool>()) return *flag ? "true" : "false";
  if (const auto* small = value.If<std::int16_t>()) return std::to_string(*small) + "s";
  if (const auto* whole = value.If<std::int32_t>()) return std::to_string(*whole);
  if (const auto* exact = value.If<vb::Decimal>()) return exact->ToFixedText();
  if (const auto* number = value.If<double>()) return vb::NumberText(*number) + "d";
  if (const auto* date = value.If<vb::Date>()) return vb::FormatDate(*date, "yyyy-mm-dd hh:nn:ss");
  return "?";
}

std::string RowsText(late::Object& recordset) {
  std::string text;
  while (!recordset.Get("EOF").ToBool()) {
    const late::ArrayPtr block = recordset.Call("GetRows", {std::int32_t{100}}).ToArray();
    for (std::size_t row = 0; row < block->columns; ++row) {
      for (std::size_t column = 0; column < block->rows; ++column)
        text += (column ? " | " : "") + CellText(block->At(column, row));
      text += "\n";
    }
  }
  return text;
}

std::string ResultText(late::Object& recordset, const late::Value& affected) {
  if (recordset.Get("State").ToInt32() == 0) return "count " + std::to_string(affected.ToInt32()) + "\n";
  return "rows\n" + RowsText(recordset);
}

/// What came of the statement, one result after the other, in the words of a case file.
std::string OutcomeOf(late::Object& connection, const std::string& statement) {
  std::string text;
  try {
    late::Value affected;
    late::ObjectPtr result = connection.Call("Execute", {statement, late::Value::ByRef(affected)}).ToObject();
    while (result) {
      text += ResultText(*result, affected);
      const late::Value next = result->Call("NextRecordset", {late::Value::ByRef(affected)});
      result = *next.If<late::ObjectPtr>();
    }
    return text;
  } catch (const suite::ServerError& error) {
    return text + "error " + std::to_string(error.NativeError()) + " " + error.Description() + "\n";
  } catch (const vb::RunTimeError& error) {
    return text + "error " + std::to_string(error.Number()) + " " + error.Description() + "\n";
  }
}

bool Fits(const std::string& expected, const std::string& outcome) {
  if (!expected.starts_with("error ")) return expected == outcome;
  const std::size_t blank = expected.find(' ', 6);
  if (blank == std::string::npos) return outcome.starts_with(expected.substr(0, expected.size() - 1) + " ");
  const std::string part = expected.substr(blank + 1, expected.size() - blank - 2);
  return outcome.starts_with(expected.substr(0, blank + 1)) && outcome.find(part) != std::string::npos;
}

class CaseFile {
 public:
  explicit CaseFile(const std::filesystem::path& path) : lines_(vb::Split(ReadAll(path), "\n")) {
    database_ = suite::Database::Open("", {[] { return vb::MakeDate(2005, 3, 15, 10, 20, 30); }});
    connection_ = database_->Connect();
  }

  void Run() {
    while (at_ < lines_.size()) {
      const std::string line = lines_[at_++];
      if (line.starts_with("== script ")) {
        database_->RunScript(ReadAll(std::filesystem::path(SOURCE_FOLDER) / line.substr(10)));
      } else if (line == "== setup") {
        database_->RunScript(Until("== "));
      } else if (line.starts_with("== case ")) {
        RunCase(line.substr(8));
      } else if (!line.empty() && !line.starts_with("#")) {
        ADD_FAILURE() << "line " << at_ << " belongs to nothing: " << line;
      }
    }
    EXPECT_GT(cases_, 0);
  }

 private:
  std::string Until(const std::string& mark) {
    std::string text;
    while (at_ < lines_.size() && !lines_[at_].starts_with(mark)) text += lines_[at_++] + "\n";
    return text;
  }

  void RunCase(const std::string& name) {
    ++cases_;
    std::string statement = Until("-- ");
    while (!statement.empty() && statement.back() == '\n') statement.pop_back();
    ASSERT_LT(at_, lines_.size()) << name << " has no outcome";
    std::string expected = lines_[at_++].substr(3) + "\n";
    expected += Until("== ");
    while (expected.ends_with("\n\n")) expected.pop_back();
    const std::string outcome = OutcomeOf(*connection_, statement);
    EXPECT_TRUE(Fits(expected, outcome)) << "case " << name << "\nexpected: " << expected << "outcome:  " << outcome;
  }

  std::vector<std::string> lines_;
  std::size_t at_ = 0;
  int cases_ = 0;
  std::shared_ptr<suite::Database> database_;
  late::ObjectPtr connection_;
};

std::vector<std::string> CaseFiles() {
  std::vector<std::string> names;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(SOURCE_FOLDER) / "tests/suite/engine/cases")) {
    if (entry.path().extension() == ".txt") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class Dialect : public testing::TestWithParam<std::string> {};

TEST_P(Dialect, AnswersAsTheServerDoes) {
  CaseFile(std::filesystem::path(SOURCE_FOLDER) / "tests/suite/engine/cases" / (GetParam() + ".txt")).Run();
}

INSTANTIATE_TEST_SUITE_P(Cases, Dialect, testing::ValuesIn(CaseFiles()), [](const auto& file) { return file.param; });

}  // namespace
