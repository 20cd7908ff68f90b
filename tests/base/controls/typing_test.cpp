// Typing taken back, and pasted text that does not fit as it is.

#include "base/controls/text_box.h"
#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

class TypingStory : public ControlStory {};
INSTANTIATE_TEST_SUITE_P(Desktop, TypingStory, testing::Values(&MakeDriver));

TEST_P(TypingStory, TheLastTypingIsUndoneAsAWholeAndComesBack) {
  form->Tell(form->txtItem.Change, "change");
  Work([&] {
    form->txtItem.SetText("bowl");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "bowl") << "text from code is not undone";
    person->Type(form->txtItem, "s 2");
    form->Told();
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "bowl");
    EXPECT_EQ(form->Told(), "change");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "bowls 2");

    // Erasing is a step of its own, and so is what is typed elsewhere in the text.
    person->Press("Backspace");
    person->Press("Backspace");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "bowls 2");
    person->Press("Home");
    person->Press("t");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "bowls 2");

    // So is what took the place of a selection, and a paste.
    form->txtItem.SelectAll();
    person->Type(form->txtItem, "x");
    person->Paste(form->txtItem, "yz");
    EXPECT_EQ(Text(form->txtItem), "xyz");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "x");
    form->txtItem.SetText("new");
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "new");
    form->txtItem.SelectAll();
    person->Press("y");
    form->txtItem.SetLocked(true);
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->txtItem), "y") << "a locked box keeps its text";
  });
}

TEST_P(TypingStory, UndoingBringsTheEntryBackWhoseTextWasTypedOver) {
  form->On(form->Loading, "Form_Load", [&] { form->cboUnit.SetStyle(controls::ComboStyle::DropDown); });
  Work([&] {
    for (const char* unit : {"Piece", "Box"}) form->cboUnit.AddItem(unit);
    form->cboUnit.SetListIndex(1);
    form->cboUnit.SetFocus();
    form->cboUnit.SetSelStart(3);
    person->Press("y");
    EXPECT_EQ(form->cboUnit.ListIndex(), -1);
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->cboUnit), "Box");
    EXPECT_EQ(person->Read(form->cboUnit, "ListIndex"), "1");
    form->cboUnit.SetListIndex(0);
    person->Press("Ctrl+Z");
    EXPECT_EQ(Text(form->cboUnit), "Piece");
  });
}

TEST_P(TypingStory, APasteEndsWhereTheBoxIsFullAndStaysOnItsLine) {
  int asked = 0;
  form->On(form->txtItem.KeyPress, "txtItem_KeyPress", [&](int& key) {
    ++asked;
    if (key == '\'') key = 0;
  });
  Work([&] {
    form->txtItem.SetMaxLength(250);
    person->Paste(form->txtItem, "for\r\nthe'\nnew\rshelf\r\n");
    EXPECT_EQ(Text(form->txtItem), "for the new shelf");
    asked = 0;
    person->Paste(form->txtItem, std::string(5000, 'x'));
    EXPECT_EQ(Text(form->txtItem), "for the new shelf" + std::string(233, 'x'));
    EXPECT_EQ(asked, 233) << "what cannot be taken is not asked about";
    form->txtItem.SelectAll();
    person->Paste(form->txtItem, "short");
    EXPECT_EQ(Text(form->txtItem), "short");

    // A filter of its own gets one line, too.
    form->txtQuantity.PasteFilter = [](std::string_view text) { return "<" + std::string(text) + ">"; };
    person->Paste(form->txtQuantity, "O'Hara\nBros.\n");
    EXPECT_EQ(Text(form->txtQuantity), "<O'Hara Bros.>");
  });
}

}  // namespace
}  // namespace counter
