#include "src/lists/grid_search.h"

#include <gtest/gtest.h>
#include <memory>

#include "base/controls/form.h"
#include "tests/support/scripted_desktop.h"

namespace {

/// A list of requests (id, number, remarks) that somebody looks for a word in.
class ListForm : public controls::Form {
 public:
  explicit ListForm(controls::Desktop& desktop) : Form(desktop, "ListForm") {}
  controls::FlexGrid grid{*this, "grid"};

 protected:
  void Design() override {
    grid.SetFixedCols(0);
    grid.SetRows(1);
    grid.SetCols(3);
  }
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override {
    ADD_FAILURE() << routine << ": " << error.Description();
  }
};

class GridSearch : public testing::Test {
 protected:
  void Fill(std::initializer_list<std::initializer_list<std::string>> rows) {
    for (const auto& row : rows) form->grid.AppendRow(std::vector<std::string>(row));
  }
  /// The id of the line that the search makes current; "none" when it finds nothing.
  std::string Find(long column, std::string_view typed) {
    if (!goods::SearchInGrid(form->grid, column, typed)) return "none";
    return form->grid.TextMatrix(form->grid.Row(), 0);
  }

  support::ScriptedDesktop desktop;
  std::shared_ptr<ListForm> form = std::make_shared<ListForm>(desktop);
};

TEST_F(GridSearch, FindsTheFirstLineThatBeginsWithTheTypedTextWhateverItsCase) {
  Fill({{"1", "GR/7", "weekly order"}, {"2", "GR/9", " Monsoon stock "}, {"3", "GR/8", "moving sale"}, {"4", "GR/3", "monthly"}});

  EXPECT_EQ("2", Find(2, "MON"));  // the blank before "Monsoon" puts it first of all
  EXPECT_EQ("2", Find(2, "mons"));
  EXPECT_EQ("2", Find(2, "monsoon "));  // on the way to the next word
  EXPECT_EQ("3", Find(2, " mov"));
  EXPECT_EQ("1", Find(1, "gr/7"));
  EXPECT_EQ("none", Find(2, "monday"));
}

TEST_F(GridSearch, ComparesNumbersByValueAndFindsTheFirstOfThemWhateverTheirLength) {
  Fill({{"100"}, {"25"}, {"3"}, {"2"}, {"10"}, {"1"}, {"20"}});

  EXPECT_EQ("1", Find(0, "1"));
  EXPECT_EQ("2", Find(0, "2"));  // 10 stands between 2 and 20: halving alone would miss the first
  EXPECT_EQ("20", Find(0, "20"));
  EXPECT_EQ("100", Find(0, "100"));
  EXPECT_EQ("3", Find(0, "3.0"));
  EXPECT_EQ("none", Find(0, "7"));
}

TEST_F(GridSearch, ANumberIsFoundHoweverItIsWritten) {
  Fill({{"1", "", "8 boxes"}, {"2", "", "-7.5"}, {"3", "", "7 boxes"}, {"5", "", "Seven"}});
  EXPECT_EQ("3", Find(2, "07"));
  EXPECT_EQ("2", Find(2, "-7.5"));
  EXPECT_EQ("5", Find(2, "seven"));
}

TEST_F(GridSearch, ATypedZeroDoesNotFindWords) {
  Fill({{"1", "", "urgent"}, {"2", "", "0 left on shelf"}});
  EXPECT_EQ("2", Find(2, "0"));
  form->grid.SetTextMatrix(form->grid.Row(), 2, "none left");
  EXPECT_EQ("none", Find(2, "0"));
}

TEST_F(GridSearch, FindsACodeThatNumbersAroundItHideFromHalving) {
  Fill({{"10a"}, {"9"}, {"10"}, {"10b"}});  // each stands above the next: 9 and 10 as numbers, the others as text
  EXPECT_EQ("10b", Find(0, "10b"));
}

TEST_F(GridSearch, TheFoundLineIsSelectedFromSideToSideAndScrolledToTheTop) {
  Fill({{"1", "", "c"}, {"2", "", "b"}, {"3", "", "a"}});
  ASSERT_EQ("2", Find(2, "b"));
  EXPECT_EQ(2, form->grid.Row());
  EXPECT_EQ(2, form->grid.TopRow());
  EXPECT_EQ(0, form->grid.Col());
  EXPECT_EQ(2, form->grid.ColSel());
  EXPECT_EQ(form->grid.Row(), form->grid.RowSel());
}

TEST_F(GridSearch, ASearchInVainLeavesTheSameLineCurrentThoughItIsSortedElsewhere) {
  Fill({{"1", "", "zinc"}, {"2", "", "lead"}, {"3", "", "gold"}});
  form->grid.SetRow(1);
  EXPECT_EQ("none", Find(2, "x"));
  EXPECT_EQ("1", form->grid.TextMatrix(form->grid.Row(), 0));
  EXPECT_EQ(3, form->grid.Row());
}

TEST_F(GridSearch, SortsAllLinesEvenWhenSeveralAreSelected) {
  Fill({{"1", "", "d"}, {"2", "", "c"}, {"3", "", "b"}, {"4", "", "a"}});
  form->grid.SelectRange(1, 2);
  EXPECT_EQ("4", Find(2, "a"));
  EXPECT_EQ(1, form->grid.Row());
}

TEST_F(GridSearch, RowsAreNumberedIn16BitsAndThoseBeyondAreNotLookedAt) {
  form->grid.SetRows(32769);  // the heading and 32,768 lines
  form->grid.SetTextMatrix(1, 0, "beta");
  form->grid.SetTextMatrix(2, 0, "zeta");
  EXPECT_EQ("beta", Find(0, "b"));
  EXPECT_EQ(32767, form->grid.Row());
  EXPECT_EQ("none", Find(0, "z"));
}

}  // namespace
