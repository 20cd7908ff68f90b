#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

class Navigation : public ItemEntryShop {
 protected:
  Navigation() {
    GivenLine(1, "2.500", "first");
    GivenLine(2, "3.000", "second");
    GivenLine(3, "4.000", "third");
  }
  /// The line in the form, as "Item Code, Item Name, Qty., Comments".
  std::string Shown() {
    return form->txtitemcode.Text() + ", " + ChosenItem() + ", " + form->txtQuantity.Text() + ", " + form->txtreqcomments.Text();
  }
};

TEST_F(Navigation, ALineOpenedForChangeIsShownAndItsItemNotChosenAnew) {
  Edit(2, [&] {
    EXPECT_EQ(Shown(), "KT1002, Frying pan 24 cm, 3.000, second");
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    for (const controls::Control* control : std::initializer_list<controls::Control*>{
             &form->cmdFetch, &form->txtitemcode, &form->cboItem, &form->optall, &form->optStockoutitems,
             &form->optAvaingodnotinshop, &form->optItemsNotInShop}) {
      EXPECT_FALSE(control->Enabled()) << control->Name();
    }
    EXPECT_EQ(shop.log.Starting("select reorderquantity").size(), 0U) << "the line's own quantity stands";
  });
}

TEST_F(Navigation, TheButtonsWalkThroughTheLines) {
  Edit(2, [&] {
    support::Click(form->Cmdprev);
    EXPECT_EQ(Shown(), "KT1001, Frying pan 20 cm, 2.500, first");
    EXPECT_EQ(EnabledNavigation(), "Next Last");
    support::Click(form->cmdNext);
    EXPECT_EQ(Shown(), "KT1002, Frying pan 24 cm, 3.000, second");
    EXPECT_EQ(EnabledNavigation(), "First Prev Next Last");
    support::Click(form->cmdNext);
    EXPECT_EQ(EnabledNavigation(), "First Prev");
    support::Click(form->cmdFirst);
    EXPECT_EQ(EnabledNavigation(), "Next Last");
    support::Click(form->cmdLast);
    EXPECT_EQ(Shown(), "KT1003, Frying pan 28 cm, 4.000, third");
    EXPECT_EQ(EnabledNavigation(), "First Prev");
    EXPECT_EQ(editor->lngCurrentLine, 3);
    EXPECT_EQ(editor->lvwrequest.SelectedItem(), 3);
  });
}

TEST_F(Navigation, TheEndsOfTheListAreNotPassed) {
  Edit(3, [&] {
    support::Click(form->cmdNext);
    EXPECT_EQ(editor->lngCurrentLine, 3);
    EXPECT_EQ(EnabledNavigation(), "First Prev Next Last") << "nothing else happens";
  });
  Edit(1, [&] {
    support::Click(form->Cmdprev);
    EXPECT_EQ(Shown(), "KT1001, Frying pan 20 cm, 2.500, first");
  });
}

TEST_F(Navigation, OkGoesOnToTheNextLineAndClosesAfterTheLast) {
  Edit(2, [&] {
    support::Enter(form->txtQuantity, "30");
    support::Click(form->cmdOk);
    EXPECT_EQ(Shown(), "KT1003, Frying pan 28 cm, 4.000, third");
    EXPECT_EQ(editor->lngCurrentLine, 3);
    EXPECT_TRUE(form->txtQuantity.HasFocus());
    EXPECT_EQ(EnabledNavigation(), "First Prev");
    support::Enter(form->txtQuantity, "40");
    support::Click(form->cmdOk);
    EXPECT_FALSE(form->IsLoaded());
  });
  EXPECT_EQ(editor->lvwrequest.Item(2).SubItem(goods::kLineQty), "30.000");
  EXPECT_EQ(editor->lvwrequest.Item(3).SubItem(goods::kLineQty), "40.000");
}

TEST_F(Navigation, WalkingWhileAddingTurnsToChanging) {
  Add([&] {
    Scan("KT1004");
    support::Click(form->cmdFirst);
    EXPECT_EQ(session.gStrDetailMode, "E");
    EXPECT_EQ(Shown(), "KT1001, Frying pan 20 cm, 2.500, first");
    // A scan would put another item on the line and leave its code.
    EXPECT_FALSE(form->txtitemcode.Enabled());
    EXPECT_FALSE(form->cmdFetch.Enabled());
    support::Press(form->txtQuantity, "F3");
    support::Press(form->txtQuantity, "Shift+F3");
    support::Enter(form->txtQuantity, "9");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(1), "1|KT1001|Frying pan 20 cm|9.000|1|first|unit|");
    EXPECT_EQ(LineCount(), 3);
  });
}

TEST_F(Navigation, WholeQuantitiesAreShownWithoutDecimals) {
  session.gBlnIntegerQuantity = true;
  Edit(2, [&] { EXPECT_EQ(form->txtQuantity.Text(), "3"); });
}

TEST_F(Navigation, ALineWhoseItemCannotBeReadDoesNotTakeTheOneBeforeForItsOwn) {
  Edit(1, [&] {
    shop.log.FailAt(1);
    ExpectError("Connection broken by the test", "LoadCurrentLine", -2147217900);
    support::Click(form->cmdNext);
    EXPECT_EQ(Shown(), "KT1002, Frying pan 24 cm, 3.000, second");
    support::Click(form->cmdOk);
    EXPECT_EQ(Line(2), "2|KT1002|Frying pan 24 cm|3.000|2|second|unit|");
    EXPECT_FALSE(IsMarkedChanged());
  });
}

}  // namespace
}  // namespace itementry_test
