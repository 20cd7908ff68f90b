#include "src/fetch/frm_fetch.h"
#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

/// The fetch dialog over the item entry form it was opened from.
class FetchDialog : public ItemEntryShop {
 protected:
  /// Shift+F3, a filter, and OK on the row left current (the last one).
  void Pick(std::string_view filter) {
    shop.desktop.ExpectForm("FrmFetch", [&](controls::Form& opened) {
      auto& dialog = dynamic_cast<goods::FrmFetch&>(opened);
      support::Enter(dialog.txtFetch, filter);
      support::Press(dialog.txtFetch, "Enter");
      beforeOk(dialog);
      support::Click(dialog.CmdOk);
    });
    support::Press(form->cmdFetch, "Shift+F3");
  }

  std::function<void(goods::FrmFetch&)> beforeOk = [](goods::FrmFetch&) {};
};

TEST_F(FetchDialog, APickedItemIsTakenAsIfItsCodeHadBeenTyped) {
  Add([&] {
    Pick("limescale");
    EXPECT_EQ(ChosenItem(), "Kettle limescale filter");
    EXPECT_EQ(form->txtitemcode.Text(), "SP1001");
    EXPECT_EQ(form->txtpartcode.Text(), "KE17-703");
    EXPECT_EQ(Packings(), "Single= Inner box= Carton=");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
  });
}

TEST_F(FetchDialog, AStockOutItemComesIntoTheFormAsItStands) {
  Add([&] {
    support::Click(form->optStockoutitems);
    Pick("Stock pot 5 l");
    EXPECT_EQ(ChosenItem(), "Stock pot 5 l");
    EXPECT_EQ(form->txtQuantity.Text(), "25");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(1), "1|KT1008|Stock pot 5 l|25.000|8||PCS|");
  });
}

TEST_F(FetchDialog, TheRowDecidesWhereItsCodeNamesAnotherItem) {
  Add([&] {
    Pick("Chopping board bamboo");  // KT1019, which is a barcode of another item
    EXPECT_EQ(ChosenItem(), "Chopping board bamboo 30 x 40 cm");
    shop.Run("update aPackageSettings set allowitemcodeduplication = 1");
    Pick("Frying pan 24");
    EXPECT_EQ(ChosenItem(), "Frying pan 24 cm") << "where codes may repeat, no code names an item";
  });
}

TEST_F(FetchDialog, AnItemThatMayNotBeRequestedIsRefused) {
  Add([&] {
    Scan("KT1012");
    beforeOk = [&](goods::FrmFetch&) { Refused("Scan valid barcode "); };
    Pick("Dinner plate white");  // in the shop's list, not for sale
    EXPECT_EQ(form->txtitemcode.Text(), "KT1020");
    EXPECT_EQ(ChosenItem() + Packings(), "") << "not the item from before, either";
  });
}

TEST_F(FetchDialog, NothingIsRefusedOfAStockOutItemThatIsTaken) {
  shop.Run("update aItem set forsales = 0 where ItemId = 8");
  Add([&] {
    support::Click(form->optStockoutitems);
    Pick("Stock pot 5 l");
    EXPECT_EQ(ChosenItem(), "Stock pot 5 l");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
  });
}

TEST_F(FetchDialog, AnErrorAtOkLeavesTheItemFromBeforeWithItsCode) {
  for (int step = 1; step <= 5; ++step) {  // the statements of one look-up
    Add([&] {
      Scan("KT1012");
      shop.desktop.ExpectForm("FrmFetch", [&](controls::Form& opened) {
        auto& dialog = dynamic_cast<goods::FrmFetch&>(opened);
        support::Enter(dialog.txtFetch, "Frying pan 24");
        support::Press(dialog.txtFetch, "Enter");
        shop.log.FailAt(step);
        shop.desktop.ExpectMessage("Connection broken by the test\n(FrmFetch CmdOk_Click, -2147217900)", controls::Answer::Ok,
                                   controls::kExclamation);
        support::Click(dialog.CmdOk);
        EXPECT_TRUE(dialog.IsLoaded());
        support::Click(dialog.CmdClose);
      });
      support::Press(form->cmdFetch, "Shift+F3");
      EXPECT_EQ(form->txtitemcode.Text() + ":" + ChosenItem(), "KT1012:Chef's knife 20 cm") << step;
    });
  }
}

TEST_F(FetchDialog, ClosingItChangesNothing) {
  Add([&] {
    Scan("KT1012");
    shop.desktop.ExpectForm("FrmFetch", [](controls::Form& opened) {
      auto& dialog = dynamic_cast<goods::FrmFetch&>(opened);
      support::Press(dialog.txtFetch, "Enter");
      support::Click(dialog.CmdClose);
    });
    support::Press(form->txtQuantity, "Shift+F3");
    EXPECT_EQ(ChosenItem() + form->txtQuantity.Text(), "Chef's knife 20 cm48");
  });
}

TEST_F(FetchDialog, ItIsClosedWhereFetchingIs) {
  GivenLine(1, "2.000");
  Edit(1, [&] {
    support::Press(form->txtQuantity, "Shift+F3");
    support::Press(form->txtQuantity, "F3");
  });
}

TEST_F(FetchDialog, TickedItemsAreTakenTogetherWithTheirReorderQuantities) {
  shop.Run("update aShops set MaxRequestItemsToHQ=5 where shopid=1");
  GivenLine(1, "3.000");
  beforeOk = [&](goods::FrmFetch& dialog) {
    support::Press(dialog.flexMaster, "Ctrl+A");
    const long all = dialog.flexMaster.Rows() - 1;
    EXPECT_EQ(static_cast<std::size_t>(all), dialog.flexMaster.TickedRows().size());
    dialog.flexMaster.SetRow(all);
    support::Press(dialog.flexMaster, "Space");
    EXPECT_EQ("KT1003", dialog.flexMaster.ShownText(all, goods::FrmFetch::kItemCode));
    EXPECT_EQ("[x] KT1002", dialog.flexMaster.ShownText(all - 1, goods::FrmFetch::kItemCode));
    EXPECT_EQ("KT1002", dialog.flexMaster.TextMatrix(all - 1, goods::FrmFetch::kItemCode));
    shop.desktop.ExpectMessage("1 line added.\r\n1 line refused:\r\n\r\nKT1001 Frying pan 20 cm: Already Exists");
  };
  Add([&] {
    int changes = 0;
    form->LineEntered.Wire([&] { ++changes; });
    Pick("Frying pan 2");
    EXPECT_EQ(2, LineCount());
    EXPECT_EQ("2|KT1002|Frying pan 24 cm", Line(2).substr(0, 25));
    EXPECT_EQ(1, changes) << "they can be taken back as one";
    EXPECT_TRUE(IsMarkedChanged());
    EXPECT_EQ("", ChosenItem());
  });
}

TEST_F(FetchDialog, ManyItemsStopAtTheLimitAndAtAnErrorOfTheServer) {
  shop.Run("update aShops set MaxRequestItemsToHQ=2 where shopid=1");
  beforeOk = [&](goods::FrmFetch& dialog) {
    support::Press(dialog.flexMaster, "Ctrl+A");
    shop.desktop.ExpectMessage(
        "2 lines added.\r\n1 line refused:\r\n\r\nKT1003 Frying pan 28 cm: No more items can be Added in this "
        "request");
  };
  Add([&] {
    Pick("Frying pan 2");
    EXPECT_EQ(2, LineCount());
  });
  beforeOk = [&](goods::FrmFetch& dialog) {
    support::Press(dialog.flexMaster, "Ctrl+A");
    shop.log.FailAt(1);
    shop.desktop.ExpectMessage(
        "0 lines added.\r\n3 lines refused:\r\n\r\nKT1001 Frying pan 20 cm: Connection broken by the test"
        "\r\nKT1002 Frying pan 24 cm: Connection broken by the test\r\nKT1003 Frying pan 28 cm: Connection "
        "broken by the test");
    shop.desktop.ExpectMessage("Connection broken by the test\n(FrmFetch CmdOk_Click, -2147217900)");
  };
  Add([&] { Pick("Frying pan 2"); });
}

}  // namespace
}  // namespace itementry_test
