#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

using Opening = ItemEntryShop;

std::string CannotCreate() {
  return std::string(vb::ErrorText(vb::kCannotCreateObject));
}

TEST_F(Opening, AddingStartsEmptyInTheBarcodeBox) {
  Add([&] {
    EXPECT_EQ(form->Caption(), "Goods Request Details");
    EXPECT_EQ(ChosenItem(), "");
    EXPECT_TRUE(form->txtitemcode.HasFocus());
    EXPECT_TRUE(form->optall.Value());
    EXPECT_TRUE(form->cmdFetch.Enabled());
    EXPECT_EQ(EnabledNavigation(), "");
  });
}

TEST_F(Opening, NavigationNeedsTwoLines) {
  GivenLine(1, "2.000");
  Add([&] { EXPECT_EQ(EnabledNavigation(), ""); });
  GivenLine(2, "3.000");
  Add([&] { EXPECT_EQ(EnabledNavigation(), "First Prev Next Last"); });
}

TEST_F(Opening, TheLastFetchModeIsSelectedAgain) {
  const std::vector<std::pair<std::string, controls::OptionButton*>> modes{{"QUERY1", &form->optStockoutitems},
                                                                           {"QUERY2", &form->optAvaingodnotinshop},
                                                                           {"QUERY3", &form->optall},
                                                                           {"QUERY4", &form->optItemsNotInShop},
                                                                           {"", &form->optall}};
  for (const auto& [mode, option] : modes) {
    session.gStrFetchMode = mode;
    Add([&, chosen = option] { EXPECT_TRUE(chosen->Value()) << mode; });
  }
}

TEST_F(Opening, AShopThatRequestsOnlyItsOwnItemsHasThreeLists) {
  LogOnTo(2);
  session.gStrFetchMode = "QUERY4";  // left over from a shop that has the fourth
  Add([&] {
    EXPECT_FALSE(form->optItemsNotInShop.Visible());
    EXPECT_TRUE(form->optall.Value());
    EXPECT_EQ(form->picOptions.Place().left, 990);
    EXPECT_EQ(form->picOptions.Place().width, 7765);
    EXPECT_EQ(form->optStockoutitems.Place().left, 0);
    EXPECT_EQ(form->optAvaingodnotinshop.Place().left, 1485);
    EXPECT_EQ(form->optall.Place().left, 5580);
  });
}

TEST_F(Opening, OnlyShopsSetUpForItSeeTheAvailableQuantity) {
  Add([&] { EXPECT_TRUE(form->txtavailqty.Visible() && form->lblavail.Visible()); });
  LogOnTo(2);
  shop.Run("update aShops set miscsettings13 = 'abD' where ShopID = 2");  // another setting's letter
  Add([&] {
    EXPECT_FALSE(form->txtavailqty.Visible() || form->lblavail.Visible());
    Scan(
        shop.Row("select min(a.ItemCode) from aItem a inner join aShopItemDetail s on s.ItemID = a.ItemId where s.ShopID = 2"
                 " and a.active = 1 and a.forsales = 1 and a.itemtype = 'N'"));
    EXPECT_NE(ChosenItem(), "");
  });
  EXPECT_TRUE(shop.log.Starting("select isnull(sum(gsstock)").empty());
}

TEST_F(Opening, AliasesNameTheShopAndTheGodown) {
  shop.Run("update aPackageSettings set alias = 1");
  Add([&] {
    EXPECT_EQ(form->optAvaingodnotinshop.Caption(), "Available in Warehouse Not available in Store");
    EXPECT_EQ(form->optall.Caption(), "All I&tems in Store");
    EXPECT_EQ(form->optItemsNotInShop.Caption(), "Items &not in Store");
    EXPECT_EQ(form->optStockoutitems.Caption(), "&Stock Out Items");
  });
  shop.Run("update aPackageSettings set alias = 0");
  Add([&] { EXPECT_EQ(form->optall.Caption(), "All I&tems in Shop"); });
}

TEST_F(Opening, EachOptionSaysWhatItLists) {
  const std::vector<std::pair<controls::OptionButton*, std::string>> tips{
      {&form->optStockoutitems, "whose stock is less than or equal to reorder level."},
      {&form->optAvaingodnotinshop, "stock out items whose stocks are available in godowns."},
      {&form->optall, "that are in the item list of the shop."},
      {&form->optItemsNotInShop, "that are not in the item list of the shop."}};
  Add([&] {
    for (const auto& [option, tip] : tips) {
      EXPECT_TRUE(option->ToolTipText().starts_with("This option lists all those ")) << option->Name();
      EXPECT_TRUE(option->ToolTipText().ends_with(tip)) << option->ToolTipText();
    }
  });
}

TEST_F(Opening, SettingsThatCannotBeReadGiveNoShopMoreThanItHas) {
  LogOnTo(2);
  for (int statement = 1; statement <= 2; ++statement) {
    shop.log.FailAt(statement);
    ExpectError("Connection broken by the test", "Form_Load", -2147217900);
    Add([&] {
      EXPECT_FALSE(form->optItemsNotInShop.Visible());
      EXPECT_FALSE(form->txtavailqty.Visible() || form->lblavail.Visible());
      EXPECT_TRUE(form->optall.Value());
      EXPECT_TRUE(form->txtitemcode.HasFocus());
    });
  }
}

TEST_F(Opening, WithoutTheAliasesTheLineIsThereAllTheSame) {
  GivenLine(1, "2.000", "blue");
  shop.Run("update aPackageSettings set alias = 1");
  for (int statement = 3; statement <= 5; ++statement) {  // behind the two of the load
    shop.log.FailAt(statement);
    ExpectError("Connection broken by the test", "Form_Activate", -2147217900);
    Edit(1, [&] {
      EXPECT_EQ(form->optall.Caption(), "All I&tems in Shop");
      EXPECT_EQ(ChosenItem() + form->txtQuantity.Text() + form->txtreqcomments.Text(), "Frying pan 20 cm2.000blue");
      EXPECT_FALSE(form->cmdFetch.Enabled());
    });
  }
}

TEST_F(Opening, WhereCodesMayRepeatTheBarcodeBoxIsClosed) {
  shop.Run("update aPackageSettings set allowitemcodeduplication = 1");
  Add([&] {
    EXPECT_FALSE(form->txtitemcode.Enabled());
    EXPECT_TRUE(form->cboItem.HasFocus());
  });
}

TEST_F(Opening, WithoutTheLookupLinesAreStillEntered) {
  shop.registry.Unregister("Lookup.clsFetch");
  ExpectError(CannotCreate(), "Form_Load", vb::kCannotCreateObject);
  Add([&] {
    ExpectError(CannotCreate(), "FillItemList", vb::kCannotCreateObject);
    support::Press(form->txtitemcode, "F3");
    Scan("KT1001");
    support::Click(form->cmdOk);
    EXPECT_EQ(LineCount(), 1);
  });
}

TEST_F(Opening, AnotherListStartsANewLineWhileAdding) {
  GivenLine(1, "2.000");
  Add([&] {
    Scan("KT1002");
    support::Type(form->txtreqcomments, "blue");
    support::Click(form->optStockoutitems);
    EXPECT_EQ(form->cboItem.ListCount(), 0);
    EXPECT_EQ(form->lvwpacktype.Count(), 0);
    for (const controls::TextBox* box :
         {&form->txtavailqty, &form->txtitemcode, &form->txtpartcode, &form->txtQuantity, &form->txtreqcomments}) {
      EXPECT_EQ(box->Text(), "") << box->Name();
    }
    support::Press(form->optStockoutitems, "Enter");
    EXPECT_TRUE(form->cmdFetch.HasFocus());
  });
}

TEST_F(Opening, BothKeysThatFindItemsAreNamed) {
  Add([&] { EXPECT_EQ(form->cmdFetch.ToolTipText(), "Fetch items (F3), search items (Shift+F3)"); });
}

}  // namespace
}  // namespace itementry_test
