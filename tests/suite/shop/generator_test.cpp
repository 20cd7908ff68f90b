#include "suite/shop/generator.h"

#include <gtest/gtest.h>

#include "tests/suite/shop/suite_database.h"

namespace {

class GrowingShop : public testing::Test {
 protected:
  GrowingShop() { suite::LoadSample(shop_.Get()); }

  int Count(const std::string& from) { return shop_.Number("select count(*) from " + from); }

  SuiteDatabase shop_;
};

TEST_F(GrowingShop, AddsWhatWasAskedForInsideTheRegistersRange) {
  suite::GenerateShop(shop_.Get(), suite::Scale{.requests = 250, .items = 130, .linesPerRequest = 4});

  EXPECT_EQ(Count("mosGoodsRequestHeader"), 40 + 250);
  EXPECT_EQ(Count("aItem"), 300 + 130);
  const std::string added = "mosGoodsRequestHeader h where GRHshopID = 1 and GRHrequestID > 28";
  EXPECT_EQ(Count(added + " and GRHrequestdate > '20240115' and GRHrequestdate <= '20240315' and GRHNoofDetails = 4"), 250);
  EXPECT_EQ(Count("mosGoodsRequestDetail where GRDshopID = 1 and GRDrequestID > 28"), 250 * 4);
  EXPECT_EQ(
      Count("(select distinct GRDrequestID, GRDitemID from mosGoodsRequestDetail where GRDshopID = 1 and GRDrequestID > 28) d"),
      250 * 4)
      << "an item is in a request only once";
  EXPECT_EQ(Count("(select distinct GRHrequestno from mosGoodsRequestHeader where GRHshopID = 1) n"), 28 + 250);
  for (const auto* state : {"GRHcancel = 1 and GRHcancelRemarks is not null", "GRHTransFinished = 1", "GRHIssuenotegenerated = 1",
                            "GRHcancel = 0 and GRHTransFinished = 0 and GRHIssuenotegenerated = 0 and GRHrequesttype = 'P'"})
    EXPECT_GT(Count(added + " and " + state), 0) << state;
}

TEST_F(GrowingShop, NewItemsCanBeFoundPackedPricedAndRequested) {
  suite::GenerateShop(shop_.Get(), 0, 200);

  EXPECT_EQ(
      Count(
          "aItem i inner join vwItemDescription v on v.ItemID = i.ItemId inner join aShopItemDetail s on s.ItemID = i.ItemId and "
          "s.ShopID = 1"
          " inner join aItemPackingDetail p on p.itemid = i.ItemId inner join losShopItemShipmentDetail d on d.ItemId = i.ItemId"
          " inner join vwInquiryShopStock k on k.itemid = i.ItemId and k.shopid = 1 inner join aUnit u on u.UnitId = i.UnitsId"
          " where i.ItemId > 300 and i.active = 1 and i.forsales = 1 and i.itemtype <> 'B' and v.code = i.ItemCode"),
      200);
  EXPECT_EQ(Count("(select distinct ItemCode from aItem) c"), 500);
  EXPECT_EQ(Count("mosGoodsRequestHeader"), 40);
}

TEST_F(GrowingShop, GrowsAgainWhereItStopped) {
  suite::GenerateShop(shop_.Get(), 10, 5);
  suite::GenerateShop(shop_.Get(), 10, 5);

  EXPECT_EQ(Count("mosGoodsRequestHeader"), 60);
  EXPECT_EQ(Count("aItem"), 310);
  EXPECT_EQ(shop_.Number("select max(GRHrequestID) from mosGoodsRequestHeader where GRHshopID = 1"), 48);
  EXPECT_EQ(Count("(select distinct GRHrequestno from mosGoodsRequestHeader where GRHshopID = 1) n"), 48);
}

TEST_F(GrowingShop, LeavesNothingBehindWhenItFails) {
  shop_.Connection().Execute("create table genItem (n int)");

  EXPECT_ANY_THROW(suite::GenerateShop(shop_.Get(), 10, 10));

  EXPECT_EQ(Count("aItem"), 300);
  EXPECT_EQ(Count("mosGoodsRequestHeader"), 40);
  shop_.Connection().Execute("drop table genItem");
  suite::GenerateShop(shop_.Get(), suite::Scale{.requests = -1, .items = -1, .linesPerRequest = -1});
  suite::GenerateShop(shop_.Get(), suite::Scale{.requests = 3, .items = 0, .linesPerRequest = 0});
  EXPECT_EQ(Count("mosGoodsRequestHeader where GRHNoofDetails = 0 and GRHrequestno like 'GX/%'"), 3);
}

}  // namespace
