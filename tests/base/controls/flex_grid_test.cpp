// The grid: cells, current cell, sorting, colours.

#include <array>

#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

using controls::GridSort;

class GridStory : public ControlStory {
 protected:
  controls::FlexGrid& Grid() { return form->flexStock; }
  void Fill(std::initializer_list<const char*> lines) {
    Grid().SetRows(1);
    for (const char* line : lines) Grid().AddItem(line);
  }
  std::string Column(long col) {
    std::string all;
    for (long row = Grid().FixedRows(); row < Grid().Rows(); ++row)
      all += (row > Grid().FixedRows() ? " " : "") + Grid().TextMatrix(row, col);
    return all;
  }
  std::string Sorted(std::initializer_list<const char*> lines, GridSort kind) {
    Fill(lines);
    Grid().SetCol(0);
    Grid().Sort(kind);
    return Column(0);
  }
  std::string Selection() {
    return std::to_string(Grid().Row()) + "," + std::to_string(Grid().Col()) + " to " + std::to_string(Grid().RowSel()) + "," +
           std::to_string(Grid().ColSel());
  }
  static long ErrorOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const vb::RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }
};
INSTANTIATE_TEST_SUITE_P(Desktop, GridStory, testing::Values(&MakeDriver));

TEST_P(GridStory, EachKindOfSortHasItsOwnOrder) {
  const auto mixed = {"10", "b", "9", "A", "a", "", "-3"};
  EXPECT_EQ(Sorted(mixed, GridSort::GenericAscending), " -3 9 10 A a b");
  EXPECT_EQ(Sorted({"2.5", "10", "9", "1,000"}, GridSort::GenericDescending), "1,000 10 9 2.5");
  EXPECT_EQ(Sorted({"12 pieces", "9", "none", "100"}, GridSort::NumericAscending), "none 9 12 pieces 100");
  EXPECT_EQ(Sorted({"10", "b", "9", "A", "a"}, GridSort::TextNoCaseAscending), "10 9 A a b");
  EXPECT_EQ(Sorted({"10", "b", "9", "A", "a"}, GridSort::TextNoCaseDescending), "b A a 9 10");
  EXPECT_EQ(Sorted({"b", "a", "B", "A"}, GridSort::TextAscending), "A B a b");
  EXPECT_EQ(Sorted({"b", "a", "B", "A"}, GridSort::TextDescending), "b a B A");
  EXPECT_EQ(Sorted({"Äpfel", "äpfel 2", "Zebra", "ÄPFEL 1"}, GridSort::TextNoCaseAscending), "Zebra Äpfel ÄPFEL 1 äpfel 2");
}

TEST_P(GridStory, SortingMovesWholeRowsWithTheirColoursAndIsStableBothWays) {
  Grid().SetCols(2);
  Fill({"2\tfirst", "1\tsecond", "2\tthird"});
  Grid().SetRowForeColor(1, controls::kRed);
  Grid().SetCellBackColor(2, 1, controls::kCyan);
  Grid().SetRow(2);
  Grid().SetCol(0);
  Grid().Sort(GridSort::NumericAscending);
  EXPECT_EQ(Column(1), "second first third");
  EXPECT_EQ(Grid().CellForeColor(2, 1), controls::kRed);
  EXPECT_EQ(Grid().CellBackColor(1, 1), controls::kCyan);
  EXPECT_EQ(Grid().CellForeColor(1, 0), controls::kDefaultColor);
  EXPECT_EQ(Grid().Row(), 2) << "the current cell keeps its place";
  Grid().Sort(GridSort::NumericDescending);
  EXPECT_EQ(Column(1), "first third second");
}

TEST_P(GridStory, SortingFollowsTheSelectionForRowsAndKeys) {
  Grid().SetCols(2);
  Fill({"b\t2", "a\t2", "b\t1", "a\t1"});
  Grid().SetRow(2);
  Grid().SetCol(0);
  Grid().SetRowSel(3);
  Grid().Sort(GridSort::TextAscending);
  EXPECT_EQ(Column(0), "b a b a") << "rows 2 and 3 alone, in order already";
  Grid().SetRow(1);
  Grid().SetCol(0);
  Grid().SetColSel(1);
  Grid().Sort(GridSort::GenericAscending);
  EXPECT_EQ(Column(0) + " / " + Column(1), "a a b b / 1 2 1 2");
}

TEST_P(GridStory, MovingTheCurrentCellResetsTheSelection) {
  int moved = 0;
  form->On(form->flexStock.RowColChange, "RowColChange", [&] { ++moved; });
  Grid().SetCols(3);
  Fill({"a", "b", "c"});
  EXPECT_EQ(Grid().Row(), 1) << "the first data row of a grid that had none";
  moved = 0;
  Grid().SetRow(2);
  Grid().SetCol(0);
  const int afterMove = moved;
  Grid().SetRow(2);
  Grid().SetTextMatrix(3, 2, "elsewhere");
  EXPECT_EQ(moved, afterMove) << "not for the same cell, nor for text";
  Grid().SetRowSel(3);
  Grid().SetColSel(2);
  EXPECT_EQ(Selection(), "2,0 to 3,2");
  Grid().SetRow(1);
  EXPECT_EQ(Selection(), "1,0 to 1,0");
  Grid().SelectRange(2, 3);
  EXPECT_EQ(Selection(), "2,0 to 3,2");
  Grid().SetRows(2);
  EXPECT_EQ(Selection(), "1,0 to 1,0") << "shrinking moves it inside";
}

TEST_P(GridStory, ClipFillsTheSelectionAndNothingElse) {
  Grid().SetCols(3);
  Fill({"a\tb\tc", "d\te\tf", "g\th\ti"});
  Grid().SetRow(1);
  Grid().SetCol(1);
  Grid().SetRowSel(2);
  Grid().SetColSel(2);
  EXPECT_EQ(Grid().Clip(), "b\tc\re\tf");
  Grid().SetClip("1\t2\ttoo much\r3");
  EXPECT_EQ(Grid().Clip(), "1\t2\r3\tf");
  Grid().SetClip("x\ry\rz");
  EXPECT_EQ(Column(1), "x y h");
}

TEST_P(GridStory, TheFormatStringNamesAlignsAndWidensColumns) {
  Grid().SetCols(5);
  Grid().SetFormatString("<Code|^Description          |>Qty||");
  EXPECT_EQ(Grid().Cols(), 5) << "never shrinks";
  EXPECT_EQ(Grid().TextMatrix(0, 1), "Description");
  EXPECT_EQ(Grid().ColAlignment(1), controls::GridAlignment::Center);
  EXPECT_EQ(Grid().ColAlignment(2), controls::GridAlignment::Right);
  EXPECT_GT(Grid().ColWidth(1), 2 * Grid().ColWidth(0)) << "blanks widen";
  Grid().SetFormatString("<Code|^Codemmmmmmmmmm|>Code          ||");
  const int code = Grid().ColWidth(0);
  EXPECT_LT(2 * (Grid().ColWidth(2) - code), Grid().ColWidth(1) - code) << "though less than half as much as letters do";
  const int defaultWidth = Grid().ColWidth(3);
  Grid().SetColWidth(3, 0);
  EXPECT_EQ(Grid().ColWidth(3), 0);
  Grid().SetColWidth(3, -1);
  EXPECT_EQ(Grid().ColWidth(3), defaultWidth);
  Grid().SetFormatString("a|b|c|d|e|f");
  EXPECT_EQ(Grid().Cols(), 6);
}

TEST_P(GridStory, ClearingWipesTextAndColoursAndKeepsTheGrid) {
  Grid().SetFormatString("<Code|<Name");
  Fill({"a\tb", "c\td"});
  Grid().SetRowForeColor(1, controls::kRed);
  Grid().SetColWidth(1, 500);
  Grid().Clear();
  EXPECT_EQ(Grid().Rows(), 3);
  EXPECT_EQ(Grid().ColWidth(1), 500);
  EXPECT_EQ(Grid().TextMatrix(0, 0) + Grid().TextMatrix(1, 1), "");
  EXPECT_EQ(Grid().CellForeColor(1, 1), controls::kDefaultColor);
}

TEST_P(GridStory, OneCellCanDifferFromItsColouredRow) {
  Grid().SetCols(3);
  Grid().SetRowForeColor(1, controls::kRed);
  Grid().SetCellForeColor(1, 0, controls::kCyan);
  Grid().SetCellForeColor(1, 1, controls::kDefaultColor);
  EXPECT_EQ(Grid().CellForeColor(1, 0), controls::kCyan);
  EXPECT_EQ(Grid().CellForeColor(1, 1), controls::kDefaultColor);
  EXPECT_EQ(Grid().CellForeColor(1, 2), controls::kRed);
  Grid().AppendRow({"a", "b", "c", "a column more"});
  EXPECT_EQ(Grid().CellForeColor(1, 3), controls::kDefaultColor);
  Grid().SetRowForeColor(1, controls::kRed);
  EXPECT_EQ(Grid().CellForeColor(1, 1), controls::kRed);
}

TEST_P(GridStory, WrongPlacesAreErrorsOfTheirKind) {
  EXPECT_EQ(ErrorOf([&] { Grid().SetRow(2); }), 30009);
  EXPECT_EQ(ErrorOf([&] { Grid().SetCol(-1); }), 30010);
  EXPECT_EQ(ErrorOf([&] { (void)Grid().TextMatrix(0, 2); }), vb::kInvalidPropertyIndex);
  EXPECT_EQ(ErrorOf([&] { Grid().SetTextMatrix(2, 0, ""); }), vb::kInvalidPropertyIndex);
  EXPECT_EQ(ErrorOf([&] { Grid().RemoveItem(1); }), 30015) << "the last data row stays";
  EXPECT_EQ(ErrorOf([&] { Grid().AddItem("x", 4); }), 30009);
  Grid().AddItem("in between", 1);
  EXPECT_EQ(Grid().TextMatrix(1, 0), "in between");
  Grid().RemoveItem(1);
  EXPECT_EQ(Grid().Rows(), 2);
}

TEST_P(GridStory, APersonMovesByMouseAndKeysWithinTheData) {
  form->Tell(Grid().Click, "click");
  form->On(form->flexStock.MouseMove, "MouseMove",
           [&] { Grid().SetToolTipText(Grid().TextMatrix(Grid().MouseRow(), Grid().MouseCol())); });
  Work([&] {
    form->tabPages.SetTab(1);
    Grid().SetCols(2);
    Grid().SetRows(30);
    Grid().SetTextMatrix(5, 1, "five");
    person->ClickCell(Grid(), 5, 1);
    EXPECT_EQ(form->Told(), "click");
    EXPECT_EQ(Selection(), "5,1 to 5,1");
    Grid().MoveMouse(5, 1);
    EXPECT_EQ(person->Read(Grid(), "ToolTipText"), "five");
    person->Press("Down");
    person->Press("Right");
    EXPECT_EQ(Selection(), "6,1 to 6,1");
    person->Press("Shift+Down");
    EXPECT_EQ(Selection(), "6,1 to 7,1");
    person->Press("PageUp");
    person->Press("Up");
    EXPECT_EQ(Selection(), "1,1 to 1,1") << "never onto the headings";
    person->Press("Ctrl+End");
    EXPECT_EQ(Grid().Row(), 29);
    EXPECT_GT(Grid().TopRow(), 1) << "scrolled with it";
  });
}

TEST_P(GridStory, AClickOnAHeadingIsReportedAndLeavesTheCurrentCell) {
  form->On(Grid().HeadingClick, "HeadingClick", [&](long col) {
    EXPECT_EQ(Grid().MouseRow(), 0);
    EXPECT_EQ(Grid().MouseCol(), col);
    Grid().ShowSortedBy(col, Grid().SortedCol() != col || !Grid().SortedAscending());
  });
  Work([&] {
    form->tabPages.SetTab(1);
    Grid().SetCols(3);
    Grid().SetRows(30);
    person->ClickCell(Grid(), 5, 1);
    const auto arrow = [&](long col) {
      person->ClickHeading(Grid(), col);
      return std::to_string(Grid().SortedCol()) + (Grid().SortedAscending() ? " up" : " down");
    };
    EXPECT_EQ(arrow(2), "2 up");
    EXPECT_EQ(arrow(2), "2 down");
    EXPECT_EQ(arrow(1), "1 up");
    EXPECT_EQ(Selection(), "5,1 to 5,1");
    Grid().SetCols(1);
    EXPECT_EQ(Grid().SortedCol(), -1) << "the column is gone";
  });
}

TEST_P(GridStory, AListInOrderIsSoUntilItChanges) {
  Grid().SetFixedCols(0);
  Grid().SetCols(2);
  const auto fill = [&] {
    Grid().SetRows(1);
    for (const char* line : {"9\tx", "10\tb", "a\tc", "B\ta"}) Grid().AddItem(line);
    return Grid().IsInOrder(0);
  };
  ASSERT_TRUE(fill());
  EXPECT_TRUE(Grid().IsInOrder(0)) << "asked again";
  EXPECT_FALSE(Grid().IsInOrder(1)) << "another column";
  EXPECT_TRUE(Grid().IsInOrder(0));

  Grid().SetTextMatrix(1, 0, "11");
  EXPECT_FALSE(Grid().IsInOrder(0)) << "a cell";
  ASSERT_TRUE(fill());
  Grid().AddItem("A");
  EXPECT_FALSE(Grid().IsInOrder(0)) << "a line at the end";
  ASSERT_TRUE(fill());
  Grid().AppendRow({"8"});
  EXPECT_FALSE(Grid().IsInOrder(0)) << "the same, taken over";
  Grid().RemoveItem(5);
  EXPECT_TRUE(Grid().IsInOrder(0)) << "without it";
  Grid().SetCol(1);
  Grid().Sort(GridSort::GenericAscending);
  EXPECT_FALSE(Grid().IsInOrder(0)) << "sorted by another column";
  EXPECT_TRUE(Grid().IsInOrder(1));
  Grid().SetFixedRows(0);
  Grid().SetTextMatrix(0, 1, "z");
  EXPECT_FALSE(Grid().IsInOrder(1)) << "the heading is a line now";
  EXPECT_THROW((void)Grid().IsInOrder(2), vb::RunTimeError);
}

TEST_P(GridStory, AHundredThousandRowsSortAsTheyShould) {
  Grid().SetCols(6);
  Grid().ReserveRows(100001);
  Grid().SetRows(1);
  for (int row = 0; row < 100000; ++row) {
    const int number = static_cast<int>((row * 7919LL) % 100000);
    Grid().AppendRow({std::to_string(number), "item", "", "", "", std::to_string(row)});
  }
  Grid().SetCol(0);
  Grid().Sort(GridSort::GenericAscending);
  for (long row = 1; row <= 100000; row += 9999) EXPECT_EQ(Grid().TextMatrix(row, 0), std::to_string(row - 1));
}

TEST_P(GridStory, SelectedRowsAreCopiedAsATableWithTheirHeadings) {
  Grid().SetCols(3);
  Fill({"POT\t17\tCooking pot", "CUP\t18\t\"Old\" cup", "JAR\t19\ttwo\r\nlines"});
  for (long col = 0; col < 3; ++col)
    Grid().SetTextMatrix(0, col, std::array{"Code", "Id", "Name"}.at(static_cast<std::size_t>(col)));
  Grid().SetColWidth(1, 0);
  Work([&] {
    form->tabPages.SetTab(1);
    person->ClickCell(Grid(), 2, 0);
    person->Press("Ctrl+C");
    EXPECT_EQ(person->Desktop().ClipboardText(), "Code\tName\r\nCUP\t\"\"\"Old\"\" cup\"\r\n");
    person->Press("Ctrl+A");
    EXPECT_EQ(Selection(), "1,0 to 3,2");
    person->Press("Ctrl+C");
    EXPECT_EQ(person->Desktop().ClipboardText(),
              "Code\tName\r\nPOT\tCooking pot\r\nCUP\t\"\"\"Old\"\" cup\"\r\nJAR\t\"two\r\nlines\"\r\n");
  });
}

}  // namespace
}  // namespace counter
