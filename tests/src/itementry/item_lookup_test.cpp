#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

using ItemLookup = ItemEntryShop;

constexpr std::string_view kBarcode =
    "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join aitempackingdetail pk";
constexpr std::string_view kShortcut =
    "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join vwitemdescription vw";
constexpr std::string_view kItemCode = "Select v.itemdescription, v.itemid,a.part_code from aitem a";

TEST_F(ItemLookup, ACodeIsABarcodeThenAShortcutThenAnItemCode) {
  struct Case {
    std::string_view code, item;
    std::size_t shortcutQueries, codeQueries;
  };
  for (const Case& scanned : {Case{"2100001010003", "Frying pan 20 cm", 0, 0}, Case{"3", "Knife set 8 pieces with block", 1, 0},
                              Case{"kt1002", "Frying pan 24 cm", 1, 1},
                              // The supplier prints this item code on the inner box of another item.
                              Case{"KT1019", "Chopping board beech 30 x 45 cm", 0, 0}}) {
    Add([&] {
      shop.log.Clear();
      Scan(scanned.code);
      EXPECT_EQ(ChosenItem(), scanned.item);
      EXPECT_EQ(shop.log.Starting(kBarcode).size(), 1U);
      EXPECT_EQ(shop.log.Starting(kShortcut).size(), scanned.shortcutQueries) << scanned.code;
      EXPECT_EQ(shop.log.Starting(kItemCode).size(), scanned.codeQueries) << scanned.code;
      EXPECT_TRUE(form->txtQuantity.HasFocus());
      support::Click(form->cmdOk);
      EXPECT_EQ(editor->lvwrequest.Item(1).SubItem(goods::kLineItemCode), scanned.code) << "the line keeps what was scanned";
    });
    editor->lvwrequest.Clear();
  }
}

TEST_F(ItemLookup, TheStatementsStandAsTheSuiteKnowsThem) {
  LogOnTo(2);
  Add([&] {
    Refused("Scan valid barcode ");
    Scan(" 77777 ");
  });
  EXPECT_TRUE(shop.log.Sent(
      "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join aitempackingdetail pk on a.itemid = pk.itemid inner "
      "join vwItemDescription vw  on a.itemid = vw.itemid inner join aShopItemDetail si on a.ItemId=si.ItemId and si.ShopId=2 "
      "where pk.packingbarcode = '77777' and  pk.active = 1 and a.active=1 and a.forsales=1 and a.itemtype <>'B'"));
  EXPECT_TRUE(shop.log.Sent(
      "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join vwitemdescription vw on a.itemid = vw.itemid inner "
      "join ashopitemdetail sd on a.itemid = sd.itemid and sd.shopid=2 where  sd.shortcutno = 77777 and sd.shortcutno <> 0 and "
      "a.Active = 1 and a.forsales=1 and a.itemtype <>'B'"));
  EXPECT_TRUE(shop.log.Sent(
      "Select v.itemdescription, v.itemid,a.part_code from aitem a inner join vwitemdescription v on a.itemid = v.itemid inner "
      "join aShopItemDetail si on a.ItemId=si.ItemId and si.ShopId=2 where a.itemcode = '77777' and a.Active = 1 and "
      "a.forsales=1 "
      "and a.itemtype <>'B'"));
}

TEST_F(ItemLookup, ACodeThatOnlyBeginsWithANumberIsNoShortcut) {
  Add([&] {
    Scan("12");
    EXPECT_EQ(ChosenItem(), shop.Row("select ItemDescription from smpItemDescription where ItemID = 66"));
    for (const std::string code : {"12-B", "12-", "1,2"}) {
      shop.Run("update aItem set ItemCode = '" + code + "' where ItemId = 1");
      Scan(code);
      EXPECT_EQ(ChosenItem(), "Frying pan 20 cm") << code;
    }
  });
}

TEST_F(ItemLookup, AScanThatTheServerFailsIsRepeatedWithEnter) {
  Add([&] {
    Scan("KT1002");
    support::Enter(form->txtQuantity, "9");
    support::Enter(form->txtreqcomments, "blue");
    // The shop's item type, the barcodes, the shortcuts, whether codes may repeat, the item codes.
    for (int statement = 1; statement <= 5; ++statement) {
      shop.log.FailAt(statement);
      ExpectError("Connection broken by the test", "txtitemcode_KeyPress", -2147217900);
      Scan("KT1001");
      // The item from before does not have the code in the box: no line may take it.
      EXPECT_EQ(form->txtitemcode.Text() + ":" + ChosenItem() + ":" + form->txtQuantity.Text(), "KT1001::9") << statement;
      EXPECT_TRUE(form->txtitemcode.HasFocus());
      Refused("Select an item");
      support::Click(form->cmdOk);
      Scan("KT1002");
      support::Enter(form->txtQuantity, "9");
    }
    support::Enter(form->txtitemcode, "KT1001");
    support::Press(form->txtitemcode, "Enter");
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
    EXPECT_EQ(form->txtreqcomments.Text(), "blue");
  });
}

TEST_F(ItemLookup, WhatNoItemHasIsRefusedAndKeptForCorrection) {
  Add([&] {
    // Not at all, switched off, not for sale.
    for (const std::string_view code : {"nothing", "KT1027", "KT1020"}) {
      Refused("Scan valid barcode ");
      Scan(code);
      EXPECT_EQ(form->txtitemcode.Text(), code);
      EXPECT_TRUE(form->txtitemcode.HasFocus());
      EXPECT_EQ(form->cboItem.ListCount(), 0);
    }
    Scan("KT1001");
    support::Enter(form->txtQuantity, "7");
    Refused("Scan valid barcode ");
    Scan("1E999");
    EXPECT_EQ(ChosenItem() + form->txtpartcode.Text() + Packings(), "") << "no line takes an item that the box does not show";
    EXPECT_EQ(form->txtQuantity.Text(), "7");
    Refused("Select an item");
    support::Click(form->cmdOk);
    EXPECT_EQ(LineCount(), 0);
  });
}

TEST_F(ItemLookup, WhereCodesMayRepeatOnlyBarcodesAndShortcutsNameAnItem) {
  Add([&] {
    shop.Run("update aPackageSettings set allowitemcodeduplication = 1");  // while the box is still open
    Refused("Scan valid barcode ");
    Scan("KT1001");
    Scan("2100001010003");
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
  });
}

TEST_F(ItemLookup, AShopOfTypeBFindsItsItemsAndNoOthers) {
  Add([&] {
    Refused("Scan valid barcode ");
    Scan("90001");
  });
  LogOnTo(3);
  Add([&] {
    Scan("90001");
    EXPECT_EQ(form->txtitemcode.Text(), "90001");
    EXPECT_NE(ChosenItem(), "");
    Refused("Scan valid barcode ");
    Scan("KT1001");
  });
  EXPECT_FALSE(shop.log.Starting(kBarcode).empty());
  for (const std::string& query : shop.log.Starting(kBarcode)) EXPECT_TRUE(query.ends_with(" and a.itemtype ='B'")) << query;
}

TEST_F(ItemLookup, ItemsOutsideTheShopsListAreForShopsThatMayRequestThem) {
  Add([&] {
    Scan("KT1005");  // not in the list of shop 1
    EXPECT_EQ(ChosenItem(), "Saucepan with lid 1.5 l");
    EXPECT_EQ(form->txtQuantity.Text(), "") << "no reorder quantity to propose";
    EXPECT_EQ(form->txtavailqty.Text().empty(), false);
  });
  session.gBlnRequestForNonShopItem = false;
  Add([&] {
    for (const std::string_view code : {"KT1005", "2100005010009"}) {
      Refused("Scan valid barcode ");
      Scan(code);
    }
  });
}

TEST_F(ItemLookup, ApostrophesNeverGetIntoAStatementAlone) {
  shop.Run(
      "insert into aItem (ItemId, ItemCode, itemtype, active, forsales, UnitsId) values (901, 'O''BRIEN', 'N', 1, 1, 1)\n"
      "insert into smpItemDescription (ItemID, ItemDescription) values (901, 'O''Brien''s mug')");
  Add([&] {
    support::Enter(form->txtitemcode, "O'BRIEN");
    EXPECT_EQ(form->txtitemcode.Text(), "OBRIEN");
    form->txtitemcode.SelectAll();
    form->txtitemcode.Paste("x' or 'a'='a");
    EXPECT_EQ(form->txtitemcode.Text(), "x or a=a");
    form->txtitemcode.SetText("O'BRIEN");  // by a scanner that writes the box directly
    support::Press(form->txtitemcode, "Enter");
    EXPECT_EQ(ChosenItem(), "O'Brien's mug");
  });
}

TEST_F(ItemLookup, EnterInTheEmptyBoxLeadsToTheFetchButton) {
  Add([&] {
    shop.log.Clear();
    Scan("");
    EXPECT_TRUE(form->cmdFetch.HasFocus());
    EXPECT_TRUE(shop.log.lines.empty());
  });
}

TEST_F(ItemLookup, AnotherScanTakesThePlaceOfTheFirst) {
  Add([&] {
    Scan("KT1001");
    Scan("SP1001");
    EXPECT_EQ(form->cboItem.ListCount(), 1);
    EXPECT_EQ(ChosenItem(), "Kettle limescale filter");
    EXPECT_EQ(form->txtpartcode.Text(), "KE17-703");
  });
}

}  // namespace
}  // namespace itementry_test
