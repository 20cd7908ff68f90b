// What keys do to windows that a model knows nothing of: what is selected, and what comes into view.

#include <gtest/gtest.h>

#include "platform/windows/desktop/common_controls.h"
#include "tests/base/controls/counter_form.h"
#include "tests/windows/desktop/windows_driver.h"

namespace counter {
namespace {

class KeysOnWindows : public testing::Test {
 protected:
  WindowsDriver person;
  DrivenDesktop& desktop = person.Desktop();
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(desktop);

  HWND Window(controls::Control& control) { return desktop.HandleOf(control); }
  /// The first and the last selected character of a box, as its window says.
  std::pair<int, int> Selected(controls::Control& box) {
    desktop.DoEvents();
    DWORD from = 0;
    DWORD to = 0;
    const UINT ask = box.Kind() == controls::ControlKind::ComboBox ? CB_GETEDITSEL : EM_GETSEL;
    SendMessageW(Window(box), ask, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return {static_cast<int>(from), static_cast<int>(to)};
  }
  using Span = std::pair<int, int>;
  /// A column's left and right edge, in the list's own coordinates.
  RECT PlaceOf(HWND list, int column) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
    RECT place{};
    SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place));
    MapWindowPoints(header, list, reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
};

TEST_F(KeysOnWindows, KeysThatEnterABoxSelectWhatItHolds) {
  form->On(form->Loading, "Form_Load", [&] { form->cboUnit.SetStyle(controls::ComboStyle::DropDown); });
  person.Work(*form, [&] {
    form->txtItem.SetText("KT1001");
    form->txtQuantity.SetText("48");
    form->cboUnit.SetText("Box");
    person.Press("Tab");
    EXPECT_EQ(Selected(form->txtQuantity), (Span{0, 2}));
    person.Press("Tab");
    EXPECT_EQ(Selected(form->cboUnit), (Span{0, 3}));
    person.Press("Alt+I");
    EXPECT_EQ(Selected(form->txtItem), (Span{0, 6}));
    person.Press("Tab");
    person.Press("1");
    person.Press("2");
    EXPECT_EQ(person.Read(form->txtQuantity, "Text"), "12");

    // The mouse puts the caret where it clicks, and code leaves it alone.
    person.Click(form->txtItem);
    const Span clicked = Selected(form->txtItem);
    EXPECT_EQ(clicked.first, clicked.second);
    form->txtQuantity.SetFocus();
    EXPECT_EQ(Selected(form->txtQuantity), (Span{2, 2}));
  });
}

TEST_F(KeysOnWindows, TheCurrentColumnComesIntoView) {
  controls::FlexGrid& grid = form->flexStock;
  person.Work(*form, [&] {
    form->tabPages.SetTab(1);
    grid.SetCols(4);
    for (long column = 0; column < 4; ++column) grid.SetColWidth(column, 3600);
    grid.SetTextMatrix(1, 0, "KT1003");
    grid.SetFocus();
    grid.SetCol(0);
    desktop.DoEvents();
    const HWND list = Window(grid);
    RECT inside{};
    GetClientRect(list, &inside);
    const auto isSeen = [&](int column) {
      desktop.DoEvents();
      const RECT place = PlaceOf(list, column);
      return place.left >= 0 && place.right <= inside.right;
    };
    EXPECT_FALSE(isSeen(2));
    for (const auto& [key, column] : {std::pair{"Right", 1}, {"Right", 2}, {"End", 3}, {"Left", 2}, {"Home", 0}}) {
      person.Press(key);
      EXPECT_TRUE(isSeen(column)) << key;
    }
    // Scrolled away by mouse, it comes back.
    SendMessageW(list, LVM_SCROLL, 200, 0);
    person.Press("Home");
    EXPECT_TRUE(isSeen(0));
  });
}

TEST_F(KeysOnWindows, PageKeysGoByTheRowsShown) {
  controls::FlexGrid& grid = form->flexStock;
  person.Work(*form, [&] {
    form->tabPages.SetTab(1);
    for (int row = 2; row <= 100; ++row) grid.AddItem("KT" + std::to_string(row));
    grid.SetFocus();
    desktop.DoEvents();
    const auto shown = static_cast<long>(SendMessageW(Window(grid), LVM_GETCOUNTPERPAGE, 0, 0));
    ASSERT_GT(shown, 10);
    person.Press("PageDown");
    EXPECT_EQ(grid.Row(), 1 + shown);
    desktop.DoEvents();
    EXPECT_EQ(SendMessageW(Window(grid), LVM_GETTOPINDEX, 0, 0), 1) << "the row is the last one in view";
    person.Press("PageUp");
    EXPECT_EQ(grid.Row(), 1);
  });
}

TEST_F(KeysOnWindows, ALabelStandsBeforeItsBoxWhereverItWasMade) {
  form->On(form->Loading, "Form_Load", [&] {
    int index = 0;
    for (controls::Control* control :
         std::initializer_list<controls::Control*>{&form->txtItem, &form->lblItem, &form->txtQuantity}) {
      control->SetTabIndex(index++);
    }
  });
  person.Work(*form, [&] { EXPECT_EQ(GetWindow(Window(form->txtQuantity), GW_HWNDPREV), Window(form->lblItem)); });
}

TEST_F(KeysOnWindows, TheMenuOfABoxUndoesAsItsKeyDoes) {
  person.Work(*form, [&] {
    const HWND box = Window(form->txtItem);
    EXPECT_FALSE(SendMessageW(box, EM_CANUNDO, 0, 0));
    person.Type(form->txtItem, "KT1001");
    EXPECT_TRUE(SendMessageW(box, EM_CANUNDO, 0, 0));
    SendMessageW(box, WM_UNDO, 0, 0);
    EXPECT_EQ(person.Read(form->txtItem, "Text"), "");
  });
}

TEST_F(KeysOnWindows, ALongPasteIsShownOnce) {
  int shown = 0;
  person.Work(*form, [&] {
    // A box without a limit takes it all; the window hears of it at the end.
    form->On(form->txtItem.Change, "txtItem_Change", [&] {
      if (GetWindowTextLengthW(Window(form->txtItem)) > 0) ++shown;
    });
    person.Paste(form->txtItem, std::string(5000, 'x'));
    EXPECT_EQ(person.Read(form->txtItem, "Text"), std::string(5000, 'x'));
    EXPECT_EQ(shown, 0);
  });
}

TEST_F(KeysOnWindows, F10IsAKeyOfTheFormAndOpensNoWindowMenu) {
  form->On(form->lvwLines.KeyDown, "lvwLines_KeyDown", [&](int& code, int) { form->story.push_back(std::to_string(code)); });
  person.Work(*form, [&] {
    form->lvwLines.SetFocus();
    // The system's own message for it.
    const HWND list = Window(form->lvwLines);
    PostMessageW(list, WM_SYSKEYDOWN, VK_F10, 1);
    PostMessageW(list, WM_SYSKEYUP, VK_F10, 1);
    desktop.DoEvents();
    EXPECT_EQ(form->Told(), "121");
    GUITHREADINFO thread{};
    thread.cbSize = sizeof(thread);
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    EXPECT_EQ(thread.flags & GUI_INMENUMODE, 0u);
  });
}

}  // namespace
}  // namespace counter
