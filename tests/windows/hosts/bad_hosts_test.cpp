// Hosts and helpers that misbehave, each in a process of its own: one that hangs or breaks down fails its test and no other.
#include <gtest/gtest.h>

#include "tests/windows/hosts/bad_host.h"
#include "tests/windows/products/person/program.h"

namespace {

constexpr std::string_view kPlay = "--play";
std::string self;

class BadHosts : public testing::TestWithParam<std::string> {};

TEST_P(BadHosts, GetTheirWindowsBack) {
  person::Program host("\"" + self + "\" " + std::string(kPlay) + " " + GetParam());
  const DWORD code = host.ExitCode();
  EXPECT_EQ(code, 0u) << host.Complaint();
}

INSTANTIATE_TEST_SUITE_P(Ways, BadHosts, testing::ValuesIn(hosts::CaseNames()), [](const auto& way) { return way.param; });

}  // namespace

int main(int count, char** words) {
  if (count == 3 && words[1] == kPlay) return hosts::Play(words[2]);
  self = words[0];
  testing::InitGoogleTest(&count, words);
  return RUN_ALL_TESTS();
}
