#include "src/counter/pasted_table.h"

#include <gtest/gtest.h>

namespace goods {
namespace {

std::string Read(std::string_view text) {
  const PastedTable table = ReadPastedLines(text);
  std::string all = table.headings.empty() ? "" : "H ";
  for (const PastedRow& row : table.rows) {
    all += row.code + "=" + QuantityAsTyped(row.quantity, table.hasDecimalComma).value_or("?") + "(" + row.remarks + ") ";
  }
  return all;
}

TEST(PastedTable, CodeQuantityAndRemarksAreReadHoweverTheyAreSeparated) {
  EXPECT_EQ(Read("POT\t2,5\tblue\r\n CUP \t 4 \n"), "POT=2.5(blue) CUP=4() ");
  EXPECT_EQ(Read("POT;2,5;a, b\nCUP;1.250,75"), "POT=2.5(a, b) CUP=1250.75() ");
  EXPECT_EQ(Read("POT,2.5,blue\nCUP,4"), "POT=2.5(blue) CUP=4() ");
  EXPECT_EQ(Read("\n \t\nPOT"), "POT=?() ");
}

TEST(PastedTable, HeadingsAreSkippedAndThoseOfTheItemListFollowed) {
  EXPECT_EQ(Read("Code\tHow many\nPOT\t2"), "H POT=2() ");
  EXPECT_EQ(Read("POT\t\nCUP\t2"), "POT=?() CUP=2() ") << "a missing quantity is no heading";
  EXPECT_EQ(
      Read("Sl No.\tItem Code\tItem Name\tQty.\tRequest Remarks\tUnit\tPart Code\r\n1\tPOT\tTea pot\t2.500\tblue\tpcs\t\r\n"),
      "H POT=2.5(blue) ");
}

TEST(PastedTable, QuantitiesAreNumbersAsPeopleWriteThem) {
  const auto typed = [](std::string_view written) { return QuantityAsTyped(written, true).value_or("?"); };
  EXPECT_EQ(typed("2.000"), "2");
  EXPECT_EQ(typed("1,234,567"), "1234567");
  EXPECT_EQ(typed("12,34,567"), "1234567");
  EXPECT_EQ(typed("1 234,5"), "1234.5");
  EXPECT_EQ(typed("1,234.500"), "1234.5");
  EXPECT_EQ(typed(".5"), "0.5");
  for (const char* wrong : {"", "-2", "two", "2x", "1.2345", "1.5.2,3.4", "1.234,567.8", ".", "12,5 6", "2 pcs", "٣"})
    EXPECT_EQ(typed(wrong), "?") << wrong;
  EXPECT_EQ(QuantityAsTyped("1,234.5", false), "1234.5");
}

}  // namespace
}  // namespace goods
