#include "src/lists/register_row.h"

#include <gtest/gtest.h>

#include "src/register/frm_master.h"
#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace {

/// The register after its load, and requests that change after it.
class RegisterRow : public testing::Test {
 protected:
  void SetUp() override {
    shop.module.Register().Load();
    shop.log.Clear();
  }
  controls::FlexGrid& Grid() { return shop.module.Register().flexMaster; }
  goods::RegisterView View(std::string query = kQuery) { return {Grid(), std::move(query)}; }
  void Update(goods::RegisterView view, int id) {
    goods::UpdateEditedRow(shop.session, view, " GRHrequestID=" + std::to_string(id), id);
  }
  std::string RowText(long row) {
    std::string text;
    for (long column = 0; column < Grid().Cols(); ++column) text += (column > 0 ? "|" : "") + Grid().TextMatrix(row, column);
    return text;
  }
  void AddRequest(int id, const char* date) {
    shop.Run("insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno, GRHrequestdate, GRHremarks) values (" +
             std::to_string(id) + ", 1, 'GR24/99', '" + date + "', 'tab\there')");
  }

  static constexpr const char* kQuery =
      "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks,  CASE GRHcancel when 1 then 'Yes' when 0 then 'No' end , CASE "
      "GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from mosGoodsRequestHeader where GRHshopid=1  and grhrequestdate "
      ">'20240115' order by GRHrequestID";

  support::Shop shop;
  std::shared_ptr<support::ErrorNotes> errors = support::ErrorNotes::Install(shop.registry);
};

TEST_F(RegisterRow, ANewRequestBecomesTheLastRowAndTheCurrentOne) {
  AddRequest(40, "20240315");
  shop.session.gStrEntryMode = "N";
  Update(View(), 40);
  const long last = Grid().Rows() - 1;
  EXPECT_EQ("40|GR24/99|15/03/2024|tab\there|No|No", RowText(last));
  EXPECT_EQ(last, Grid().Row());
  EXPECT_EQ(last, Grid().TopRow());
  EXPECT_EQ(
      std::vector<std::string>{
          "select GRHrequestID,GRHrequestno,GRHrequestdate,GRHremarks,  CASE GRHcancel when 1 then 'Yes' when 0 then 'No' "
          "end , CASE GRHtransfinished when 1 then 'Yes' when 0 then 'No' end from mosGoodsRequestHeader where GRHshopid=1  "
          "and grhrequestdate >'20240115'  and  GRHrequestID=40"},
      shop.log.lines);
}

TEST_F(RegisterRow, TheFirstRequestOfAShopTakesThePlaceholdersRow) {
  Grid().Clear();
  Grid().SetRows(2);
  AddRequest(40, "20240315");
  shop.session.gStrEntryMode = "N";
  Update(View(), 40);
  EXPECT_EQ(2, Grid().Rows());
  EXPECT_EQ("40", Grid().TextMatrix(1, 0));
  Update(View(), 13);
  EXPECT_EQ(3, Grid().Rows());
}

TEST_F(RegisterRow, AnEditedRequestIsOverwrittenWhereItStands) {
  shop.Run("update mosGoodsRequestHeader set GRHremarks=null, GRHTransFinished=1 where GRHshopID=1 and GRHrequestID=20");
  shop.session.gStrEntryMode = "E";
  const long rows = Grid().Rows();
  const long current = Grid().Row();
  Update(View(), 20);
  EXPECT_EQ("20|GR24/12|20/02/2024||No|Yes", RowText(8));
  EXPECT_EQ(rows, Grid().Rows());
  EXPECT_EQ(current, Grid().Row());
}

TEST_F(RegisterRow, ARequestThatTheListDoesNotHoldChangesNothing) {
  const std::string first = RowText(1);
  const long rows = Grid().Rows();
  AddRequest(40, "20240115");  // dated on the from-date
  for (const char* mode : {"N", "E"}) {
    shop.session.gStrEntryMode = mode;
    Update(View(), 40);
    Update(View(), 4711);
  }
  shop.session.gStrEntryMode = "E";
  Grid().RemoveItem(1);  // listed by the query, gone from the grid
  Update(View(), 13);
  EXPECT_EQ(rows - 1, Grid().Rows());
  EXPECT_EQ("14", Grid().TextMatrix(1, 0));
}

TEST_F(RegisterRow, AQueryWithoutConditionGetsOne) {
  shop.session.gStrEntryMode = "E";
  Update(View("select GRHrequestID,'seen' from mosGoodsRequestHeader ORDER BY 1"), 13);
  EXPECT_EQ("seen", Grid().TextMatrix(1, 1));
  EXPECT_EQ("Workshop fitting, project", Grid().TextMatrix(1, 3));  // columns that the query does not give stay
  EXPECT_EQ(std::vector<std::string>{"select GRHrequestID,'seen' from mosGoodsRequestHeader  where  GRHrequestID=13"},
            shop.log.lines);
}

TEST_F(RegisterRow, AnErrorIsReportedUnderTheNameTheErrorLogKnows) {
  shop.session.gStrEntryMode = "E";
  shop.log.FailAt(1);
  Update(View(), 13);
  ASSERT_EQ(1u, errors->lines.size());
  EXPECT_TRUE(errors->lines[0].starts_with("basGoodsPurchase|UpdateEditedRow|")) << errors->lines[0];
}

}  // namespace
