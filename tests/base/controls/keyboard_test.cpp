// What keys do, and in which order.

#include "base/controls/keyboard.h"

#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

class KeyStory : public ControlStory {
 protected:
  /// The box takes digits alone; "," becomes ".".
  void FilterDigits(controls::TextBox& box) {
    form->On(box.KeyPress, "KeyPress", [](int& key) {
      if (key == ',') key = '.';
      if (key >= ' ' && key != '.' && (key < '0' || key > '9')) key = 0;
    });
  }
  void TellKeys(controls::Control& control) {
    form->On(control.KeyDown, "KeyDown", [this](int& code, int) { form->story.push_back("down " + std::to_string(code)); });
    form->On(control.KeyPress, "KeyPress", [this](int& key) { form->story.push_back("press " + std::to_string(key)); });
    form->On(control.KeyUp, "KeyUp", [this](int& code, int) { form->story.push_back("up " + std::to_string(code)); });
  }
};
INSTANTIATE_TEST_SUITE_P(Desktop, KeyStory, testing::Values(&MakeDriver));

TEST_P(KeyStory, TypedAndPastedTextGoesThroughTheFilter) {
  FilterDigits(form->txtQuantity);
  form->Tell(form->txtQuantity.Change, "change");
  Work([&] {
    person->Type(form->txtQuantity, "1x2,5");
    EXPECT_EQ(Text(form->txtQuantity), "12.5");
    EXPECT_EQ(form->Told(), "change, change, change, change");
    person->Paste(form->txtQuantity, "a'7\r\n8,");
    EXPECT_EQ(Text(form->txtQuantity), "12.578.");

    // A filter of its own sees the pasted text whole.
    form->txtItem.PasteFilter = [](std::string_view text) { return "<" + std::string(text) + ">"; };
    person->Paste(form->txtItem, "O'Hara");
    EXPECT_EQ(Text(form->txtItem), "<O'Hara>");
  });
}

TEST_P(KeyStory, EditingCountsCharactersAndReplacesTheSelection) {
  Work([&] {
    form->txtItem.SetMaxLength(6);
    person->Type(form->txtItem, "Bäckerei");
    EXPECT_EQ(Text(form->txtItem), "Bäcker");
    person->Press("Backspace");
    EXPECT_EQ(Text(form->txtItem), "Bäcke");
    form->txtItem.SetSelStart(1);
    form->txtItem.SetSelLength(2);
    EXPECT_EQ(form->txtItem.SelText(), "äc");
    person->Press("ö");
    EXPECT_EQ(Text(form->txtItem), "Böke");
    person->Press("Delete");
    EXPECT_EQ(Text(form->txtItem), "Böe");
    person->Press("Home");
    person->Press("Backspace");
    person->Press("Right");
    person->Press("Delete");
    EXPECT_EQ(Text(form->txtItem), "Be");
    form->txtItem.SelectAll();
    person->Press("Z");
    EXPECT_EQ(Text(form->txtItem), "Z");
    form->txtItem.SetLocked(true);
    person->Type(form->txtItem, "no");
    person->Paste(form->txtItem, "no");
    person->Press("Backspace");
    EXPECT_EQ(Text(form->txtItem), "Z");
  });
  form->txtItem.SetMaxLength(3);
  form->txtItem.SetText("from code");
  EXPECT_EQ(form->txtItem.Text(), "fro");
  EXPECT_EQ(form->txtItem.SelStart(), 0);
}

TEST_P(KeyStory, OneKeyTellsDownPressChangeUp) {
  TellKeys(form->txtItem);
  form->Tell(form->txtItem.Change, "change");
  Work([&] {
    person->Press("a");
    EXPECT_EQ(form->Told(), "down 65, press 97, change, up 65");
    person->Press("Delete");
    EXPECT_EQ(form->Told(), "down 46, up 46") << "no character, nothing to delete";
    person->Press("Backspace");
    EXPECT_EQ(form->Told(), "down 8, press 8, change, up 8");
    person->Press("Ctrl+D");
    EXPECT_EQ(form->Told(), "down 68, press 4, up 68");
    person->Press("Ctrl+Enter");
    EXPECT_EQ(form->Told(), "down 13, press 10, up 13");
    person->Press("é");
    EXPECT_EQ(form->Told(), "press 233, change, up 0") << "a character without a key code of its own";
  });
}

TEST_P(KeyStory, TheFormSeesKeysFirstWhenItPreviewsThem) {
  TellKeys(form->txtItem);
  form->On(form->KeyDown, "Form_KeyDown", [&](int& code, int shift) {
    form->story.push_back("form " + std::to_string(code) + "/" + std::to_string(shift));
    if (code == controls::kKeyF3) code = 0;
  });
  form->On(form->KeyPress, "Form_KeyPress", [&](int& key) {
    if (key == '\'') key = 0;
  });
  Work([&] {
    person->Press("F1");
    EXPECT_EQ(form->Told(), "down 112, up 112");
    form->SetKeyPreview(true);
    person->Press("Shift+F3");
    EXPECT_EQ(form->Told(), "form 114/1, up 114");
    person->Press("'");
    EXPECT_EQ(form->Told(), "up 0");
    EXPECT_EQ(Text(form->txtItem), "");
  });
}

TEST_P(KeyStory, ASwallowedDeleteDeletesNothing) {
  form->On(form->txtItem.KeyDown, "txtItem_KeyDown", [](int& code, int) {
    if (code == controls::kKeyDelete) code = 0;
  });
  Work([&] {
    person->Type(form->txtItem, "ab");
    person->Press("Home");
    person->Press("Delete");
    EXPECT_EQ(Text(form->txtItem), "ab");
  });
}

TEST_P(KeyStory, EnterSentAsTabMovesOnWhenTheKeyIsFinished) {
  TellKeys(form->txtItem);
  form->On(form->txtItem.KeyPress, "txtItem_KeyPress", [&](int& key) {
    if (key == controls::kCharReturn) form->SendTab();
    EXPECT_EQ(Focus(), "txtItem");
  });
  form->On(form->txtQuantity.KeyUp, "txtQuantity_KeyUp", [](int&, int) { ADD_FAILURE() << "the key came up before the tab"; });
  Work([&] {
    person->Type(form->txtItem, "12");
    form->Told();
    person->Press("Enter");
    EXPECT_EQ(form->Told(), "down 13, up 13");
    EXPECT_EQ(Focus(), "txtQuantity");
    EXPECT_EQ(Text(form->txtItem), "12");
    form->SendTab();
    EXPECT_EQ(Focus(), "cboUnit") << "outside of a key at once";
  });
}

TEST_P(KeyStory, EnterAndEscClickTheDefaultAndCancelButtonsInsteadOfBeingTyped) {
  TellKeys(form->txtItem);
  form->Tell(form->cmdOk.Click, "ok");
  form->Tell(form->cmdClose.Click, "close");
  Work([&] {
    person->Press("Enter");
    EXPECT_EQ(form->Told(), "down 13, press 13, up 13");
    person->Press("Esc");
    EXPECT_EQ(form->Told(), "down 27, press 27, up 27");

    form->cmdOk.SetDefault(true);
    form->cmdClose.SetCancel(true);
    person->Press("Enter");
    person->Press("Esc");
    EXPECT_EQ(form->Told(), "ok, up 13, close, up 27");
    EXPECT_EQ(Focus(), "txtItem") << "the focus stays where it was";
    form->cmdClose.SetFocus();
    person->Press("Enter");
    EXPECT_EQ(form->Told(), "close") << "the button with the focus goes before the default one";
    form->txtItem.SetFocus();
    form->cmdOk.SetEnabled(false);
    person->Press("Enter");
    EXPECT_EQ(form->Told(), "down 13, press 13, up 13") << "a disabled default button is none";
    form->cmdClose.SetFocus();
    person->Press("Space");
    EXPECT_EQ(form->Told(), "close");
  });
}

TEST_P(KeyStory, ATextStopsBeingTypedWhereTheFocusGoesAway) {
  form->On(form->txtItem.Change, "txtItem_Change", [&] {
    if (form->txtItem.Text() == "12") form->txtQuantity.SetFocus();
  });
  form->On(form->cmdOk.Click, "cmdOk_Click", [&] { form->Unload(); });
  Work([&] {
    person->Type(form->txtItem, "1234");
    EXPECT_EQ(Text(form->txtItem), "12");
    EXPECT_EQ(Text(form->txtQuantity), "");
    form->cmdOk.SetFocus();
    person->Press("Enter");
    EXPECT_FALSE(form->IsLoaded()) << "the rest of the key does not touch the form again";
  });
}

TEST_P(KeyStory, ALineBreakIsTypedIntoATextOfManyLinesOnly) {
  form->On(form->Loading, "Form_Load", [&] { form->txtItem.SetMultiLine(true); });
  Work([&] {
    person->Type(form->txtQuantity, "a");
    person->Press("Enter");
    EXPECT_EQ(Text(form->txtQuantity), "a");
    person->Type(form->txtItem, "a");
    person->Press("Enter");
    person->Type(form->txtItem, "b");
    person->Paste(form->txtItem, "\r\nc");
    EXPECT_EQ(Text(form->txtItem), "a\r\nb\r\nc");
  });
}

TEST(KeyNames, ReadAsTheyAreWritten) {
  struct Case {
    const char* name;
    int code, shift;
    char32_t character;
  };
  for (const Case& expected : std::initializer_list<Case>{{"enter", 13, 0, 13},
                                                          {"Ctrl+Enter", 13, controls::kCtrl, 10},
                                                          {"Shift+Tab", 9, controls::kShift, 9},
                                                          {"PageDown", 34, 0, 0},
                                                          {"F12", 123, 0, 0},
                                                          {"ctrl+shift+f4", 115, controls::kCtrl | controls::kShift, 0},
                                                          {"Ctrl+D", 68, controls::kCtrl, 4},
                                                          {"Alt+x", 88, controls::kAlt, 0},
                                                          {"Q", 81, controls::kShift, 'Q'},
                                                          {".", 0, 0, '.'},
                                                          {"+", 0, 0, '+'},
                                                          {" ", 32, 0, ' '},
                                                          {"ß", 0, 0, 0xDF}}) {
    controls::KeyStroke key;
    ASSERT_TRUE(controls::ParseKey(expected.name, key)) << expected.name;
    EXPECT_EQ(key.keyCode, expected.code) << expected.name;
    EXPECT_EQ(key.shift, expected.shift) << expected.name;
    EXPECT_EQ(key.character, expected.character) << expected.name;
  }
  controls::KeyStroke key;
  for (const char* name : {"", "F13", "F0", "Return to sender", "Ctrl+", "Shift"}) {
    EXPECT_FALSE(controls::ParseKey(name, key)) << name;
  }
}

}  // namespace
}  // namespace counter
