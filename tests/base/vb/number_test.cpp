#include "base/vb/number.h"

#include <gtest/gtest.h>
#include <limits>

#include "base/vb/error.h"
#include "base/vb/format.h"

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

TEST(Val, ReadsTheLeadingNumber) {
  const struct {
    const char* text;
    double value;
  } cases[] = {
      {" 2 45 7", 2457}, {"1e3", 1000},      {"1d3", 1000},
      {"1E-2x", 0.01},   {"1e", 1},          {"1e+", 1},
      {"-.5", -0.5},     {"+7", 7},          {"12abc", 12},
      {"1,234", 1},      {"1.2.3", 1.2},     {"", 0},
      {"abc", 0},        {"-", 0},           {".", 0},
      {"1\t2\n3", 123},  {"&H1F", 31},       {"&o17 pcs", 15},
      {"&HFFFF", -1},    {"&H10000", 65536}, {"&HFFFFFFFF", -1},
      {"&Hxyz", 0},      {"1e-400", 0},      {"0.00000000000000000000001e400", std::numeric_limits<double>::infinity()},
  };
  for (const auto& test : cases) {
    if (test.value > 1e300) {
      EXPECT_EQ(ErrorOf([&] { vb::Val(test.text); }), vb::kOverflow) << test.text;
    } else {
      EXPECT_EQ(vb::Val(test.text), test.value) << test.text;
    }
  }
  EXPECT_EQ(ErrorOf([] { vb::Val("1e309"); }), vb::kOverflow);
  EXPECT_EQ(ErrorOf([] { vb::Val("1e99999999999999999999"); }), vb::kOverflow);
}

TEST(IsNumeric, WantsTheWholeText) {
  const std::pair<const char*, double> numbers[] = {{"1,2,3", 123}, {"(5)", -5},         {"5-", -5}, {"1.", 1},
                                                    {".5", 0.5},    {"1e5", 1e5},        {" 7 ", 7}, {"+0.25", 0.25},
                                                    {"&H1F", 31},   {"1,000.50", 1000.5}};
  for (const auto& [text, value] : numbers) {
    EXPECT_TRUE(vb::IsNumeric(text)) << text;
    EXPECT_EQ(vb::CDbl(text), value) << text;
  }
  for (const char* text :
       {"", " ", ".", "-", "5%", "1 2", "12a", "01/02/2024", "2024-01-02", "1e", "--5", "(-5)", "&H", ",5", "()"}) {
    EXPECT_FALSE(vb::IsNumeric(text)) << text;
    EXPECT_EQ(ErrorOf([&] { vb::CDbl(text); }), vb::kTypeMismatch) << text;
  }
  EXPECT_FALSE(vb::IsNumeric("1e999"));
  EXPECT_EQ(ErrorOf([] { vb::CDbl("1e999"); }), vb::kOverflow);
}

TEST(Integers, RoundHalfToEvenAndRefuseWhatDoesNotFit) {
  const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {-0.5, 0},
                                          {-1.5, -2}, {-2.5, -2}, {2.51, 3}, {-2.49, -2}};
  for (const auto& [value, whole] : cases) {
    EXPECT_EQ(vb::CInt(value), whole) << value;
    EXPECT_EQ(vb::CLng(value), whole) << value;
  }
  EXPECT_EQ(vb::CInt(32767.49), 32767);
  EXPECT_EQ(ErrorOf([] { vb::CInt(32767.5); }), vb::kOverflow);
  EXPECT_EQ(vb::CInt(-32768.5), -32768) << "tested after rounding";
  EXPECT_EQ(ErrorOf([] { vb::CLng(2147483647.5); }), vb::kOverflow);
  EXPECT_EQ(vb::CLng(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorOf([] { vb::CLng(std::numeric_limits<double>::quiet_NaN()); }), vb::kOverflow);
  EXPECT_EQ(vb::CInt("12.5"), 12);
  EXPECT_EQ(ErrorOf([] { vb::CLng("twelve"); }), vb::kTypeMismatch);
}

TEST(Integers, SixteenBitsOverflow) {
  EXPECT_EQ(vb::Add16(32766, 1), 32767);
  EXPECT_EQ(ErrorOf([] { vb::Add16(32767, 1); }), vb::kOverflow);
  EXPECT_EQ(ErrorOf([] { vb::Subtract16(-32768, 1); }), vb::kOverflow);
}

TEST(NumberText, ShowsFifteenDigits) {
  const std::pair<double, const char*> cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {-0.5, "-0.5"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {100, "100"},
      {1234567.891, "1234567.891"},
      {1e14, "100000000000000"},
      {999999999999999, "999999999999999"},
      {1e15, "1E+15"},
      {-1.5e20, "-1.5E+20"},
      {1e100, "1E+100"},
      {0.00001, "0.00001"},
      {1e-15, "0.000000000000001"},
      {1e-16, "1E-16"},
      {1.0 / 3e5, "3.33333333333333E-06"},
      {999999999999999.9, "1E+15"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(vb::NumberText(value), text);
}

TEST(Decimal, ReadsAndShowsExactly) {
  EXPECT_EQ(vb::Decimal::Parse("-12.500").ToFixedText(), "-12.500");
  EXPECT_EQ(vb::Decimal::Parse("-12.500").ToText(), "-12.5");
  EXPECT_EQ(vb::Decimal::Parse("-0.005").ToFixedText(), "-0.005");
  EXPECT_EQ(vb::Decimal::Parse("0.000").ToText(), "0");
  EXPECT_EQ(vb::Decimal::Parse("100").ToText(), "100");
  EXPECT_EQ(vb::Decimal::Parse("9223372036854775.807").ToFixedText(), "9223372036854775.807");
  EXPECT_EQ(vb::Decimal::Parse("9223372036854775.807").ToDouble(), 9223372036854775.807);
  EXPECT_EQ(vb::Decimal::Parse("0.001").ToDouble(), 0.001);
  EXPECT_EQ(vb::Decimal::Parse("1.50000000000000000000000").ToText(), "1.5");
  for (const char* text : {"", "-", ".", "1e3", " 1", "1,5", "1.2.3", "--1"}) {
    EXPECT_EQ(ErrorOf([&] { vb::Decimal::Parse(text); }), vb::kTypeMismatch) << text;
  }
  EXPECT_EQ(ErrorOf([] { vb::Decimal::Parse("9223372036854775808"); }), vb::kOverflow);
  EXPECT_EQ(ErrorOf([] { vb::Decimal::Parse("0.1234567890123456789"); }), vb::kOverflow);
}

TEST(Decimal, ComparesAcrossScales) {
  const auto compare = [](const char* a, const char* b) {
    return vb::Decimal::Compare(vb::Decimal::Parse(a), vb::Decimal::Parse(b));
  };
  EXPECT_EQ(compare("2.5", "2.500"), 0);
  EXPECT_LT(compare("-2.501", "-2.5"), 0);
  EXPECT_GT(compare("0.1", "-0.10000"), 0);
  EXPECT_GT(compare("9223372036854775807", "0.000000000000000001"), 0) << "no overflow on the way";
}

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalDigits) {
  const struct {
    double value;
    const char *picture, *text;
  } cases[] = {
      {1.005, "#0.00", "1.01"},
      {0.9125, "#0.000", "0.913"},
      {-2.0005, "#0.000", "-2.001"},
      {2.675, "0.00", "2.68"},
      {0.5, "#0", "1"},
      {2.5, "#0", "3"},
      {0.49, "#0", "0"},
      {-0.001, "0.00", "0.00"},
      {999.9996, "#0.000", "1000.000"},
      {0.0999, "0.00", "0.10"},
      {0.00001, "0.00", "0.00"},
      {12, "###,###,##0.000#####", "12.000"},
      {0.9125, "###,###,##0.000#####", "0.9125"},
      {1234567.5, "###,###,##0.000", "1,234,567.500"},
      {-123456, "###,###,##0.000", "-123,456.000"},
      {123, "###,###,##0.000", "123.000"},
      {12345678901, "#,##0", "12,345,678,901"},
      {7, "000", "007"},
      {0, "#", ""},
      {1e15, "#0.00", "1000000000000000.00"},
      {5, "0.0 kg", "5.0 kg"},
      {2.5, "", "2.5"},
  };
  for (const auto& test : cases)
    EXPECT_EQ(vb::Format(test.value, test.picture), test.text) << test.value << " as " << test.picture;
}

TEST(Format, TakesDecimalsAndTexts) {
  EXPECT_EQ(vb::Format(vb::Decimal::Parse("9007199254740993.125"), "#0.00"), "9007199254740993.13")
      << "more digits than a double has";
  EXPECT_EQ(vb::Format(vb::Decimal::Parse("-0.004"), "#0.00"), "0.00");
  EXPECT_EQ(vb::FormatText("1,234.5", "#0.000"), "1234.500");
  EXPECT_EQ(vb::FormatText("", "#0.000"), "");
  EXPECT_EQ(vb::FormatText("n/a", "#0.000"), "n/a");
}

}  // namespace
