// Where the focus goes.

#include "base/controls/keyboard.h"
#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

class FocusStory : public ControlStory {};
INSTANTIATE_TEST_SUITE_P(Desktop, FocusStory, testing::Values(&MakeDriver));

TEST_P(FocusStory, TabPassesByWhatIsHiddenDisabledOrOnAnotherPage) {
  Work([&] {
    form->txtQuantity.SetEnabled(false);
    form->fraSort.SetVisible(false);  // with the options in it
    form->optCash.SetTabStop(false);
    std::string way = Focus();
    for (int press = 0; press < 7; ++press) {
      person->Press("Tab");
      way += " " + Focus();
    }
    EXPECT_EQ(way, "txtItem cboUnit chkDone tabPages lvwLines cmdOk cmdClose txtItem");
    person->Press("Shift+Tab");
    person->Press("Shift+Tab");
    EXPECT_EQ(Focus(), "cmdOk");

    form->tabPages.SetTab(1);
    form->cmdClose.SetTabIndex(0);
    form->fraSort.SetVisible(true);
    form->fraSort.SetEnabled(false);
    way.clear();
    for (int press = 0; press < 3; ++press) {
      person->Press("Shift+Tab");
      way += " " + Focus();
    }
    EXPECT_EQ(way, " flexStock tabPages chkDone");
  });
}

TEST_P(FocusStory, AGroupOfOptionsIsOneStopOfTab) {
  Work([&] {
    form->optDown.SetValue(true);
    form->cboUnit.SetFocus();
    std::string way;
    for (const char* key : {"Tab", "Tab", "Tab", "Shift+Tab", "Shift+Tab", "Up", "Tab", "Shift+Tab"}) {
      person->Press(key);
      way += " " + Focus();
    }
    EXPECT_EQ(way, " optDown optCash chkDone optCash optDown optUp optCash optUp");
    EXPECT_EQ(person->Read(form->optUp, "Value"), "True");
    form->optUp.SetValue(false);
    form->cboUnit.SetFocus();
    person->Press("Tab");
    EXPECT_EQ(Focus(), "optUp") << "the first where none is chosen";
    form->optUp.SetEnabled(false);
    form->cboUnit.SetFocus();
    person->Press("Tab");
    EXPECT_EQ(Focus(), "optDown");
    form->SendTab();
    EXPECT_EQ(Focus(), "optCash");
  });
}

TEST_P(FocusStory, CtrlTabTurnsThePages) {
  form->On(form->Loading, "Form_Load", [&] { form->tabPages.SetTabs(3); });
  form->On(form->txtItem.KeyDown, "txtItem_KeyDown", [&](int& code, int) { form->story.push_back(std::to_string(code)); });
  Work([&] {
    EXPECT_EQ(Focus(), "txtItem");
    person->Press("Ctrl+Tab");
    EXPECT_EQ(person->Read(form->tabPages, "Tab"), "1");
    EXPECT_EQ(Focus(), "flexStock") << "what stands first on the page";
    form->tabPages.SetTabVisible(2, false);
    person->Press("Ctrl+Tab");
    EXPECT_EQ(person->Read(form->tabPages, "Tab"), "0") << "past the hidden one, round to the first";
    EXPECT_EQ(Focus(), "lvwLines");
    person->Press("Ctrl+Shift+Tab");
    EXPECT_EQ(person->Read(form->tabPages, "Tab"), "1");

    form->tabPages.SetTabVisible(0, false);
    person->Press("Ctrl+Tab");
    EXPECT_EQ(Focus(), "flexStock") << "no other page to turn to";
    bool wrong = true;
    form->On(form->txtItem.Validate, "txtItem_Validate", [&](bool& keep) { keep = wrong; });
    form->tabPages.SetTabVisible(0, true);
    form->txtItem.SetFocus();
    person->Press("Ctrl+Tab");
    EXPECT_EQ(person->Read(form->tabPages, "Tab"), "1") << "nobody leaves what is wrong";
    wrong = false;
    form->tabPages.SetVisible(false);
    person->Press("Ctrl+Tab");
    EXPECT_EQ(form->Told(), "9") << "without pages it is a key like others";
  });
}

TEST_P(FocusStory, ValidationKeepsTheFocusExceptForControlsThatDoNotCauseIt) {
  bool wrong = true;
  form->On(form->txtItem.Validate, "txtItem_Validate", [&](bool& keep) { keep = wrong; });
  form->Tell(form->txtItem.LostFocus, "left");
  form->Tell(form->cmdOk.Click, "ok");
  form->Tell(form->cmdClose.Click, "close");
  Work([&] {
    form->cmdClose.SetCausesValidation(false);
    person->Press("Tab");
    person->Click(form->cmdOk);
    EXPECT_EQ(Focus(), "txtItem");
    EXPECT_EQ(form->Told(), "") << "a click that cannot get the focus does nothing";
    person->Click(form->cmdClose);
    EXPECT_EQ(form->Told(), "left, close");
    form->txtItem.SetFocus();
    wrong = false;
    person->Click(form->cmdOk);
    EXPECT_EQ(form->Told(), "left, ok");
  });
}

TEST_P(FocusStory, AHandlerThatMovesTheFocusItselfWins) {
  form->On(form->txtItem.LostFocus, "txtItem_LostFocus", [&] {
    if (form->txtItem.Text().empty()) form->txtItem.SetFocus();
  });
  int validated = 0;
  form->On(form->txtQuantity.Validate, "txtQuantity_Validate", [&](bool&) {
    ++validated;
    form->cmdOk.SetFocus();
  });
  form->On(form->cmdClose.GotFocus, "cmdClose_GotFocus", [&] { form->txtItem.SetFocus(); });
  Work([&] {
    person->Press("Tab");
    EXPECT_EQ(Focus(), "txtItem") << "went back to itself";
    person->Type(form->txtItem, "7");
    person->Press("Tab");
    EXPECT_EQ(Focus(), "txtQuantity");
    person->Press("Tab");
    EXPECT_EQ(Focus(), "cmdOk");
    EXPECT_EQ(validated, 1);
    person->Press("Tab");
    EXPECT_EQ(Focus(), "txtItem");
  });
}

TEST_P(FocusStory, DisablingOrHidingTheFocusedControlMovesOnWithoutValidation) {
  form->On(form->txtItem.Validate, "txtItem_Validate", [&](bool& keep) { keep = true; });
  form->Tell(form->txtItem.LostFocus, "item left");
  form->Tell(form->txtQuantity.GotFocus, "quantity entered");
  // A control that disables itself when it is left does not change where the focus was going.
  form->On(form->txtQuantity.LostFocus, "txtQuantity_LostFocus", [&] { form->txtQuantity.SetEnabled(false); });
  Work([&] {
    form->txtItem.SetEnabled(false);
    EXPECT_EQ(Focus(), "txtQuantity");
    EXPECT_EQ(form->Told(), "item left, quantity entered");
    person->Click(form->cmdClose);
    EXPECT_EQ(Focus(), "cmdClose");

    form->lvwLines.SetFocus();
    form->tabPages.SetTab(1);
    EXPECT_EQ(Focus(), "flexStock") << "its page is gone";
    form->tabPages.SetVisible(false);
    EXPECT_EQ(Focus(), "cmdOk");
  });
}

TEST_P(FocusStory, SetFocusFromCodeFailsWhereAPersonCouldNotGo) {
  Work([&] {
    form->txtItem.SetEnabled(false);
    for (controls::Control* control :
         std::initializer_list<controls::Control*>{&form->txtItem, &form->flexStock, &form->lblItem}) {
      try {
        control->SetFocus();
        ADD_FAILURE() << control->Name();
      } catch (const vb::RunTimeError& error) {
        EXPECT_EQ(error.Number(), vb::kInvalidCall) << control->Name();
      }
    }
  });
}

TEST_P(FocusStory, TheFocusSetWhileLoadingIsWhereTheFormStarts) {
  form->On(form->Loading, "Form_Load", [&] { form->txtQuantity.SetFocus(); });
  form->Tell(form->Activated, "activate");
  form->Tell(form->txtQuantity.GotFocus, "quantity");
  form->Tell(form->txtItem.GotFocus, "item");
  Work([&] { EXPECT_EQ(form->Told(), "activate, quantity"); });
  form->On(form->Activated, "Form_Activate", [&] { form->cboUnit.SetFocus(); });
  Work([&] { EXPECT_EQ(Focus(), "cboUnit") << "activation has the last word"; });
}

TEST_P(FocusStory, AccessKeysReachClickAndLeadOn) {
  form->Tell(form->cmdOk.Click, "ok");
  Work([&] {
    form->cmdOk.SetFocus();
    person->Press("Alt+I");
    EXPECT_EQ(Focus(), "txtItem") << "the label leads to the box behind it";
    person->Press("Alt+o");
    EXPECT_EQ(form->Told(), "ok");
    EXPECT_EQ(Focus(), "cmdOk");
    person->Press("Alt+U");
    EXPECT_EQ(person->Read(form->optUp, "Value"), "True");
    person->Press("Alt+D");
    EXPECT_EQ(person->Read(form->chkDone, "Value"), "1");
    person->Press("Alt+S");
    EXPECT_EQ(person->Read(form->tabPages, "Tab"), "1");
    form->cmdOk.SetCaption("Bits && &pieces");
    person->Press("Alt+P");
    EXPECT_EQ(form->Told(), "ok");
    form->cmdOk.SetEnabled(false);
    EXPECT_FALSE(controls::PressAccessKey(*form, 'P'));
  });
}

TEST_P(FocusStory, AHiddenPageGivesWayToTheNearestVisibleOne) {
  std::vector<int> from;
  form->On(form->tabPages.Switched, "tabPages_Click", [&](int previous) { from.push_back(previous); });
  form->tabPages.SetTabs(4);
  form->tabPages.SetTab(2);
  form->tabPages.SetTabVisible(0, false);
  EXPECT_EQ(form->tabPages.Tab(), 2);
  form->tabPages.SetTabVisible(2, false);
  EXPECT_EQ(form->tabPages.Tab(), 1);
  form->tabPages.SetTabVisible(2, true);
  EXPECT_EQ(form->tabPages.Tab(), 1) << "showing a page does not go there";
  EXPECT_EQ(from, (std::vector<int>{0, 2}));
  EXPECT_THROW(form->tabPages.SetTab(4), vb::RunTimeError);
}

}  // namespace
}  // namespace counter
