#include "base/workstation/text_file.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using namespace std::string_literals;

Lines LinesOf(workstation::TextFile file) {
  Lines lines;
  while (const auto line = file.ReadLine()) lines.push_back(*line);
  return lines;
}

TEST(TextFile, LinesEndAsOnAnySystemAndTheLastNeedsNoEnd) {
  EXPECT_EQ(LinesOf(workstation::TextFile("one\r\ntwo\nthree\rfour")), (Lines{"one", "two", "three", "four"}));
  EXPECT_EQ(LinesOf(workstation::TextFile("\r\n\n\r\r\nlast\r")), (Lines{"", "", "", "", "last"}));
  EXPECT_EQ(LinesOf(workstation::TextFile("")), Lines{});
}

TEST(TextFile, AMarkSaysWhatTheFileIsWrittenIn) {
  const Lines lines = {"port :=LPT1", "é€😀", "last"};
  EXPECT_EQ(LinesOf(workstation::TextFile("\xEF\xBB\xBFport :=LPT1\r\né€😀\nlast")), lines);
  std::string littleEndian = "\xFF\xFE", bigEndian = "\xFE\xFF";
  for (const char16_t unit : u"port :=LPT1\r\né€😀\nlast"s) {
    littleEndian += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    bigEndian += {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
  }
  EXPECT_EQ(LinesOf(workstation::TextFile(littleEndian)), lines);
  EXPECT_EQ(LinesOf(workstation::TextFile(bigEndian)), lines);
}

TEST(TextFile, DamagedUtf16KeepsWhatCanBeRead) {
  const std::string halves = "\xFF\xFE\x3D\xD8"s + "a\0\x00\xDE"s + "b\0\x3D\xD8"s + "c"s;
  EXPECT_EQ(LinesOf(workstation::TextFile(halves)), Lines{"\uFFFDa\uFFFDb\uFFFD"});
}

TEST(TextFile, OnlyAFileWithoutAMarkIsInTheWorkstationsCharacterSet) {
  const auto fromLatin = [](std::string_view bytes) { return bytes == "caf\xE9" ? "café"s : std::string(bytes); };
  EXPECT_EQ(LinesOf(workstation::TextFile("caf\xE9\r\nLPT1", fromLatin)), (Lines{"café", "LPT1"}));
  EXPECT_EQ(LinesOf(workstation::TextFile("\xEF\xBB\xBF"s + "caf\xE9", fromLatin)), Lines{"caf\xE9"});
}

}  // namespace
