#include <utility>

#include "tests/src/fetch/fetch_shop.h"

namespace fetch_test {
namespace {

using goods::FrmFetch;
using goods::ItemListMode;
using FetchLists = FetchShop;

TEST_F(FetchLists, StockOutItemsAreThoseBelowTheirLevelWithoutAPendingRequest) {
  Open(ItemListMode::StockOut, [&] {
    Filter("");
    EXPECT_TRUE(shop.log.Sent(
        "select a.itemid ,a.itemcode, v.itemdescription,a.brand,a.modelno,isnull(a.part_code,'')part_code  from "
        "vwInquiryShopStock ms, aitem a, vwitemdescription v, ashopitemdetail sd  Where a.active = 1 and a.itemID = ms.itemID "
        "and "
        "a.itemID = v.itemID  and a.itemtype <> 'B' and sd.itemid=a.itemid and sd.shopid=ms.shopid and sd.shopid=1 and "
        "sd.requestraised=0 group by sd.shopid,a.itemid ,a.itemcode, sd.itemReorderLevel,a.brand,a.modelno,v.itemdescription,"
        "a.part_code having sum(stock)< sd.itemReorderLevel and v.itemdescription like '%%' "));
    const std::string codes = Column(FrmFetch::kItemCode);
    EXPECT_NE(codes.find("KT1008;"), std::string::npos) << "stock -2, level 10";
    EXPECT_EQ(codes.find("KT1003;"), std::string::npos) << "stock at its level";
    EXPECT_EQ(codes.find("KT1006;"), std::string::npos) << "already requested";

    // Stock is summed over the item's rows, wherever the shop has it summed already.
    shop.Run("insert into smpShopStock (shopid, itemid, stock) values (1, 8, 12)");
    Filter("");
    EXPECT_EQ(Column(FrmFetch::kItemCode).find("KT1008;"), std::string::npos);
  });
  shop.session.gStrStockView = "vwInquiryShopStockSummary";
  Open(ItemListMode::StockOut, [&] { Filter("pot"); });
  EXPECT_NE(shop.log.lines.back().find(" from vwInquiryShopStockSummary ms, "), std::string::npos) << shop.log.lines.back();
}

TEST_F(FetchLists, ItemsOfGodownsComeFromTheProcedureAsAFilterAlone) {
  Open(ItemListMode::InGodownNotInShop, [&] {
    Filter("");
    EXPECT_TRUE(shop.log.Sent("spgodownitemnotinshop 1,' and v.itemdescription like ''%%'' '"));
    EXPECT_GT(RowsShown(), 1);
    EXPECT_NE(dialog->flexMaster.TextMatrix(1, FrmFetch::kItemCode), "");
  });
}

/// The shop's connection, where the procedure changes and counts rows before it selects any.
class CountingProcedure : public late::Object {
 public:
  explicit CountingProcedure(late::ObjectPtr connection) : connection_(std::move(connection)) {}
  bool givesRows = true;
  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override {
    const std::string text = arguments.empty() ? std::string() : arguments[0].TextOrEmpty();
    if (!text.starts_with("spgodownitemnotinshop")) return connection_->Invoke(member, access, arguments);
    const std::string counts = "update aUnit set UnitCode=UnitCode; update aCity set CityName=CityName";
    return connection_->Call(member, {givesRows ? counts + "; exec " + text : counts});
  }
  bool Has(std::string_view member) const override { return connection_->Has(member); }
  std::string TypeName() const override { return "Connection"; }

 private:
  late::ObjectPtr connection_;
};

TEST_F(FetchLists, AProcedureMayCountRowsBeforeItGivesAny) {
  const auto procedure = std::make_shared<CountingProcedure>(shop.session.gAdoCon.Object());
  shop.session.gAdoCon = ado::Connection(procedure);
  Open(ItemListMode::InGodownNotInShop, [&] {
    Filter("");
    EXPECT_NE(dialog->flexMaster.TextMatrix(1, FrmFetch::kItemCode), "");
    procedure->givesRows = false;
    Filter("");
    EXPECT_EQ(dialog->flexMaster.TextMatrix(1, FrmFetch::kItemCode), "") << "no rows are an empty list, not an error";
    EXPECT_EQ(1, RowsShown());
  });
}

TEST_F(FetchLists, ItemsThatTheShopDoesNotKeep) {
  Open(ItemListMode::NotInShop, [&] {
    Filter("saucepan");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1005;");
    shop.Run("update aItem set forsales = 0 where ItemId = 5");
    Filter("saucepan");
    EXPECT_EQ(Column(FrmFetch::kItemCode), ";");
  });
  shop.session.gIntShopID = 3;
  Open(ItemListMode::NotInShop, [&] {
    support::Choose(dialog->cboFetch, "ItemDescription");
    Filter("frying pan 20");
    EXPECT_EQ(Column(FrmFetch::kItemCode), "KT1001;") << "of this shop's list, not of any shop's";
  });
}

TEST_F(FetchLists, ShopsOfTypeBSeeItemsOfThatType) {
  shop.session.gIntShopID = 3;
  Open(ItemListMode::StockOut, [&] { Filter(""); });
  EXPECT_EQ(shop.session.gStrItemTypeFilter, " and a.itemtype = 'B'");
  Open(ItemListMode::AllInShop, [&] {
    EXPECT_EQ(dialog->cboFetch.Text(), "ItemCode");
    Filter("");
    EXPECT_EQ(std::to_string(RowsShown()), shop.Row("select count(*) from aShopItemDetail s inner join aItem a on a.ItemId = "
                                                    "s.ItemID where s.ShopID = 3 and a.active = 1 and a.itemtype = 'B'"));
    EXPECT_GT(RowsShown(), 1);
  });
}

}  // namespace
}  // namespace fetch_test
