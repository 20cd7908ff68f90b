#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

using Packing = ItemEntryShop;
using Availability = ItemEntryShop;

TEST_F(Packing, TheListShowsHowManyPacksTheQuantityMakes) {
  Add([&] {
    Scan("KT1012");
    EXPECT_EQ(Packings(), "Single= Inner box= Dozen=");
    support::Enter(form->txtQuantity, "25");
    EXPECT_EQ(Packings(), "Single= Inner box= Dozen=") << "not while typing";
    support::Press(form->txtQuantity, "Enter");
    EXPECT_EQ(Packings(), "Single=25.00 Inner box=4.17 Dozen=2.08");
    const auto color = [&](int line) { return form->lvwpacktype.Item(line).CellForeColor(2); };
    EXPECT_EQ(color(1), controls::kDefaultColor);
    EXPECT_EQ(color(3), controls::kRed) << "not whole";
    EXPECT_EQ(form->lvwpacktype.Item(3).SubItemToolTip(2), "24 or 36");
    support::Enter(form->txtQuantity, "0");
    support::Press(form->txtQuantity, "Enter");
    EXPECT_EQ(Packings(), "Single=0.00 Inner box=0.00 Dozen=0.00");
    EXPECT_EQ(color(3), controls::kDefaultColor);
    EXPECT_EQ(form->lvwpacktype.Item(3).SubItemToolTip(2), "");
  });
}

TEST_F(Packing, ALineIsShownWithItsPacks) {
  GivenLine(12, "30.000");
  Edit(1, [&] { EXPECT_EQ(Packings(), "Single=30.00 Inner box=5.00 Dozen=2.50"); });
}

TEST_F(Packing, OnlyActivePackingsWithACapacityForTheUnitAreListed) {
  Add([&] {
    Scan("KT1017");  // its carton is switched off
    EXPECT_EQ(Packings(), "Single=");
    Scan("KT1016");  // gift wrap has no capacity at all
    EXPECT_EQ(Packings(), "Single= Inner box= Carton=");
    shop.Run("update aItemPackingDetail set active = 0 where itemid = 17");
    Scan("KT1017");
    support::Enter(form->txtQuantity, "5");
    support::Press(form->txtQuantity, "Enter");
    EXPECT_EQ(form->lvwpacktype.Count(), 0);
  });
}

TEST_F(Packing, AListThatCannotBeReadShowsNoOtherItemsPackings) {
  Add([&] {
    Scan("KT1012");
    // The shop's type, barcode, shortcut, repeated codes, item code, reorder quantity, five for the availability, the packings.
    shop.log.FailAt(12);
    ExpectError("Connection broken by the test", "FillPackTypeinList", -2147217900);
    Scan("KT1001");
    EXPECT_EQ(ChosenItem() + Packings(), "Frying pan 20 cm");
    support::Click(form->cmdOk);
    EXPECT_EQ(LineCount(), 1);
  });
}

TEST_F(Packing, ACapacityOfZeroIsReportedAndTheRestKeepTheirCounts) {
  Add([&] {
    Scan("KT1012");
    support::Enter(form->txtQuantity, "24");
    support::Press(form->txtQuantity, "Enter");
    shop.Run("update aPackingTypeCapacityDetail set quantity = 0 where packingtypeid = 2 and unitsid = 1");
    support::Enter(form->txtQuantity, "48");
    ExpectError(vb::ErrorText(vb::kDivisionByZero), "Calcpacktypeqty", vb::kDivisionByZero);
    support::Press(form->txtQuantity, "Enter");
    EXPECT_EQ(Packings(), "Single=48.00 Inner box=4.00 Dozen=2.00");
    EXPECT_TRUE(form->txtreqcomments.HasFocus()) << "the entry goes on all the same";
  });
}

TEST_F(Availability, PromisedGoodsAreTakenOffTheGodownStock) {
  Add([&] {
    Scan("KT1012");
    // 65 in godowns, 10 on the way; issued to the department or to none: 4 and 2 open, 3 and 1 finished.
    EXPECT_EQ(form->txtavailqty.Text(), "45");
    Scan("KT1031");  // 12 on the way
    EXPECT_EQ(form->txtavailqty.Text(), shop.Row("select isnull(sum(gsstock),0) - 12 from smpGodownStock where gsitemid = 31"));
  });
}

TEST_F(Availability, MorePromisedThanThereIsShowsAsNegative) {
  shop.Run("delete from smpGodownStock where gsitemid = 31");
  Add([&] {
    Scan("KT1031");
    EXPECT_EQ(form->txtavailqty.Text(), "-12");
    Scan("KT1013");
    EXPECT_EQ(form->txtavailqty.Text(), shop.Row("select isnull(sum(gsstock),0) from smpGodownStock where gsitemid = 13"));
  });
}

TEST_F(Availability, WeighedGoodsThatAreAllPromisedShowNothing) {
  shop.Run(
      "delete from smpGodownStock where gsitemid = 31\ngo\n"
      "insert into smpGodownStock (godownid, gsitemid, gsstock) values (10, 31, 0.3)\ngo\n"
      "update meiDespatchToShopDetail set ddItemGoodQty = 0.1 where ddItemID = 31\ngo\n"
      "insert into ahqIssueNotedetail (INDIssuenoteID, INDItemID, INDQty) values (1, 31, 0.1), (2, 31, 0.1)");
  Add([&] {
    Scan("KT1031");
    EXPECT_EQ(form->txtavailqty.Text(), "0");
    shop.Run("update smpGodownStock set gsstock = 0.305 where gsitemid = 31");
    Scan("KT1031");
    EXPECT_EQ(form->txtavailqty.Text(), "0.005");
    form->txtavailqty.MouseMove.Fire();
    EXPECT_EQ(form->txtavailqty.ToolTipText(), "0.005");
  });
}

TEST_F(Availability, AnErrorLeavesTheFigureAndTheChosenItem) {
  Add([&] {
    Scan("KT1012");
    // Picking the item again asks for its reorder quantity, its department, and then for the stock.
    shop.log.FailAt(3);
    ExpectError("Connection broken by the test", "GetAvailableQuantity", -2147217900);
    support::Choose(form->cboItem, "Chef's knife 20 cm");
    EXPECT_EQ(form->txtavailqty.Text(), "45");
    EXPECT_EQ(form->txtQuantity.Text(), "48");
  });
}

}  // namespace
}  // namespace itementry_test
