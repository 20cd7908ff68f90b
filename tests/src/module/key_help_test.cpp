// What F1 tells and what the users' page says of the keys are the same.

#include "src/module/key_help.h"

#include <fstream>
#include <gtest/gtest.h>
#include <regex>

namespace goods {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

/// The tables of keys on the users' page, in its order.
std::vector<Rows> TablesOfThePage() {
  std::ifstream page(std::string(SOURCE_FOLDER) + "/docs/USER.md");
  static const std::regex row(R"(\| (.*) \| (.*) \|)");
  std::vector<Rows> tables;
  for (std::string line; std::getline(page, line);) {
    std::smatch cells;
    if (line.starts_with("| key")) {
      tables.emplace_back();
    } else if (std::regex_match(line, cells, row)) {
      tables.back().emplace_back(cells[1], cells[2]);
    }
  }
  return tables;
}

TEST(KeyHelp, TellsWhatTheUsersPageSays) {
  std::vector<Rows> told;
  for (const FormKeyHelp& form : KeyHelpOfAllForms()) {
    Rows& rows = told.emplace_back();
    for (const KeyHelp& help : form.keys) rows.emplace_back(help.key, help.does);
    EXPECT_FALSE(KeysToTell(form.form).empty());
  }
  EXPECT_EQ(told, TablesOfThePage());
}

}  // namespace
}  // namespace goods
