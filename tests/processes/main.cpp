// Real console programs at work on one database file, as in a shop: several at a time, and some that are killed.
// Usage: test_processes [--seed N] [--actions N] [--saves N] [--kills N] [--gtest_...]
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <string_view>

#include "tests/processes/arguments.h"

namespace {

processes::Arguments given;

bool Take(std::string_view name, const char* value) {
  const int number = std::atoi(value);
  if (name == "--seed") return given.seed = static_cast<unsigned>(number), true;
  for (const auto& [known, place] :
       {std::pair{"--actions", &given.actions}, {"--saves", &given.saves}, {"--kills", &given.kills}}) {
    if (name == known) return *place = number, true;
  }
  return false;
}

}  // namespace

const processes::Arguments& processes::Given() {
  return given;
}

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  for (int at = 1; at < count; at += 2) {
    if (at + 1 < count && Take(arguments[at], arguments[at + 1])) continue;
    std::cerr << "wrong argument " << arguments[at] << "\n";
    return 2;
  }
  std::cout << "--seed " << given.seed << "\n";
  return RUN_ALL_TESTS();
}
