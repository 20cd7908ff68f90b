// How a form comes, stays and goes.

#include <gtest/gtest.h>
#include <stdexcept>

#include "tests/base/controls/counter_form.h"
#include "tests/base/controls/model_driver.h"

namespace counter {
namespace {

class FormLife : public testing::Test {
 protected:
  ModelDriver driver;
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(driver.Desktop());
};

TEST_F(FormLife, TouchingAControlLoadsTheFormWithoutShowingIt) {
  form->On(form->Loading, "Form_Load", [this] { form->txtItem.SetText("from load"); });
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(form->txtItem.Text(), "from load");
  EXPECT_TRUE(form->IsLoaded());
  EXPECT_FALSE(form->IsShown());
  EXPECT_TRUE(form->Unload());
  EXPECT_EQ(form->Caption(), "Counter") << "the form's own properties load it too";
}

TEST_F(FormLife, LoadingAgainGivesControlsTheirDesignTimeStateAndKeepsFields) {
  form->txtItem.SetText("typed");
  form->cmdOk.SetEnabled(false);
  form->flexStock.SetRows(50);
  form->lvwLines.Add("line");
  form->tabPages.SetTab(1);
  form->tabPages.SetTabVisible(0, false);
  form->visits = 3;
  ASSERT_TRUE(form->Unload());

  form->Load();
  EXPECT_EQ(form->txtItem.Text(), "");
  EXPECT_TRUE(form->cmdOk.Enabled());
  EXPECT_EQ(form->cmdOk.Caption(), "&Ok");
  EXPECT_EQ(form->flexStock.Rows(), 2);
  EXPECT_EQ(form->lvwLines.Count(), 0);
  EXPECT_EQ(form->lvwLines.ColumnCount(), 2);
  EXPECT_EQ(form->tabPages.Tab(), 0);
  EXPECT_TRUE(form->tabPages.TabVisible(0));
  EXPECT_EQ(form->visits, 3);
}

TEST_F(FormLife, LoadActivateAndFocusComeInTheClassicOrderAndClosingAsks) {
  form->Tell(form->Loading, "load");
  form->Tell(form->Activated, "activate");
  form->Tell(form->txtItem.GotFocus, "focus");
  form->Tell(form->Unloading, "unload");
  bool mayClose = false;
  int askedBy = -1;
  form->On(form->QueryUnload, "Form_QueryUnload", [&](bool& stay, int mode) {
    askedBy = mode;
    stay = !mayClose;
  });
  driver.Work(*form, [&] {
    EXPECT_EQ(form->Told(), "load, activate, focus");
    EXPECT_FALSE(form->CloseByUser());
    EXPECT_EQ(askedBy, 0);
    EXPECT_TRUE(form->IsShown());
    mayClose = true;
    EXPECT_TRUE(form->Unload());
    EXPECT_EQ(askedBy, 1);
    EXPECT_EQ(driver.Desktop().ActiveForm(), nullptr);
  });
  EXPECT_EQ(form->Told(), "unload");
  EXPECT_EQ(driver.Desktop().life, (std::vector<std::string>{"open frmCounter", "closed frmCounter"}));
}

TEST_F(FormLife, ClosingFromWithinItsOwnClosingHappensOnce) {
  int asked = 0;
  form->On(form->QueryUnload, "Form_QueryUnload", [&](bool&, int) {
    ++asked;
    EXPECT_FALSE(form->Unload());
  });
  form->On(form->Unloading, "Form_Unload", [&] { EXPECT_FALSE(form->Unload()); });
  form->Load();
  EXPECT_TRUE(form->Unload());
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(form->Unload()) << "an unloaded form is unloaded";
  EXPECT_EQ(asked, 1);
}

TEST_F(FormLife, AFormBelowIsActivatedAgainAndKeepsItsFocus) {
  auto child = std::make_shared<frmCounter>(driver.Desktop(), "frmChild");
  form->Tell(form->Activated, "activate");
  driver.Work(*form, [&] {
    form->cmdOk.SetFocus();
    driver.WorkInNext([&](controls::Form& shown) {
      EXPECT_EQ(&shown, child.get());
      EXPECT_EQ(driver.Desktop().Stack().size(), 2u);
      EXPECT_THROW(form->Show(), vb::RunTimeError) << "shown already";
      form->txtQuantity.SetFocus();  // of the form below: only noted
      EXPECT_EQ(driver.Focus(*form), "cmdOk");
    });
    child->Show(form.get());
    EXPECT_EQ(form->Told(), "activate, activate");
    EXPECT_EQ(driver.Focus(*form), "txtQuantity");
  });
}

TEST_F(FormLife, AFormUnloadedWhileItIsActivatedIsNotRun) {
  form->On(form->Activated, "Form_Activate", [this] { form->Unload(); });
  bool ran = false;
  driver.Work(*form, [&] { ran = true; });
  EXPECT_FALSE(ran);
  driver.Desktop().hands.clear();  // nobody could work in it
  EXPECT_TRUE(driver.Desktop().Stack().empty());
}

TEST_F(FormLife, AHandlerThatGoesOnAfterUnloadingDoesNotBringTheFormBack) {
  driver.Work(*form, [&] {
    form->Unload();
    form->txtItem.SetText("too late");
    EXPECT_TRUE(form->IsLoaded());
    EXPECT_FALSE(form->IsShown());
  });
  EXPECT_EQ(driver.Desktop().ActiveForm(), nullptr);
}

TEST_F(FormLife, AnErrorOfAHandlerIsReportedAndTheFormStaysOpen) {
  form->On(form->cmdOk.Click, "cmdOk_Click", [this] {
    form->txtItem.SetText("kept");
    vb::Raise(vb::kDivisionByZero);
  });
  driver.Work(*form, [&] {
    driver.Click(form->cmdOk);
    EXPECT_TRUE(form->IsShown());
    EXPECT_EQ(driver.Read(form->txtItem, "Text"), "kept");
  });
  EXPECT_EQ(form->errors, std::vector<std::string>{"cmdOk_Click 11"});
}

TEST_F(FormLife, AnErrorOfTheDesktopItselfLeavesNoFormBehind) {
  EXPECT_THROW(driver.Work(*form, [] { throw std::logic_error("the screen broke"); }), std::logic_error);
  EXPECT_TRUE(driver.Desktop().Stack().empty());
  EXPECT_FALSE(form->IsShown());
  driver.Work(*form, [&] { EXPECT_EQ(driver.Desktop().ActiveForm(), form.get()); });
}

TEST_F(FormLife, TheHourglassGoesAwayHoweverTheWorkEnds) {
  driver.Work(*form, [&] {
    {
      const controls::Hourglass outer(*form);
      { const controls::Hourglass inner(*form); }
      EXPECT_TRUE(driver.Desktop().hourglass) << "the inner one gives back what it found";
    }
    EXPECT_FALSE(driver.Desktop().hourglass);
    const controls::Hourglass working(*form);
    form->Unload();
  });
  EXPECT_FALSE(driver.Desktop().hourglass);
  EXPECT_FALSE(form->IsLoaded()) << "giving the pointer back does not load";
}

TEST_F(FormLife, AMenuEntryIsClickedWhenItIsChosen) {
  form->Tell(form->mnuRefresh.Click, "refresh");
  driver.Work(*form, [&] {
    EXPECT_EQ(form->PopupMenu(form->mnuPopup), nullptr);
    driver.Desktop().pick = "mnuRefresh";
    EXPECT_EQ(form->PopupMenu(form->mnuPopup), &form->mnuRefresh);
    EXPECT_EQ(form->Told(), "refresh");
  });
}

TEST_F(FormLife, NothingIsNotedToTheDesktopBeforeTheFormIsShown) {
  form->txtItem.SetText("quiet");
  form->flexStock.SetRows(100);
  EXPECT_EQ(driver.Desktop().changes, 0u);
  driver.Work(*form, [&] {
    const std::size_t before = driver.Desktop().changes;
    form->flexStock.SetTextMatrix(1, 0, "seen");
    EXPECT_EQ(driver.Desktop().changes, before + 1);
  });
}

TEST(MessageBox, ButtonsAnswerInTheirOrder) {
  using controls::Answer;
  using controls::Message;
  EXPECT_EQ((Message{"", controls::kYesNoCancel, ""}.AnswerOf(2)), Answer::No);
  EXPECT_EQ((Message{"", controls::kOkCancel, ""}.AnswerOf(3)), Answer::Cancel) << "the last one when there are fewer";
  const Message dangerous{"Sure?", 276, ""};
  EXPECT_EQ(dangerous.Buttons(), controls::kYesNo);
  EXPECT_EQ(dangerous.Icon(), controls::kCritical);
  EXPECT_EQ(dangerous.AnswerOf(dangerous.DefaultButton()), Answer::No);
  EXPECT_FALSE(dangerous.CanEscape());
}

}  // namespace
}  // namespace counter
