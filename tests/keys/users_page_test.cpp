// The users' page and the table of keys name the same keys.

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "tests/keys/keys.h"

namespace keys {
namespace {

/// A key named on the page, under a heading.
struct Named {
  std::string heading;
  std::string key;
};

/// "Alt+N, E, D" names three keys.
std::string Spelled(std::string line) {
  static const std::regex furtherLetter("(Alt\\+[A-Z]), ([A-Z])\\b");
  for (std::string before; before != line;) {
    before = line;
    line = std::regex_replace(line, furtherLetter, "Alt+$2 $1");
  }
  return std::regex_replace(std::regex_replace(line, std::regex("menu key"), "Menu"), std::regex("\\barrows\\b"), "Up Down");
}

std::vector<Named> NamedOnThePage() {
  std::ifstream page(std::string(SOURCE_FOLDER) + "/docs/USER.md");
  static const std::regex heading("#+ (.*)");
  static const std::regex key(
      "(?:(?:Ctrl|Alt|Shift)\\+)+\\w+|\\bF[1-9][0-2]?\\b|\\b(?:Enter|Tab|Esc|Delete|Menu|Up|Down|PageUp|PageDown)\\b");
  std::vector<Named> named;
  std::string under;
  for (std::string line; std::getline(page, line);) {
    std::smatch found;
    if (std::regex_match(line, found, heading)) {
      under = found[1];
      if (under == "In a terminal") break;  // second keys, which the tests of the terminal press
      continue;
    }
    const std::string spelled = Spelled(line);
    for (std::sregex_iterator match(spelled.begin(), spelled.end(), key), end; match != end; ++match) {
      named.push_back({under, match->str()});
    }
  }
  return named;
}

/// Whether the key is pressed in the form, or on the way to it.
bool Presses(const FormKeys& form, const std::string& key) {
  const auto isIt = [&](const Key& pressed) { return pressed.key == key; };
  return std::ranges::any_of(form.keys, isIt) || std::ranges::any_of(form.way, isIt);
}

TEST(UsersPage, EveryKeyThatItNamesIsInTheTable) {
  const std::vector<Named> named = NamedOnThePage();
  ASSERT_GT(named.size(), 30u);
  std::set<std::string> headings;
  for (const FormKeys& form : Table()) headings.insert(form.page);
  for (const Named& key : named) {
    // What the page says before its first heading goes for every form.
    const bool isGeneral = !headings.contains(key.heading);
    EXPECT_TRUE(
        std::any_of(Table().begin(), Table().end(),
                    [&](const FormKeys& form) { return (isGeneral || form.page == key.heading) && Presses(form, key.key); }))
        << key.key << " under \"" << key.heading << '"';
  }
}

TEST(UsersPage, EveryFormIsWorkedByTheKeysOfAllForms) {
  for (const FormKeys& form : Table()) {
    EXPECT_TRUE(Presses(form, "Tab")) << form.title;
    if (form.title == "Print") continue;  // no box, and its button prints
    EXPECT_TRUE(Presses(form, "Enter")) << form.title;
    EXPECT_TRUE(std::any_of(form.keys.begin(), form.keys.end(), [](const Key& key) { return key.key.starts_with("Alt+"); }))
        << form.title;
  }
}

}  // namespace
}  // namespace keys
