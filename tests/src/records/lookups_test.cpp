#include <gtest/gtest.h>

#include "base/controls/text_box.h"
#include "src/lists/list_views.h"
#include "src/records/item_lookups.h"
#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace {

class ListForm : public controls::Form {
 public:
  explicit ListForm(controls::Desktop& desktop) : Form(desktop, "ListForm") {}
  controls::TextBox first{*this, "first"};
  controls::ListView lvwrequest{*this, "lvwrequest"};

 protected:
  void Design() override {
    for (const char* heading : {"Sl No.", "Item Code", "Item Name", "Qty."}) lvwrequest.AddColumn(heading, 1000);
  }
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override {
    ADD_FAILURE() << routine << ": " << error.Description();
  }
};

class Lookups : public testing::Test {
 protected:
  support::Shop shop;
  std::shared_ptr<support::ErrorNotes> errors = support::ErrorNotes::Install(shop.registry);
  std::shared_ptr<ListForm> form = std::make_shared<ListForm>(shop.desktop);
};

TEST_F(Lookups, TheUnitOfAnItem) {
  shop.Run("update aUnit set UnitCode='CTN' where UnitId=(select UnitsId from aItem where ItemId=1)");
  EXPECT_EQ("CTN", goods::GetItemUnitCode(shop.session, 1));
  EXPECT_TRUE(shop.log.Sent("select u.UnitCode from aItem i, aUnit u where i.UnitsId = u.UnitId AND i.ItemId = 1"));
  EXPECT_EQ("", goods::GetItemUnitCode(shop.session, 999999));
  EXPECT_TRUE(errors->lines.empty());
  shop.log.FailAt(1);
  EXPECT_EQ("", goods::GetItemUnitCode(shop.session, 1));
  EXPECT_EQ(1u, errors->lines.size());
}

TEST_F(Lookups, TheSellingPriceIsHeadOfficesWhereItIsFixedThereElseTheShops) {
  shop.Run(
      "delete losShopItemShipmentDetail where ItemId=4\ngo\n"
      "insert into losShopItemShipmentDetail (ItemId, PackingTypeId, ShopId, SellingPrice) select ItemId, PackingTypeId, null, "
      "10.5 from vwItemRetailPacking where ItemId=4\ngo\n"
      "insert into losShopItemShipmentDetail (ItemId, PackingTypeId, ShopId, SellingPrice) select ItemId, PackingTypeId, 1, "
      "12.25 "
      "from vwItemRetailPacking where ItemId=4\ngo\n"
      "update aItem set PriceFixedAtHq=1 where ItemId=4");
  EXPECT_DOUBLE_EQ(10.5, goods::GetItemSellingPrice(shop.session, 4, 1));
  for (const char* fixed : {"0", "null"}) {
    shop.Run("update aItem set PriceFixedAtHq=" + std::string(fixed) + " where ItemId=4");
    EXPECT_DOUBLE_EQ(12.25, goods::GetItemSellingPrice(shop.session, 4, 1));
    EXPECT_DOUBLE_EQ(0, goods::GetItemSellingPrice(shop.session, 4, 2));  // no shipment to that shop
  }
  shop.Run("update losShopItemShipmentDetail set SellingPrice=null where ItemId=4");
  EXPECT_DOUBLE_EQ(0, goods::GetItemSellingPrice(shop.session, 4, 1));
  EXPECT_TRUE(errors->lines.empty());
  EXPECT_TRUE(shop.log.Sent("SELECT PriceFixedAtHq FROM aItem WHERE ItemId = 4"));
  EXPECT_TRUE(
      shop.log.Sent("SELECT SellingPrice  FROM vwItemRetailPacking irp,  losShopItemShipmentDetail sisd WHERE irp.ItemId = "
                    "sisd.ItemId AND irp.PackingTypeId = sisd.PackingTypeId AND sisd.ItemId = 4 AND sisd.ShopId IS NULL"));
}

TEST_F(Lookups, AListTakesItsStoredWidthsAndAlignments) {
  shop.Run(
      "delete aListviewDetails\ngo\n"
      "insert into aListviewDetails (lvwdid, lvwcolid, lvwdcolwidth, lvwdcolalign) values (1, '2', 2222, 1)\ngo\n"
      "insert into aListviewDetails (lvwdid, lvwcolid, lvwdcolwidth, lvwdcolalign) values (1, '3', null, 2)");
  goods::ApplyListviewLayout(shop.session, form->lvwrequest, " goodsRequest ", "GOODSREQUEST");
  EXPECT_EQ(1000, form->lvwrequest.Column(1).width);
  EXPECT_EQ(2222, form->lvwrequest.Column(2).width);
  EXPECT_EQ(controls::ColumnAlignment::Right, form->lvwrequest.Column(2).alignment);
  EXPECT_EQ(1000, form->lvwrequest.Column(3).width);
  EXPECT_EQ(controls::ColumnAlignment::Center, form->lvwrequest.Column(3).alignment);
  EXPECT_TRUE(
      shop.log.Sent("select * from alistviewdetails where lvwdid=(select lvwid from alistviewheader where   "
                    "ltrim(rtrim(upper(lvwtransname)))='GOODSREQUEST' and ltrim(rtrim(upper(lvwname)))='LVWREQUEST' and "
                    "ltrim(rtrim(upper(lvwmodulename)))='GOODSREQUEST')"));
}

TEST_F(Lookups, AStoredColumnThatTheListLacksIsReported) {
  goods::ApplyListviewLayout(shop.session, form->lvwrequest, "GoodsRequest", "GoodsRequest");  // the layout has eight columns
  EXPECT_EQ(std::vector<std::string>{"basGoodsPurchase|ApplyListviewLayout|35600|"}, errors->lines);
  EXPECT_EQ(3000, form->lvwrequest.Column(3).width);
}

TEST_F(Lookups, CountsTheCheckedLines) {
  EXPECT_EQ(0, goods::CountCheckedItems(form->lvwrequest));
  for (int line = 1; line <= 5; ++line) form->lvwrequest.Add(std::to_string(line)).SetChecked(line % 2 == 1);
  EXPECT_EQ(3, goods::CountCheckedItems(form->lvwrequest));
}

}  // namespace
