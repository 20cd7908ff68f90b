// Options, check boxes and combo boxes.

#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

class ChoiceStory : public ControlStory {
 protected:
  void FillUnits() {
    for (const char* unit : {"Box", "Bag", "Piece", "bottle"}) form->cboUnit.AddItem(unit, form->cboUnit.ListCount() * 10);
  }
  /// What the combo box shows: "index text".
  std::string Shown() { return person->Read(form->cboUnit, "ListIndex") + " " + Text(form->cboUnit); }
};
INSTANTIATE_TEST_SUITE_P(Desktop, ChoiceStory, testing::Values(&MakeDriver));

TEST_P(ChoiceStory, OptionsOfOneContainerExcludeEachOther) {
  form->Tell(form->optUp.Click, "up");
  form->Tell(form->optDown.Click, "down");
  form->Tell(form->optCash.Click, "cash");
  Work([&] {
    form->optCash.SetValue(true);
    person->Click(form->optUp);
    form->optDown.SetValue(true);
    form->optDown.SetValue(true);
    EXPECT_EQ(form->Told(), "cash, up, down") << "code and person alike, only when it was not set";
    EXPECT_FALSE(form->optUp.Value());
    EXPECT_TRUE(form->optCash.Value()) << "not in the frame";
    form->optDown.SetFocus();
    person->Press("Down");
    EXPECT_TRUE(form->optUp.Value()) << "round the group";
    EXPECT_EQ(Focus(), "optUp");
    form->optDown.SetEnabled(false);
    person->Press("Right");
    EXPECT_EQ(form->Told(), "up");
    EXPECT_EQ(Focus(), "optUp") << "nowhere else to go";
    form->optUp.SetValue(false);
    EXPECT_EQ(form->Told(), "");
  });
}

TEST_P(ChoiceStory, ACheckBoxClicksWhenItChanges) {
  form->Tell(form->chkDone.Click, "done");
  Work([&] {
    form->chkDone.SetValue(1);
    form->chkDone.SetValue(1);
    person->Click(form->chkDone);
    person->Press("Space");
    EXPECT_TRUE(form->chkDone.IsChecked());
    EXPECT_EQ(form->Told(), "done, done, done");
    EXPECT_THROW(form->chkDone.SetValue(2), vb::RunTimeError);
  });
}

TEST_P(ChoiceStory, SelectingAnEntryClicksFromCodeOnlyWhenItChanges) {
  form->Tell(form->cboUnit.Click, "click");
  form->Tell(form->cboUnit.Change, "change");
  Work([&] {
    FillUnits();
    EXPECT_EQ(Shown(), "-1 ");
    EXPECT_EQ(form->cboUnit.NewIndex(), 3);
    form->cboUnit.SetListIndex(1);
    form->cboUnit.SetListIndex(1);
    form->cboUnit.SetListIndex(-1);
    EXPECT_EQ(form->Told(), "click");
    EXPECT_EQ(Shown(), "-1 ");
    person->Pick(form->cboUnit, 2);
    person->Pick(form->cboUnit, 2);
    EXPECT_EQ(form->Told(), "click, click") << "a person's pick clicks for the current one too";
    EXPECT_EQ(Shown(), "2 Piece");
    EXPECT_EQ(form->cboUnit.ItemData(2), 20);
    EXPECT_THROW(form->cboUnit.SetListIndex(4), vb::RunTimeError);
    EXPECT_THROW(form->cboUnit.List(4), vb::RunTimeError);
  });
}

TEST_P(ChoiceStory, RemovingAnEntryKeepsTheSelectionOnItsOwn) {
  FillUnits();
  form->cboUnit.SetListIndex(2);
  form->cboUnit.RemoveItem(0);
  EXPECT_EQ(Shown(), "1 Piece");
  form->cboUnit.RemoveItem(1);
  EXPECT_EQ(Shown(), "-1 ");
  form->cboUnit.SetListIndex(1);
  form->cboUnit.Clear();
  EXPECT_EQ(Shown(), "-1 ");
  EXPECT_EQ(form->cboUnit.ListCount(), 0);
  EXPECT_EQ(form->cboUnit.NewIndex(), -1);
}

TEST_P(ChoiceStory, AListIsPickedByLettersAndArrows) {
  form->Tell(form->cboUnit.Click, "click");
  Work([&] {
    FillUnits();
    form->cboUnit.SetFocus();
    std::string way;
    for (const char* key : {"b", "b", "B", "b", "p", "x", "Down", "Down", "Home"}) {
      person->Press(key);
      way += person->Read(form->cboUnit, "ListIndex");
    }
    EXPECT_EQ(way, "013022330");
    form->cboUnit.SetText("BAG");
    EXPECT_EQ(Shown(), "1 Bag");
    EXPECT_THROW(form->cboUnit.SetText("crate"), vb::RunTimeError);
  });
}

TEST_P(ChoiceStory, ADropDownTakesTypedTextAndLetsGoOfItsEntry) {
  form->On(form->cboUnit.KeyPress, "cboUnit_KeyPress", [](int& key) {
    if (key == '\'') key = 0;
  });
  form->Tell(form->cboUnit.Click, "click");
  form->Tell(form->cboUnit.Change, "change");
  form->On(form->Loading, "Form_Load", [&] { form->cboUnit.SetStyle(controls::ComboStyle::DropDown); });
  Work([&] {
    FillUnits();
    person->Pick(form->cboUnit, 0);
    EXPECT_EQ(form->Told(), "click");
    form->cboUnit.SetSelStart(3);
    person->Press("'");
    person->Press("y");
    EXPECT_EQ(Shown(), "-1 Boxy");
    EXPECT_EQ(form->Told(), "change");
    person->Press("Backspace");
    person->Paste(form->cboUnit, "'s");
    EXPECT_EQ(Shown(), "-1 Boxs");
    form->Told();
    form->cboUnit.SetText("Bag");
    EXPECT_EQ(Shown(), "-1 Bag") << "text alone selects nothing";
    EXPECT_EQ(form->Told(), "change");
    person->Press("Down");
    EXPECT_EQ(Shown(), "0 Box");
  });
}

}  // namespace
}  // namespace counter
