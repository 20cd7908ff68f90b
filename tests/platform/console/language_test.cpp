#include <gtest/gtest.h>

#include "base/late/value.h"
#include "platform/console/command_line.h"
#include "platform/console/escape.h"
#include "platform/console/options.h"
#include "platform/console/value_text.h"

namespace console {
namespace {

TEST(Escapes, AnyTextComesBackAsItWas) {
  const std::string text = "say \"hi\"\\\tto\r\nNadia\\n";
  EXPECT_EQ(Quote(text), "\"say \\\"hi\\\"\\\\\\tto\\r\\nNadia\\\\n\"");
  EXPECT_EQ(Unescape(Escape(text)), text);
}

TEST(Escapes, ABackslashThatEscapesNothingStays) {
  EXPECT_EQ(Unescape("C:\\Reports\\"), "C:\\Reports\\");
}

TEST(CommandWords, TextKeepsItsBlanks) {
  Words words("type  txtName   two blanks before ");
  EXPECT_EQ(words.Take(), "type");
  EXPECT_EQ(words.Take(), "txtName");
  EXPECT_EQ(words.Text(), "  two blanks before ");
  Words bare("set txtName");
  bare.Take();
  bare.Take();
  EXPECT_EQ(bare.Text(), "");
}

TEST(CommandWords, NumbersAreWholeNumbers) {
  EXPECT_EQ(Words(" -12 ").NeedNumber("n"), -12);
  for (const char* wrong : {"1.5", "x", "", "12345678901"}) EXPECT_THROW(Words(wrong).NeedNumber("n"), CommandError) << wrong;
}

TEST(CommandWords, APropertyHasNamesAndIndexes) {
  const PropertyPath path = ParsePropertyPath("frmRequest.lvwrequest.SubItem( 2, 3 )");
  EXPECT_EQ(path.names, (std::vector<std::string>{"frmRequest", "lvwrequest", "SubItem"}));
  EXPECT_EQ(path.indexes, (std::vector<long>{2, 3}));
  for (const char* wrong : {"a..b", ".a", "a.b(1", "a.b(x)", "a b.c"})
    EXPECT_THROW(ParsePropertyPath(wrong), CommandError) << wrong;
}

TEST(Values, AreWrittenByTheirKind) {
  EXPECT_EQ(ValueText(late::Value("a \"b\"")), "\"a \\\"b\\\"\"");
  EXPECT_EQ(ValueText(late::Value(true)), "true");
  EXPECT_EQ(ValueText(late::Value(2.5)), "2.5");
  EXPECT_EQ(ValueText(late::Value(std::int64_t{2147483662})), "2147483662");
  EXPECT_EQ(ValueText(late::Value(vb::Decimal{12500, 3})), "12.5");
  EXPECT_EQ(ValueText(late::Value(late::Currency{12500})), "1.25");
  EXPECT_EQ(ValueText(late::Value(vb::MakeDate(2024, 3, 5, 7, 8, 9))), "2024-03-05 07:08:09");
  EXPECT_EQ(ValueText(late::Value(late::Null{})), "null");
  EXPECT_EQ(ValueText(late::Value()), "empty");
  late::Value behind("x");
  EXPECT_EQ(ValueText(late::Value::ByRef(behind)), "\"x\"");
  EXPECT_EQ(CellText(late::Value(late::Null{})), "\\N");
  EXPECT_EQ(CellText(late::Value(false)), "0");
  EXPECT_EQ(CellText(late::Value("a\tb")), "a\\tb");
}

TEST(Options, DefaultsAndValues) {
  const Options plain = ParseOptions({});
  EXPECT_EQ(plain.title, "Shop");
  EXPECT_FALSE(plain.date || plain.now || plain.shop || plain.trace);
  const Options set = ParseOptions({"--shop", "2", "--date", "2024-02-29", "--now", "2024-02-29 08:30:00", "--trace", "--empty"});
  EXPECT_EQ(set.shop, 2);
  EXPECT_EQ(*set.date, vb::MakeDate(2024, 2, 29));
  EXPECT_EQ(*set.now, vb::MakeDate(2024, 2, 29, 8, 30, 0));
  EXPECT_TRUE(set.trace && set.empty);
}

TEST(Options, WrongOnesAreRefused) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& wrong : {Arguments{"--colour"}, Arguments{"--shop"}, Arguments{"--shop", "one"},
                                 Arguments{"--date", "29/02/2024"}, Arguments{"--date", "2023-02-29"}, Arguments{"stray"}}) {
    EXPECT_THROW(ParseOptions(wrong), OptionError) << wrong.front();
  }
}

}  // namespace
}  // namespace console
