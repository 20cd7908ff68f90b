// Lines of a list.

#include "tests/base/controls/control_stories.h"

namespace counter {
namespace {

long ErrorOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const vb::RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

class ListStory : public ControlStory {
 protected:
  controls::ListView& List() { return form->lvwLines; }
  void Fill(int count) {
    for (int line = 1; line <= count; ++line)
      List().Add("L" + std::to_string(line)).SetSubItem(1, "item " + std::to_string(line));
  }
  std::string Selected() { return List().SelectedItem() == 0 ? "" : List().Item(List().SelectedItem()).Text(); }
};
INSTANTIATE_TEST_SUITE_P(Desktop, ListStory, testing::Values(&MakeDriver));

TEST_P(ListStory, TheFirstLineIsSelectedAndRemovingMovesTheSelectionOn) {
  EXPECT_EQ(Selected(), "");
  Fill(4);
  EXPECT_EQ(Selected(), "L1");
  List().Select(3);
  List().Remove(1);
  EXPECT_EQ(Selected(), "L3");
  List().Remove(2);
  EXPECT_EQ(Selected(), "L4") << "the next line takes over";
  List().Remove(2);
  EXPECT_EQ(Selected(), "L2") << "the last one when there is none behind";
  List().Insert(1, "new");
  EXPECT_EQ(Selected(), "L2");
  List().Clear();
  EXPECT_EQ(Selected(), "");
}

TEST_P(ListStory, ALineHasTheCellsThatTheColumnsGiveIt) {
  Fill(1);
  EXPECT_EQ(List().Item(1).SubItem(1), "item 1");
  EXPECT_EQ(ErrorOf([&] { List().Item(1).SetSubItem(2, "x"); }), vb::kInvalidPropertyValue);
  EXPECT_EQ(ErrorOf([&] { (void)List().Item(1).SubItem(0); }), vb::kInvalidPropertyValue);
  List().AddColumn("Quantity", 900, controls::ColumnAlignment::Right);
  EXPECT_EQ(List().Item(1).SubItem(2), "");
  List().Item(1).SetSubItemToolTip(2, "pieces");
  EXPECT_EQ(List().Item(1).SubItemToolTip(2), "pieces");
  for (const auto& wrong : std::initializer_list<std::function<void()>>{[&] { List().Item(2); }, [&] { List().Item(0); },
                                                                        [&] { List().SetColumnWidth(4, 1); },
                                                                        [&] { List().Remove(2); }, [&] { List().Select(2); }}) {
    EXPECT_EQ(ErrorOf(wrong), 35600);
  }
}

TEST_P(ListStory, APersonSelectsByMouseAndArrowsAndCodeSelectsSilently) {
  form->On(form->lvwLines.ItemClick, "ItemClick", [&](controls::ListItem& line) { form->story.push_back(line.Text()); });
  form->Tell(List().Click, "click");
  Work([&] {
    Fill(60);
    List().Select(2);
    EXPECT_EQ(form->Told(), "");
    person->ClickLine(List(), 3);
    EXPECT_EQ(form->Told(), "L3, click");
    person->Press("Up");
    person->Press("PageDown");
    person->Press("End");
    person->Press("Down");
    const long page = person->Desktop().RowsShown(List());
    EXPECT_EQ(form->Told(), "L2, L" + std::to_string(2 + page) + ", L60") << "at the end nothing new is selected";
  });
}

TEST_P(ListStory, CheckBoxesTellOnlyWhatAPersonDoes) {
  form->On(form->lvwLines.ItemCheck, "ItemCheck",
           [&](controls::ListItem& line) { form->story.push_back(line.Text() + (line.Checked() ? " on" : " off")); });
  Work([&] {
    Fill(2);
    List().SetFocus();
    person->Press("Space");
    EXPECT_EQ(form->Told(), "") << "a list without check boxes";
    List().SetCheckBoxes(true);
    List().Item(2).SetChecked(true);
    EXPECT_EQ(form->Told(), "");
    person->CheckLine(List(), 2, false);
    person->Press("Space");
    EXPECT_EQ(form->Told(), "L2 off, L1 on");
  });
}

TEST_P(ListStory, ALineMayRemoveItselfWhileItIsClicked) {
  form->On(form->lvwLines.ItemClick, "ItemClick", [&](controls::ListItem& line) {
    List().Clear();
    form->story.push_back("bye " + line.Text());
  });
  Work([&] {
    Fill(2);
    person->ClickLine(List(), 2);
    EXPECT_EQ(form->Told(), "bye L2");
  });
}

TEST_P(ListStory, LinesAreCopiedAsATableAndTextIsPastedAsAWhole) {
  Fill(3);
  List().AddColumn("Id", 0);
  form->On(List().Pasted, "lvwLines_Pasted", [&](const std::string& text) { form->story.push_back(text); });
  Work([&] {
    person->ClickLine(List(), 2);
    person->Press("Ctrl+C");
    EXPECT_EQ(person->Desktop().ClipboardText(), "Code\tName\r\nL2\titem 2\r\n");
    person->Press("Ctrl+A");
    person->Press("Ctrl+C");
    const std::string all = "Code\tName\r\nL1\titem 1\r\nL2\titem 2\r\nL3\titem 3\r\n";
    EXPECT_EQ(person->Desktop().ClipboardText(), all);
    EXPECT_EQ(Selected(), "L2");
    person->Press("Ctrl+V");
    EXPECT_EQ(form->Told(), all);
    person->Press("Up");
    person->Press("Ctrl+C");
    EXPECT_EQ(person->Desktop().ClipboardText(), "Code\tName\r\nL1\titem 1\r\n") << "who goes on selects one line again";
  });
}

}  // namespace
}  // namespace counter
