#include "base/controls/table_text.h"

#include <gtest/gtest.h>

namespace controls {
namespace {

using Table = std::vector<std::vector<std::string>>;

TEST(TableText, WhatASpreadsheetCopiesIsReadCellByCell) {
  EXPECT_EQ(ReadTable("POT\t2\r\n\r\nCUP\t4\tblue\n \t \nJAR", '\t'), (Table{{"POT", "2"}, {"CUP", "4", "blue"}, {"JAR"}}));
  EXPECT_EQ(ReadTable("POT;;x;\rCUP", ';'), (Table{{"POT", "", "x", ""}, {"CUP"}}));
  EXPECT_EQ(ReadTable("\"a\tb\"\t\"two\r\nlines\"\t\"\"\"q\"\"\"", '\t'), (Table{{"a\tb", "two\r\nlines", "\"q\""}}));
  EXPECT_EQ(ReadTable("", '\t'), Table());
}

TEST(TableText, AQuotationMarkThatIsNeverClosedSwallowsNothing) {
  EXPECT_EQ(ReadTable("\"12 inch\t1\nPOT\t2", '\t'), (Table{{"\"12 inch", "1"}, {"POT", "2"}}));
  EXPECT_EQ(ReadTable("\"12\" inch\t1", '\t'), (Table{{"\"12\" inch", "1"}}));
}

TEST(TableText, WhatIsCopiedIsReadTheSame) {
  const Table table = {{"", "\"", "\"\"", "a\"b"}, {"x\ty", "\n", "\r\n\"", " "}};
  TableText text;
  for (const auto& row : table) {
    for (const std::string& cell : row) text.AddCell(cell);
    text.EndRow();
  }
  EXPECT_EQ(ReadTable(text.Text(), '\t'), table);
}

}  // namespace
}  // namespace controls
