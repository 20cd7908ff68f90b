#include "tests/src/register/register_day.h"

namespace {

using controls::kRed;

class SearchAndSort : public RegisterDay {
 protected:
  void SortOn(const char* heading) { support::Choose(Register().cboColNames, heading); }
  /// Every cancelled request is red, and no other.
  void ExpectRedRowsInPlace() {
    for (long row = 1; row < Grid().Rows(); ++row) {
      const bool cancelled = Grid().TextMatrix(row, goods::kRegisterCancelled) == "Yes";
      EXPECT_EQ(cancelled ? kRed : controls::kDefaultColor, Grid().CellForeColor(row, 3)) << RowText(row);
    }
  }
};

TEST_F(SearchAndSort, TheDateHeadingSortsByIdBecauseIdsGrowWithTheDate) {
  Open([&] {
    support::Click(Register().optDescend);
    SortOn("Request Date");
    // 24 was typed in late, with an earlier date than 19 to 23: the id decides.
    EXPECT_EQ("28 27 26 25 24 23 22 21 20 19 18 17 16 15 14 13", Listed());
    ExpectRedRowsInPlace();
  });
}

TEST_F(SearchAndSort, TextSortsCaseSensitivelyAndTheCurrentRequestStaysCurrent) {
  shop.Run("update mosGoodsRequestHeader set GRHremarks='apples' where GRHshopID=1 and GRHrequestID=13");
  Open([&] {
    GoTo(16);
    SortOn("Remarks");
    EXPECT_EQ("16", CurrentId());
    EXPECT_EQ(kRed, Grid().BackColorSel());
    EXPECT_EQ("NEP", Enabled());
    EXPECT_EQ("13", Grid().TextMatrix(Grid().Rows() - 1, 0));  // small letters stand behind all capitals
    ExpectRedRowsInPlace();
    EXPECT_TRUE(shop.desktop.sawHourglass);
    EXPECT_EQ(0, shop.desktop.hourglasses);
  });
}

TEST_F(SearchAndSort, NumbersSortByValueWhereTheCurrentCellIsANumber) {
  shop.Run("update mosGoodsRequestHeader set GRHrequestno='2' where GRHshopID=2 and GRHrequestID=5");
  shop.Run("update mosGoodsRequestHeader set GRHrequestno='10' where GRHshopID=2 and GRHrequestID=6");
  shop.Run("update mosGoodsRequestHeader set GRHrequestno='9' where GRHshopID=2 and GRHrequestID=7");
  shop.Run("update mosGoodsRequestHeader set GRHrequestno='1' where GRHshopID=2 and GRHrequestID=8");
  Open({9, 2, 1}, [&] {
    SortOn("Request No");
    EXPECT_EQ("8 5 7 6", Listed());
    support::Click(Register().optDescend);
    SortOn("Request No");
    EXPECT_EQ("6 7 5 8", Listed());
    Grid().SetTextMatrix(Grid().Row(), goods::kRegisterNo, "10A");  // a word: now the column is text
    support::Click(Register().optAscend);
    SortOn("Request No");
    EXPECT_EQ("1", Grid().TextMatrix(1, goods::kRegisterNo));
    EXPECT_EQ("10", Grid().TextMatrix(2, goods::kRegisterNo));
  });
}

TEST_F(SearchAndSort, ANewDirectionSortsOnlyOnceAColumnIsChosenAgain) {
  Open([&] {
    SortOn("Request ID");
    const std::string ascending = Listed();
    support::Click(Register().optDescend);
    EXPECT_EQ(-1, Register().cboColNames.ListIndex());
    EXPECT_EQ(ascending, Listed());
    SortOn("Request ID");
    EXPECT_EQ("28", Grid().TextMatrix(1, 0));
  });
}

TEST_F(SearchAndSort, SortsEveryRowAlthoughSeveralAreSelected) {
  Open([&] {
    Grid().SelectRange(2, 4);
    support::Click(Register().optDescend);
    SortOn("Request ID");
    EXPECT_EQ("28", Grid().TextMatrix(1, 0));
    EXPECT_EQ("14", CurrentId());
  });
}

TEST_F(SearchAndSort, TypingFindsTheRequestInTheChosenColumn) {
  Open([&] {
    support::Type(Register().txtsearch, "Toys");
    EXPECT_EQ("13", CurrentId());  // no column chosen yet
    support::Choose(Register().cboSearch, "Remarks");
    support::Enter(Register().txtsearch, "toys");
    EXPECT_EQ("20", CurrentId());
    EXPECT_EQ(Grid().Row(), Grid().TopRow());
    EXPECT_EQ("NEDP", Enabled());
    support::Enter(Register().txtsearch, "customer order, c");
    EXPECT_EQ("16", CurrentId());
    EXPECT_EQ("NEP", Enabled());  // cancelled
    EXPECT_EQ(kRed, Grid().BackColorSel());
    support::Enter(Register().txtsearch, "customer order, z");
    EXPECT_EQ("16", CurrentId());
    support::Choose(Register().cboSearch, "Request ID");
    support::Enter(Register().txtsearch, "2");
    EXPECT_EQ("20", CurrentId());
    ExpectRedRowsInPlace();
  });
}

TEST_F(SearchAndSort, ItsKeyLeadsToTheBoxAndWhatIsNotFoundIsToldThere) {
  Open([&] {
    controls::TextBox& box = Register().txtsearch;
    const controls::Color own = box.ForeColor();
    support::Press(Grid(), "Alt+S");
    EXPECT_TRUE(box.HasFocus());
    EXPECT_EQ("Request No", Register().cboSearch.Text());
    support::Type(box, "GR24/12");
    EXPECT_EQ("20", CurrentId());
    support::Choose(Register().cboSearch, "Remarks");
    support::Press(Grid(), "Alt+S");
    EXPECT_EQ("Remarks", Register().cboSearch.Text()) << "a column that is chosen stays";
    EXPECT_EQ(0, shop.desktop.alarms);

    support::Type(box, "toyz");  // over what was looked for before
    EXPECT_EQ("toyz", box.Text());
    EXPECT_EQ("20", CurrentId());
    EXPECT_EQ(kRed, box.ForeColor());
    EXPECT_EQ(1, shop.desktop.alarms);
    support::Press(box, "Left");
    EXPECT_EQ(1, shop.desktop.alarms) << "once a text";
    support::Press(box, "Right");
    support::Press(box, "Backspace");
    EXPECT_EQ(own, box.ForeColor());
    support::Type(box, "z");
    EXPECT_EQ(2, shop.desktop.alarms);
    support::Enter(box, "");
    EXPECT_EQ(own, box.ForeColor());
  });
  Open([&] { EXPECT_EQ(-1, Register().cboSearch.ListIndex()) << "nothing is chosen before somebody goes there"; });
}

TEST_F(SearchAndSort, EnterMovesThroughTheBrowseControls) {
  Open([&] {
    Register().cboColNames.SetFocus();
    std::vector<std::string> visited;
    while (visited.size() < 5) {
      controls::Control* const at = Register().ActiveControl();
      visited.push_back(at->Name());
      support::Press(*at, "Enter");
    }
    EXPECT_EQ((std::vector<std::string>{"cboColNames", "optAscend", "optDescend", "cboSearch", "txtsearch"}), visited);
  });
}

TEST_F(SearchAndSort, AHeadingSortsTurnsRoundAndLeavesTheSelectedRequestSelected) {
  Open([&] {
    GoTo(20);
    Grid().ClickHeading(goods::kRegisterRemarks);
    const std::string ascending = Listed();
    EXPECT_EQ("Remarks", Register().cboColNames.Text());
    EXPECT_EQ(goods::kRegisterRemarks, Grid().SortedCol());
    EXPECT_TRUE(Grid().SortedAscending());
    EXPECT_EQ("20", CurrentId());
    shop.desktop.ExpectForm("frmRequest");
    support::Click(Register().CmdEdit);  // asks for no other request than the one selected

    Grid().ClickHeading(goods::kRegisterRemarks);
    EXPECT_NE(ascending, Listed());
    EXPECT_TRUE(Register().optDescend.Value());
    EXPECT_EQ("Remarks", Register().cboColNames.Text());
    EXPECT_FALSE(Grid().SortedAscending());
    EXPECT_EQ("20", CurrentId());
    EXPECT_EQ(Grid().Cols() - 1, Grid().ColSel());

    Grid().ClickHeading(goods::kRegisterDate);
    EXPECT_EQ("13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28", Listed()) << "by id, and ascending again";
    EXPECT_TRUE(Register().optAscend.Value());
    ExpectRedRowsInPlace();

    // However else the list is sorted, no arrow says otherwise.
    SortOn("Remarks");
    EXPECT_EQ(-1, Grid().SortedCol());
    Grid().ClickHeading(goods::kRegisterRemarks);
    support::Choose(Register().cboSearch, "Request ID");
    support::Type(Register().txtsearch, "2");
    EXPECT_EQ(-1, Grid().SortedCol());
  });
  EXPECT_EQ(std::vector<std::string>(), errors->lines);
}

}  // namespace
