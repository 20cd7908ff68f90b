#include "suite/helpers/frm_lookup.h"
#include "tests/src/itementry/item_entry_shop.h"
#include "tests/src/itementry/recording_lookup.h"

namespace itementry_test {
namespace {

class ItemLists : public ItemEntryShop {
 protected:
  /// Puts this one row into the recordset that the lookup was handed, as a user's choice would.
  void TakesTheRow(std::string_view query) {
    diary->cancelled = false;
    diary->onShow = [this, query = std::string(query)] {
      diary->handed.CloseIfOpen();
      diary->handed.Open(query, session.gAdoCon, ado::kStatic);
    };
  }
  bool WasTold(std::string_view line) const {
    return std::find(diary->told.begin(), diary->told.end(), line) != diary->told.end();
  }

  std::shared_ptr<LookupDiary> diary = InstallRecordingLookup(shop.registry);
};

constexpr std::string_view kKettleFilter =
    "select a.ItemId itemid, a.ItemCode itemcode, v.ItemDescription itemdescription, a.part_code from aItem a"
    " inner join vwItemDescription v on v.ItemID = a.ItemId where a.ItemId = ";

TEST_F(ItemLists, TheLookupIsToldEverythingInItsOrder) {
  Add([&] {
    support::Click(form->optall);
    diary->told.clear();
    support::Press(form->txtitemcode, "F3");
    const std::vector<std::string> expected{
        "adocon=<Connection>",
        "strMsgboxTitle=Shop",
        "lngUserID=1",
        "strQuery=select a.itemid,a.itemcode,v.itemdescription ,a.brand,a.modelno,isnull(a.part_code,'')part_code  from "
        "ashopitemdetail s,vwitemdescription v, aitem a where a.itemid = v.itemid  and a.itemtype <> 'B' and s.itemid = v.itemid "
        "and s.shopid = 1 and a.Active = 1 and forsales=1",
        "setRecordSet=<Recordset>",
        "setFieldNames=ItemID,ItemCode,ItemDescription,Brand,ModelNo,Part_Code",
        "setFieldCaptions=Item ID,Item Code,Item Description,Brand,Model No,Part Code",
        "setFieldWidths=0,2000,4000,2000,2000,2000",
        "setDefaultFetchField=2",
        "setInterfaceCaption=Item Fetch",
        "setShopId=1",
        "setFetchType=I",
        "setLocationType=S",
        "PreserveData=True",
        "InterfaceId=1503",
        "DataIdentifier=03",
        "ForcedRefresh=True",
        "Show",
    };
    EXPECT_EQ(diary->told, expected);
    EXPECT_EQ(session.gStrFetchMode, "QUERY3");
  });
}

TEST_F(ItemLists, EachOptionHasItsList) {
  Add([&] {
    support::Click(form->optStockoutitems);
    support::Click(form->cmdFetch);
    EXPECT_TRUE(WasTold(
        "strQuery=select a.itemid ,a.itemcode, v.itemdescription,a.brand,a.modelno,isnull(a.part_code,'')part_code  from "
        "vwInquiryShopStock ms, aitem a, vwitemdescription v, ashopitemdetail sd  Where a.active = 1 and forsales=1 and a.itemID "
        "= "
        "ms.itemID and a.itemID = v.itemID  and a.itemtype <> 'B' and sd.itemid=a.itemid and sd.shopid=ms.shopid and sd.shopid=1 "
        "group by sd.shopid,a.itemid ,a.itemcode, sd.itemReorderLevel,a.brand,a.modelno,v.itemdescription,a.part_code having "
        "sum(stock)< = sd.itemReorderLevel"));
    EXPECT_TRUE(WasTold("DataIdentifier=01"));
    support::Click(form->optAvaingodnotinshop);
    support::Click(form->cmdFetch);
    EXPECT_TRUE(WasTold("strQuery= spgodownitemnotinshop 1, '',1"));
    EXPECT_TRUE(WasTold("DataIdentifier=02"));
    support::Click(form->optItemsNotInShop);
    support::Click(form->cmdFetch);
    EXPECT_TRUE(
        WasTold("strQuery=select i.ItemId, i.ItemCode, v.ItemDescription, i.Brand, i.ModelNo,  isnull(i.part_code,'')part_code "
                "from aItem i inner join vwitemdescription v on i.ItemId=v.ItemId left outer join aShopItemDetail si on "
                "i.ItemId=si.ItemId and si.ShopId=1 where si.ItemId is null and Active=1 and forsales=1"));
    EXPECT_TRUE(WasTold("DataIdentifier=04"));
  });
}

TEST_F(ItemLists, AShopOfTypeBIsOfferedItsItemsFromItsOwnStockFigures) {
  shop.Run("update aPackageSettings set TransactionsSummary = 1");
  LogOnTo(3);
  const auto asked = [&](controls::OptionButton& option) {
    support::Click(option);
    diary->told.clear();
    support::Click(form->cmdFetch);
    EXPECT_TRUE(WasTold("PreserveData=False")) << "the shop wants every list anew";
    return *std::find_if(diary->told.begin(), diary->told.end(),
                         [](const std::string& line) { return line.starts_with("strQuery="); });
  };
  Add([&] {
    const std::string stockOut = asked(form->optStockoutitems);
    EXPECT_NE(stockOut.find(" from vwInquiryShopStockSummary ms, "), std::string::npos) << stockOut;
    EXPECT_NE(stockOut.find(" a.itemID = v.itemID  and a.itemtype = 'B' and sd.itemid=a.itemid "), std::string::npos) << stockOut;
    const std::string all = asked(form->optall);
    EXPECT_NE(all.find(" where a.itemid = v.itemid  and a.itemtype = 'B' and s.itemid = v.itemid "), std::string::npos) << all;
    EXPECT_EQ(asked(form->optAvaingodnotinshop), "strQuery= spgodownitemnotinshop 3, '',1");
  });
}

TEST_F(ItemLists, OnlyAnotherModeForcesARefreshAndTheModeOutlivesTheForm) {
  const auto refreshes = [&] {
    std::string flags;
    for (const std::string& line : diary->told) {
      if (line.starts_with("ForcedRefresh=")) flags += line.substr(14) + " ";
    }
    return flags;
  };
  diary->onShow = [&] {
    if (!diary->handed.IsOpen()) diary->handed.Open(std::string(kKettleFilter) + "258", session.gAdoCon, ado::kStatic);
  };
  Add([&] {
    support::Click(form->cmdFetch);
    support::Click(form->cmdFetch);
  });
  Add([&] {
    support::Click(form->cmdFetch);
    EXPECT_TRUE(session.gRsFetchItems.IsOpen()) << "the list is still there from the form before";
    support::Click(form->optItemsNotInShop);
    diary->onTake = [](late::Value& recordset) {
      EXPECT_FALSE(ado::Recordset(recordset.ToObject()).IsOpen()) << "no other mode's rows are handed over";
    };
    support::Click(form->cmdFetch);
    diary->onTake = nullptr;
    support::Click(form->cmdFetch);
  });
  EXPECT_EQ(refreshes(), "True False False True False ");
  Add([&] { EXPECT_TRUE(form->optItemsNotInShop.Value()); });
}

TEST_F(ItemLists, TheShopsPreferredFieldIsSearchedFirst) {
  const std::vector<std::pair<std::string, std::string>> preferences{
      {"itemcode", "1"}, {"PART_CODE", "5"}, {"ItemID", "2"}, {"colour", "2"}};
  for (const auto& [preferred, index] : preferences) {
    shop.Run("update LOsSettings set defaultfetch = '" + preferred + "' where ShopID = 1");
    diary->told.clear();
    Add([&] { support::Click(form->cmdFetch); });
    EXPECT_TRUE(WasTold("setDefaultFetchField=" + index)) << preferred;
  }
}

TEST_F(ItemLists, TheChosenRowComesIntoTheForm) {
  TakesTheRow(std::string(kKettleFilter) + "258");
  Add([&] {
    Scan("KT1012");
    support::Press(form->txtQuantity, "F3");
    EXPECT_EQ(ChosenItem(), "Kettle limescale filter");
    EXPECT_EQ(form->cboItem.ListCount(), 1);
    EXPECT_EQ(form->txtitemcode.Text(), "SP1001");
    EXPECT_EQ(form->txtpartcode.Text(), "KE17-703");
    EXPECT_EQ(Packings(), "Single= Inner box= Carton=");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    TakesTheRow(std::string(kKettleFilter) + "1");  // without a part code
    support::Press(form->txtQuantity, "F3");
    EXPECT_EQ(form->txtpartcode.Text(), "");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(1), "1|KT1001|Frying pan 20 cm|40.000|1||PCS|");
  });
}

TEST_F(ItemLists, TheLookupMayHandBackARecordsetOfItsOwn) {
  TakesTheRow(std::string(kKettleFilter) + "258");
  diary->onTake = [&](late::Value& recordset) { recordset = shop.registry.Create("ADODB.Recordset"); };
  Add([&] {
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem(), "Kettle limescale filter");
    EXPECT_EQ(session.gRsFetchItems.Object(), diary->handed.Object());
  });
}

TEST_F(ItemLists, AListOnTheServerThatASaveHasEndedGivesWayToAFreshOne) {
  diary->onTake = [&](late::Value& recordset) {
    EXPECT_EQ(ado::Recordset(recordset.ToObject()).Object()->Get("CursorLocation").ToInt32(), ado::kUseClient);
    recordset = shop.registry.Create("ADODB.Recordset");
  };
  TakesTheRow(std::string(kKettleFilter) + "258");
  Add([&] {
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem(), "Kettle limescale filter");
    session.gAdoCon.BeginTrans();
    session.gAdoCon.ExecuteNoRecords("update aUnit set UnitCode = UnitCode");
    session.gAdoCon.CommitTrans();
    diary->onTake = [&](late::Value& recordset) { EXPECT_FALSE(ado::Recordset(recordset.ToObject()).IsOpen()); };
    TakesTheRow(std::string(kKettleFilter) + "1");
    support::Click(form->optItemsNotInShop);
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
  });
}

TEST_F(ItemLists, ACancelledOrEmptyFetchChangesNothing) {
  Add([&] {
    Scan("KT1012");
    support::Enter(form->txtQuantity, "7");
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem() + form->txtitemcode.Text() + form->txtQuantity.Text(), "Chef's knife 20 cmKT10127");
    TakesTheRow(std::string(kKettleFilter) + "-1");
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem() + form->txtitemcode.Text() + form->txtQuantity.Text(), "Chef's knife 20 cmKT10127");
  });
}

TEST_F(ItemLists, AFailingListLeavesTheFormAsItWas) {
  Add([&] {
    Scan("KT1012");
    diary->onShow = [] { vb::Raise(2812, "Could not find stored procedure 'spgodownitemnotinshop'"); };
    ExpectError("Could not find stored procedure 'spgodownitemnotinshop'", "FillItemList", 2812);
    support::Click(form->cmdFetch);
    EXPECT_EQ(ChosenItem(), "Chef's knife 20 cm");
    EXPECT_EQ(form->txtitemcode.Text(), "KT1012");
  });
}

using SuiteLookup = ItemEntryShop;

TEST_F(SuiteLookup, ItemsAreChosenInTheSuitesOwnLookup) {
  Add([&] {
    shop.desktop.ExpectForm("frmLookup", [](controls::Form& opened) {
      auto& lookup = dynamic_cast<suite::frmLookup&>(opened);
      support::Enter(lookup.txtsearch, "Knife set 8");
      support::Click(lookup.cmdOk);
    });
    support::Press(form->txtitemcode, "F3");
    EXPECT_EQ(ChosenItem(), "Knife set 8 pieces with block");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    support::Click(form->cmdOk);
    EXPECT_EQ(editor->lvwrequest.Item(1).SubItem(goods::kLineItemCode), "KT1016");

    // Picked with the cursor in the quantity already, the proposal there is typed over.
    support::Type(form->txtQuantity, "1");
    shop.desktop.ExpectForm("frmLookup", [](controls::Form& opened) {
      auto& lookup = dynamic_cast<suite::frmLookup&>(opened);
      support::Enter(lookup.txtsearch, "Frying pan 20");
      support::Click(lookup.cmdOk);
    });
    support::Press(form->txtQuantity, "F3");
    EXPECT_EQ(form->txtQuantity.Text(), "40");
    support::Type(form->txtQuantity, "12");
    EXPECT_EQ(form->txtQuantity.Text(), "12");
    support::Click(form->cmdOk);

    // After the line is added its item is still in the combo: closing the lookup must not choose it again.
    shop.desktop.ExpectForm("frmLookup", [](controls::Form& lookup) { lookup.CloseByUser(); });
    support::Press(form->txtitemcode, "F3");
    EXPECT_EQ(ChosenItem(), "");
    EXPECT_EQ(form->txtQuantity.Text(), "");
    EXPECT_TRUE(form->txtitemcode.HasFocus());
  });
}

/// Opens the lookup, lets the user look, and leaves it with Esc.
class SuiteLookupRows : public ItemEntryShop {
 protected:
  std::string Listed() {
    std::string codes;
    shop.desktop.ExpectForm("frmLookup", [&](controls::Form& opened) {
      auto& lookup = dynamic_cast<suite::frmLookup&>(opened);
      for (long row = 1; row < lookup.flexMaster.Rows(); ++row) codes += lookup.flexMaster.TextMatrix(row, 1) + " ";
      support::Press(lookup.txtsearch, "Esc");
    });
    support::Click(form->cmdFetch);
    return codes;
  }
};

TEST_F(SuiteLookupRows, AnItemIsOutOfStockByTheSumOfItsStockRows) {
  shop.Run(
      "delete from aShopItemDetail where ShopID = 1 and ItemID > 5\ngo\n"
      "update aShopItemDetail set ItemReorderLevel = 7 where ShopID = 1\ngo\n"
      "delete from smpShopStock where shopid = 1 and itemid <= 5\ngo\n"
      // At the level, above it, below nothing, out of use; the fourth has no stock rows at all, the fifth is not in the list.
      "insert into smpShopStock (shopid, itemid, stock) values (1, 1, 3), (1, 1, 4), (1, 2, 4), (1, 2, 3.001), (1, 3, -2), (1, "
      "5, 0)"
      "\ngo\nupdate aItem set active = 1, forsales = 1 where ItemId <= 5");
  Add([&] {
    support::Click(form->optStockoutitems);
    EXPECT_EQ(Listed(), "KT1001 KT1003 ");
    shop.Run("update aItem set active = 0 where ItemId = 1");
    support::Click(form->optall);
    support::Click(form->optStockoutitems);
    EXPECT_EQ(Listed(), "KT1001 KT1003 ") << "the list on offer is kept as long as no other was looked at";
    support::Click(form->optall);
    EXPECT_EQ(Listed(), "KT1002 KT1003 KT1004 ");
    support::Click(form->optStockoutitems);
    EXPECT_EQ(Listed(), "KT1003 ");
  });
}

TEST_F(SuiteLookupRows, AFormOpenedAgainInTheSameModeShowsTheListItHas) {
  std::string listed;
  Add([&] {
    support::Click(form->optItemsNotInShop);
    listed = Listed();
  });
  shop.log.Clear();
  Add([&] { EXPECT_EQ(Listed(), listed); });
  EXPECT_EQ(shop.log.Starting("select i.ItemId").size(), 0U);
}

TEST_F(SuiteLookupRows, AListThatTheServerFailsIsReadAtTheNextAttempt) {
  Add([&] {
    support::Click(form->optItemsNotInShop);
    const std::string list = Listed();
    support::Click(form->optAvaingodnotinshop);
    Scan("KT1012");
    support::Enter(form->txtQuantity, "7");
    shop.log.FailAt(2);  // behind the preferred field
    ExpectError("Connection broken by the test", "FillItemList", -2147217900);
    support::Press(form->txtQuantity, "F3");
    EXPECT_EQ(ChosenItem() + form->txtQuantity.Text(), "Chef's knife 20 cm7");
    const std::string other = Listed();
    EXPECT_NE(other, "");
    EXPECT_NE(other, list);
    EXPECT_EQ(ChosenItem() + form->txtQuantity.Text(), "Chef's knife 20 cm7");
  });
}

TEST_F(SuiteLookup, EveryListCanBeShown) {
  Add([&] {
    for (controls::OptionButton* option :
         {&form->optStockoutitems, &form->optAvaingodnotinshop, &form->optall, &form->optItemsNotInShop}) {
      support::Click(*option);
      shop.desktop.ExpectForm("frmLookup", [&](controls::Form& opened) {
        auto& lookup = dynamic_cast<suite::frmLookup&>(opened);
        EXPECT_NE(lookup.flexMaster.TextMatrix(1, 1), "") << option->Name();
        support::Press(lookup.flexMaster, "Enter");
      });
      support::Click(form->cmdFetch);
      EXPECT_NE(ChosenItem(), "") << option->Name();
    }
  });
}

}  // namespace
}  // namespace itementry_test
