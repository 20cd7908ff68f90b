#include "base/vb/text.h"

#include <gtest/gtest.h>

#include "base/vb/error.h"

namespace {

template <class Action>
long ErrorOf(Action action) {
  try {
    action();
  } catch (const vb::RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

// A truncated lead byte and a lone continuation byte, as a file in another character set would bring them.
const std::string kBroken =
    "a\xC3"
    "b\x80";

TEST(Text, CountsCharactersNotBytes) {
  EXPECT_EQ(vb::Len("Crème brûlée"), 12u);
  EXPECT_EQ(vb::Len("€ 5 \xF0\x9F\x9A\x9A"), 5u);
  EXPECT_EQ(vb::Len(kBroken), 4u);
  EXPECT_EQ(vb::Len("\xED\xA0\x80"), 3u) << "a lone surrogate is three bytes that are no character";
  EXPECT_EQ(vb::Len("\xC0\xAF"), 2u) << "an overlong slash is no slash";
}

TEST(Text, CutsAtCharacters) {
  const std::string name = "Ünal Kâğıt Ltd";
  EXPECT_EQ(vb::Left(name, 1), "Ü");
  EXPECT_EQ(vb::Left(name, 10), "Ünal Kâğıt");
  EXPECT_EQ(vb::Left("abc", 99), "abc");
  EXPECT_EQ(vb::Right(name, 3), "Ltd");
  EXPECT_EQ(vb::Right(name, 8), "âğıt Ltd");
  EXPECT_EQ(vb::Right("é", 5), "é");
  EXPECT_EQ(vb::Mid(name, 6), "Kâğıt Ltd");
  EXPECT_EQ(vb::Mid(name, 7, 3), "âğı");
  EXPECT_EQ(vb::Mid("abc", 4, 2), "");
  EXPECT_EQ(vb::Mid("abc", 2, 0), "");
  EXPECT_EQ(vb::Left(kBroken, 2) + vb::Mid(kBroken, 3), kBroken) << "no byte may be lost";
}

TEST(Text, RefusesImpossiblePositions) {
  EXPECT_EQ(ErrorOf([] { vb::Left("abc", -1); }), vb::kInvalidCall);
  EXPECT_EQ(ErrorOf([] { vb::Right("abc", -1); }), vb::kInvalidCall);
  EXPECT_EQ(ErrorOf([] { vb::Mid("abc", 0); }), vb::kInvalidCall);
  EXPECT_EQ(ErrorOf([] { vb::Mid("abc", 1, -1); }), vb::kInvalidCall);
}

TEST(Text, FindsPartsByCharacterPosition) {
  EXPECT_EQ(vb::InStr("façade paint", "paint"), 8u);
  EXPECT_EQ(vb::InStr("paint", "Paint"), 0u);
  EXPECT_EQ(vb::InStr("", ""), 1u);
  EXPECT_EQ(vb::InStr("é", "\xC3"), 0u) << "half a character is not in the text";
  EXPECT_EQ(vb::InStrNoCase("Cable 3x2.5", "CABLE"), 1u);
  EXPECT_EQ(vb::InStrNoCase("Steel cable", "CABLE"), 7u);
  EXPECT_EQ(vb::InStrNoCase("ÇELİK ÂLET", "âlet"), 7u);
  EXPECT_EQ(vb::InStrNoCase("cable", "cables"), 0u);
}

TEST(Text, ChangesCaseBeyondAscii) {
  const struct {
    const char *lower, *upper;
  } pairs[] = {
      {"straße 5a", "STRAßE 5A"}, {"çàéîöü ÷", "ÇÀÉÎÖÜ ÷"}, {"łódź ÿ", "ŁÓDŹ Ÿ"}, {"άλφα ώρα", "ΆΛΦΑ ΏΡΑ"},
      {"ёлка щит", "ЁЛКА ЩИТ"},   {"երևան", "ԵՐևԱՆ"},       {"ệ", "Ệ"},
  };
  for (const auto& pair : pairs) {
    EXPECT_EQ(vb::UCase(pair.lower), pair.upper);
    EXPECT_EQ(vb::LCase(pair.upper), pair.lower);
    EXPECT_TRUE(vb::EqualNoCase(pair.lower, pair.upper)) << pair.lower;
    EXPECT_EQ(vb::InStrNoCase(std::string("x") + pair.lower, pair.upper), 2u);
  }
  EXPECT_EQ(vb::UCase(kBroken),
            "A\xC3"
            "B\x80");
  EXPECT_TRUE(vb::EqualNoCase("ΟΔΟΣ", "οδος")) << "the final sigma is a sigma";
  EXPECT_FALSE(vb::EqualNoCase("×", "÷")) << "signs among the letters have no case";
}

TEST(Text, OrdersWithoutRegardToCase) {
  EXPECT_LT(vb::CompareNoCase("apple", "BANANA"), 0);
  EXPECT_GT(vb::CompareNoCase("Bolt M10", "bolt"), 0);
  EXPECT_LT(vb::CompareNoCase("", "a"), 0);
  EXPECT_NE(vb::CompareNoCase("bolt", "bolt "), 0);
  EXPECT_EQ(vb::CompareServer("Bolt", "BOLT   "), 0);
  EXPECT_EQ(vb::CompareServer("", "  "), 0);
  EXPECT_GT(vb::CompareServer("a", "a\t"), 0) << "a blank stands above a tab";
  EXPECT_LT(vb::CompareServer("item 10", "item 9"), 0);
}

TEST(Text, TrimsBlanksOnly) {
  EXPECT_EQ(vb::Trim("  a b  "), "a b");
  EXPECT_EQ(vb::Trim(" \ta\r\n "), "\ta\r\n");
  EXPECT_EQ(vb::LTrim("  a "), "a ");
  EXPECT_EQ(vb::RTrim("  a "), "  a");
  EXPECT_EQ(vb::Trim("   "), "");
}

TEST(Text, PutsTogetherAndTakesApart) {
  EXPECT_EQ(vb::Space(3), "   ");
  EXPECT_EQ(vb::Space(-1), "");
  EXPECT_EQ(vb::Replace("a--b--", "--", "-"), "a-b-");
  EXPECT_EQ(vb::Replace("abc", "", "x"), "abc");
  EXPECT_EQ(vb::DoubleApostrophes("O'Neil's"), "O''Neil''s");
  EXPECT_EQ(vb::Split("a,,b,", ","), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_TRUE(vb::Split("", ",").empty());
}

TEST(Text, CharactersSurviveTakingApartAndPuttingTogether) {
  const std::string text = "aé€\xF0\x9F\x9A\x9A\xFF" + kBroken;
  std::string again;
  for (std::size_t offset = 0; offset < text.size();) vb::AppendCharacter(again, vb::NextCharacter(text, offset));
  EXPECT_EQ(again, text);
}

TEST(Error, CarriesNumberSourceAndText) {
  EXPECT_EQ(vb::ErrorText(6), "Overflow");
  EXPECT_EQ(vb::ErrorText(3704), "Application-defined or object-defined error");
  try {
    vb::Raise(3704, "Operation is not allowed when the object is closed.", "ADODB.Recordset");
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Number(), 3704);
    EXPECT_EQ(error.Source(), "ADODB.Recordset");
    EXPECT_STREQ(error.what(), "Operation is not allowed when the object is closed.");
  }
}

}  // namespace
