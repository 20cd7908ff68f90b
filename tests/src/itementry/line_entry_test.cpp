#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

using LineEntry = ItemEntryShop;

constexpr long kServerError = -2147217900;

TEST_F(LineEntry, AnAcceptedItemBecomesALineAndTheFormIsReadyForTheNext) {
  Add([&] {
    Scan("KT1001");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    EXPECT_EQ(form->txtQuantity.Text(), "40") << "the shop's reorder quantity is proposed";
    EXPECT_EQ(form->txtQuantity.SelLength(), 2);
    support::Type(form->txtQuantity, "2.5");
    support::Press(form->txtQuantity, "Enter");
    EXPECT_TRUE(form->txtreqcomments.HasFocus());
    support::Type(form->txtreqcomments, " for the window ");
    support::Enter(form->txtpartcode, " P-7 ");
    support::Press(form->txtreqcomments, "Enter");
    EXPECT_TRUE(form->cmdOk.HasFocus());
    EXPECT_EQ(LineCount(), 0) << "Enter leads to OK and does not press it";
    support::Press(form->cmdOk, "Enter");

    EXPECT_EQ(Line(1), "1|KT1001|Frying pan 20 cm|2.500|1|for the window|PCS|P-7");
    EXPECT_EQ(editor->lngCurrentLine, 1);
    EXPECT_EQ(editor->lvwrequest.SelectedItem(), 1);
    EXPECT_TRUE(IsMarkedChanged());
    EXPECT_EQ(ChosenItem() + form->txtitemcode.Text() + form->txtQuantity.Text() + form->txtreqcomments.Text(), "");
    EXPECT_EQ(form->txtpartcode.Text() + form->txtavailqty.Text() + Packings(), "");
    EXPECT_TRUE(form->txtitemcode.HasFocus());
    EXPECT_EQ(EnabledNavigation(), "");

    Scan("KT1002");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(2), "2|KT1002|Frying pan 24 cm|48.000|2||PCS|");
    EXPECT_EQ(EnabledNavigation(), "First Prev Next Last");
  });
}

TEST_F(LineEntry, WhatIsMissingIsAskedForInTurnAndTypedWorkStays) {
  Add([&] {
    support::Type(form->txtreqcomments, "blue");
    Refused("Select an item");
    support::Click(form->cmdOk);
    EXPECT_TRUE(form->cboItem.HasFocus());

    Scan("KT1001");
    for (const std::string nothing : {"", "0", "0.000"}) {
      support::Enter(form->txtQuantity, nothing);
      Refused("Enter quantity");
      support::Click(form->cmdOk);
      EXPECT_TRUE(form->txtQuantity.HasFocus());
    }
    EXPECT_EQ(form->txtreqcomments.Text(), "blue");
    EXPECT_EQ(LineCount(), 0);
    EXPECT_FALSE(IsMarkedChanged());
  });
}

TEST_F(LineEntry, AnItemIsAddedOnlyOnce) {
  GivenLine(1, "2.000");
  Add([&] {
    Scan("KT1001");
    Refused("Frying pan 20 cm Already Exists");
    support::Click(form->cmdOk);
    EXPECT_TRUE(form->cboItem.HasFocus());
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
    EXPECT_EQ(LineCount(), 1);
  });
}

TEST_F(LineEntry, AScanIntoARefusedItemsNameHoldsNobody) {
  GivenLine(1, "2.000");
  Add([&] {
    Scan("KT1001");
    support::Enter(form->txtQuantity, "7");
    Refused("Frying pan 20 cm Already Exists");
    support::Click(form->cmdOk);
    support::Type(form->cboItem, "KT1002");
    EXPECT_EQ(form->cboItem.Text(), "KT1002") << "typed over the selected name, not into it";
    support::Press(form->cboItem, "Tab");
    EXPECT_TRUE(form->cboItem.HasFocus());
    EXPECT_EQ(shop.desktop.alarms, 1);
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
    EXPECT_EQ(form->txtQuantity.Text(), "7") << "the item came back, it was not chosen again";
    support::Press(form->cboItem, "Tab");
    EXPECT_TRUE(form->cmdFetch.HasFocus());

    // Where nothing was chosen before, nothing comes back.
    support::Click(form->optStockoutitems);
    form->cboItem.SetFocus();
    support::Type(form->cboItem, "fry");
    support::Press(form->cboItem, "Tab");
    EXPECT_EQ(form->cboItem.Text(), "");
    support::Press(form->cboItem, "Tab");
    EXPECT_TRUE(form->cmdFetch.HasFocus());
  });
}

TEST_F(LineEntry, AQuantityThatNoRequestCanHoldIsRefused) {
  GivenLine(2, "1.000");
  const std::string tooLarge = "Quantity is too large: at most 15 digits before the decimal point";
  Add([&] {
    Scan("KT1001");
    support::Enter(form->txtQuantity, "2100001010003210");  // a scan and the beginning of the next
    Refused(tooLarge);
    support::Click(form->cmdOk);
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    EXPECT_EQ(form->txtQuantity.SelLength(), 16);
    EXPECT_EQ(LineCount(), 1);
    support::Type(form->txtQuantity, "999999999999999");
    support::Click(form->cmdOk);
    EXPECT_EQ(editor->lvwrequest.Item(2).SubItem(goods::kLineQty), "999999999999999.000");
  });
  Edit(1, [&] {
    support::Enter(form->txtQuantity, "1000000000000000");
    Refused(tooLarge);
    support::Click(form->cmdOk);
  });
  EXPECT_EQ(editor->lvwrequest.Item(1).SubItem(goods::kLineQty), "1.000");
}

TEST_F(LineEntry, ARequestHasNoMoreLinesThanTheShopAllows) {
  shop.Run("update aShops set MaxRequestItemsToHQ = 2 where ShopID = 1");
  GivenLine(1, "2.000");
  GivenLine(2, "2.000");
  Add([&] {
    Scan("KT1003");
    Refused("No more items can be Added in this request");
    support::Click(form->cmdOk);
    EXPECT_EQ(LineCount(), 2);
    EXPECT_EQ(ChosenItem(), "Frying pan 28 cm");
    for (const int none : {0, -1}) {
      shop.Run("update aShops set MaxRequestItemsToHQ = " + std::to_string(none) + " where ShopID = 1");
      Scan(none == 0 ? "KT1003" : "KT1004");
      support::Click(form->cmdOk);
    }
    EXPECT_EQ(LineCount(), 4);
  });
}

TEST_F(LineEntry, WhereWholeQuantitiesAreRequiredThePointIsRefused) {
  session.gBlnIntegerQuantity = true;
  shop.Run("update aShopItemDetail set ReorderQuantity = 2.5 where ShopID = 1 and ItemID = 1");
  Add([&] {
    Scan("KT1001");
    EXPECT_EQ(form->txtQuantity.Text(), "2.5");
    Refused("Only Integer Quantity is allowed");
    support::Click(form->cmdOk);
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    support::Enter(form->txtQuantity, "3");
    Refused("Only Integer Quantity is allowed");
    support::Type(form->txtQuantity, ".");
    EXPECT_EQ(form->txtQuantity.Text(), "3");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(1), "1|KT1001|Frying pan 20 cm|3.000|1||PCS|");
  });
}

TEST_F(LineEntry, AQuantityIsANumberOfThreeDecimalsHoweverItGetsIn) {
  Add([&] {
    Scan("KT1001");
    support::Enter(form->txtQuantity, "-1x2.34567");
    EXPECT_EQ(form->txtQuantity.Text(), "12.345");
    form->txtQuantity.SelectAll();
    form->txtQuantity.Paste("-7 pcs.");
    EXPECT_EQ(form->txtQuantity.Text(), "7.");
  });
}

TEST_F(LineEntry, ADecimalCommaIsThePointAndWhatElseIsRefusedSoundsTheAlarm) {
  Add([&] {
    Scan("KT1001");
    support::Enter(form->txtQuantity, "12,5");
    EXPECT_EQ(form->txtQuantity.Text(), "12.5");
    form->txtQuantity.SelectAll();
    form->txtQuantity.Paste("7,25\r\n");
    EXPECT_EQ(form->txtQuantity.Text(), "7.25");
    EXPECT_EQ(shop.desktop.alarms, 0);
    support::Type(form->txtQuantity, ",");
    EXPECT_EQ(shop.desktop.alarms, 1);
    support::Type(form->txtQuantity, "x");
    EXPECT_EQ(shop.desktop.alarms, 2);
    EXPECT_EQ(form->txtQuantity.Text(), "7.25");
    session.gBlnIntegerQuantity = true;
    support::Enter(form->txtQuantity, "3");
    Refused("Only Integer Quantity is allowed");
    support::Type(form->txtQuantity, ",");
    EXPECT_EQ(form->txtQuantity.Text(), "3");
  });
}

TEST_F(LineEntry, AChangedLineKeepsCodeAndUnitAndTakesTheItemsPartCode) {
  GivenLine(258, "2.000", "old");
  Edit(1, [&] {
    support::Enter(form->txtQuantity, "5");
    support::Enter(form->txtreqcomments, "new");
    support::Enter(form->txtpartcode, "typed");
    support::Click(form->cmdOk);
  });
  EXPECT_EQ(Line(1), "1|SP1001|Kettle limescale filter|5.000|258|new|unit|KE17-703");
  EXPECT_TRUE(IsMarkedChanged());
}

TEST_F(LineEntry, OnlyAChangeMarksTheEditor) {
  GivenLine(1, "2.000", "blue");
  const auto edited = [&](const std::function<void()>& change) {
    editor->lvwrequest.SetTag("");
    Edit(1, [&] {
      change();
      support::Click(form->cmdOk);
    });
    return IsMarkedChanged();
  };
  EXPECT_FALSE(edited([] {}));
  EXPECT_FALSE(edited([&] { support::Enter(form->txtQuantity, "2"); }));
  EXPECT_TRUE(edited([&] { support::Enter(form->txtQuantity, "3"); }));
  EXPECT_TRUE(edited([&] { support::Enter(form->txtreqcomments, "green"); }));
}

TEST_F(LineEntry, AQuantityWithThousandsSeparatedIsNotCutAtTheComma) {
  GivenLine(1, "1,234.500");
  Edit(1, [&] { support::Click(form->cmdOk); });
  EXPECT_EQ(Line(1), "1|KT1001|Frying pan 20 cm|1234.500|1||unit|");
}

TEST_F(LineEntry, ADatabaseErrorLosesNothingTyped) {
  GivenLine(1, "2.000");
  Add([&] {
    Scan("KT1002");
    shop.log.FailAt(1);
    ExpectError("Connection broken by the test", "cmdOk_Click", kServerError);
    support::Click(form->cmdOk);
    EXPECT_EQ(ChosenItem(), "Frying pan 24 cm");
    EXPECT_EQ(form->txtQuantity.Text(), "48");
    support::Click(form->cmdOk);
    EXPECT_EQ(LineCount(), 2);
  });
}

TEST_F(LineEntry, AHalfTypedItemKeepsTheFocusButNobodyFromLeaving) {
  Add([&] {
    Scan("KT1001");
    form->cboItem.SetFocus();
    form->cboItem.TakeEdited("frying PAN 20 CM");
    support::Press(form->cboItem, "Enter");
    EXPECT_EQ(ChosenItem(), "Frying pan 20 cm");
    EXPECT_TRUE(form->cmdFetch.HasFocus());

    form->cboItem.SetFocus();
    form->cboItem.TakeEdited("frying");
    support::Press(form->cboItem, "Enter");
    EXPECT_TRUE(form->cboItem.HasFocus());
    support::Click(form->cmdCancel);
    EXPECT_FALSE(form->IsLoaded());
  });
}

TEST_F(LineEntry, LongFiguresCanBeReadInTheToolTip) {
  Add([&] {
    Scan("KT1001");
    support::Enter(form->txtQuantity, "1234567.5");
    form->txtQuantity.MouseMove.Fire();
    EXPECT_EQ(form->txtQuantity.ToolTipText(), "1,234,567.500");
  });
}

}  // namespace
}  // namespace itementry_test
