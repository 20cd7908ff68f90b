// What people do with windows that a model knows nothing of: lists left open, columns pulled, menus by key.

#include <gtest/gtest.h>

#include "platform/windows/desktop/list_window.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"
#include "tests/base/controls/counter_form.h"
#include "tests/windows/desktop/windows_driver.h"

namespace counter {
namespace {

/// A resizable form made for a larger screen than this one.
class frmLarge : public controls::Form {
 public:
  explicit frmLarge(controls::Desktop& desktop) : Form(desktop, "frmLarge") {}

  controls::ListView lvwLines{*this, "lvwLines"};
  controls::CommandButton cmdClose{*this, "cmdClose"};

 protected:
  void Design() override {
    SetSize(40000, 30000);
    SetResizable(true);
    lvwLines.Move(120, 120, 39760, 29000);
    lvwLines.SetAnchors(controls::kAnchorLeft | controls::kAnchorTop | controls::kAnchorRight | controls::kAnchorBottom);
    cmdClose.Move(38000, 29400, 1800, 420);
    cmdClose.SetAnchors(controls::kAnchorRight | controls::kAnchorBottom);
  }
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override {
    FAIL() << routine << ": " << error.Description();
  }
};

class WindowHabits : public testing::Test {
 protected:
  WindowsDriver person;
  DrivenDesktop& desktop = person.Desktop();
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(desktop);

  HWND Window(controls::Control& control) { return desktop.HandleOf(control); }
  static LRESULT SelectedLine(HWND list) { return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED); }
  static HWND HeaderOf(HWND list) { return reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0)); }
  static LRESULT WidthOf(HWND list, int column) { return SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0); }

  /// The mouse gives a column another width, in pixels.
  void Pull(HWND list, int column, int width) {
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    SendMessageW(HeaderOf(list), HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    desktop.DoEvents();
  }
  /// Whether the list lets the mouse take hold of a column's edge.
  static bool LetsPull(HWND list, int column) {
    NMHEADERW start{};
    start.hdr = {HeaderOf(list), 0, HDN_BEGINTRACKW};
    start.iItem = column;
    return SendMessageW(list, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&start)) == 0;
  }
  void FillLines(int count) {
    for (int line = 1; line <= count; ++line) form->lvwLines.Add("L" + std::to_string(line));
    desktop.DoEvents();
  }
};

TEST_F(WindowHabits, AnOpenListIsAsItIsShownWhateverLeavesIt) {
  person.Work(*form, [&] {
    for (const char* unit : {"Piece", "Box", "Carton"}) form->cboUnit.AddItem(unit);
    form->cboUnit.SetListIndex(0);
    form->cboUnit.SetFocus();
    desktop.DoEvents();
    SendMessageW(Window(form->cboUnit), CB_SHOWDROPDOWN, TRUE, 0);
    person.Press("Down");
    form->Tell(form->cboUnit.Click, "picked");
    person.Press("Down");
    person.Press("Tab");
    EXPECT_NE(person.Focus(*form), "cboUnit");
    EXPECT_EQ(person.Read(form->cboUnit, "ListIndex"), "2");
    EXPECT_EQ(form->Told(), "picked") << "once for the entry, not again for leaving";
  });
}

TEST_F(WindowHabits, APulledColumnKeepsItsWidthWhenTheListIsFilledAnew) {
  person.Work(*form, [&] {
    const HWND lines = Window(form->lvwLines);
    Pull(lines, 1, 137);
    form->lvwLines.SetColumnText(1, "Item");
    FillLines(3);
    EXPECT_EQ(WidthOf(lines, 1), 137);

    form->tabPages.SetTab(1);
    form->flexStock.SetFormatString("Id|Code|Quantity");
    form->flexStock.SetColWidth(0, 0);
    desktop.DoEvents();
    const HWND stock = Window(form->flexStock);
    Pull(stock, 2, 151);
    form->flexStock.AddItem("7\tKT1003\t12");
    form->flexStock.SetTextMatrix(0, 2, "Qty.");
    desktop.DoEvents();
    EXPECT_EQ(WidthOf(stock, 2), 151);
    EXPECT_TRUE(LetsPull(stock, 2));
    EXPECT_FALSE(LetsPull(stock, 0)) << "what is hidden stays hidden";
  });
}

TEST_F(WindowHabits, AClickBelowTheLastLineLeavesTheLineSelected) {
  person.Work(*form, [&] {
    FillLines(2);
    const HWND lines = Window(form->lvwLines);
    RECT inside{};
    GetClientRect(lines, &inside);
    const LPARAM below = MAKELPARAM(20, inside.bottom - 20);
    PostMessageW(lines, WM_LBUTTONDOWN, MK_LBUTTON, below);
    PostMessageW(lines, WM_LBUTTONUP, 0, below);
    desktop.DoEvents();
    EXPECT_EQ(form->lvwLines.SelectedItem(), 1);
    EXPECT_EQ(SelectedLine(lines), 0);
  });
}

TEST_F(WindowHabits, TheMenuKeyOpensTheMenuAtTheLine) {
  form->On(form->lvwLines.MouseUp, "lvwLines_MouseUp", [&](int button, int) {
    if (button == controls::kRightButton) form->PopupMenu(form->mnuPopup);
  });
  person.Work(*form, [&] {
    FillLines(3);
    form->lvwLines.SetFocus();
    person.Press("Down");
    const HWND lines = Window(form->lvwLines);
    SetCursorPos(0, 0);
    PostMessageW(lines, WM_KEYDOWN, VK_APPS, 1);
    PostMessageW(lines, WM_KEYUP, VK_APPS, 1);
    desktop.DoEvents();
    ASSERT_EQ(desktop.menus.size(), 1u);
    RECT line{};
    line.left = LVIR_BOUNDS;
    SendMessageW(lines, LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&line));
    MapWindowPoints(lines, nullptr, reinterpret_cast<POINT*>(&line), 2);
    EXPECT_NEAR(desktop.menus[0].top, line.bottom, 4);
    EXPECT_GE(desktop.menus[0].left, line.left - 4);
    EXPECT_LT(desktop.menus[0].left, line.right);
  });
}

TEST_F(WindowHabits, CharactersOfEveryKeyboardAreTypedAndPressNoButton) {
  form->Tell(form->cmdOk.Click, "ok");
  form->Tell(form->cmdClose.Click, "close");
  person.Work(*form, [&] {
    form->txtItem.SetFocus();
    // Of a Polish keyboard: their letters are access keys, copy, cut and select the whole text elsewhere.
    for (const auto& [key, character] : {std::pair{'O', L'\u00F3'}, {'C', L'\u0107'}, {'A', L'\u0105'}, {'X', L'\u017A'}}) {
      person.PressFurther(key, character);
    }
    EXPECT_EQ(person.Read(form->txtItem, "Text"), "\u00F3\u0107\u0105\u017A");
    EXPECT_EQ(form->Told(), "");
    EXPECT_EQ(person.Focus(*form), "txtItem");
    // An apple from the panel of pictures comes in two halves.
    form->txtItem.SetText("");
    for (const WPARAM half : {0xD83C, 0xDF4E}) {
      PostMessageW(Window(form->txtItem), WM_CHAR, half, 1);
      desktop.DoEvents();
    }
    EXPECT_EQ(person.Read(form->txtItem, "Text"), "\U0001F34E");
  });
}

TEST_F(WindowHabits, TheToolTipFollowsTheMouseFromCellToCell) {
  controls::FlexGrid& grid = form->flexStock;
  form->On(grid.MouseMove, "flexStock_MouseMove",
           [&] { grid.SetToolTipText(grid.TextMatrix(grid.MouseRow(), grid.MouseCol())); });
  person.Work(*form, [&] {
    form->tabPages.SetTab(1);
    for (const char* row : {"KT1003\tFrying pan", "KT1001\tSoup bowl"}) grid.AddItem(row);
    desktop.DoEvents();
    const HWND window = Window(grid);
    // The mouse rests on a row of the list, the room below its rows included, until a tip shows.
    const auto tipOver = [&](int item) {
      RECT row{};
      row.left = LVIR_BOUNDS;
      SendMessageW(window, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
      POINT mouse{row.left + 10, row.top + 4 + item * (row.bottom - row.top)};
      const auto place = static_cast<LPARAM>(MAKELONG(mouse.x, mouse.y));
      ClientToScreen(window, &mouse);
      SetCursorPos(mouse.x, mouse.y);
      // The first move takes the old tip away, the second one starts to wait for the new.
      for (int move = 0; move < 2; ++move) PostMessageW(window, WM_MOUSEMOVE, 0, place);
      std::string shown;
      for (int patience = 0; patience < 60 && shown.empty(); ++patience) {
        desktop.DoEvents();
        Sleep(50);
        const HWND tip = FindWindowW(TOOLTIPS_CLASSW, nullptr);
        if (tip != nullptr && IsWindowVisible(tip)) shown = windows::Utf8(windows::WindowText(tip));
      }
      return shown;
    };
    EXPECT_EQ(tipOver(grid.Rows() - 2), "KT1001");
    EXPECT_EQ(tipOver(grid.Rows() - 3), "KT1003");
    EXPECT_EQ(tipOver(grid.Rows() + 2), "") << "nothing is below the last row";
  });
}

TEST_F(WindowHabits, WhatStandsInAFrameMovesAndGrowsWithIt) {
  person.Work(*form, [&] {
    form->fraSort.SetAnchors(controls::kAnchorLeft | controls::kAnchorBottom | controls::kAnchorRight);
    form->optDown.SetAnchors(controls::kAnchorRight | controls::kAnchorTop);
    form->tabPages.SetAnchors(controls::kAnchorTop | controls::kAnchorRight);
    const auto place = [&](controls::Control& control) {
      RECT rect{};
      GetWindowRect(Window(control), &rect);
      return rect;
    };
    const RECT frame = place(form->fraSort), up = place(form->optUp), down = place(form->optDown), list = place(form->lvwLines);
    RECT whole{};
    GetWindowRect(desktop.HandleOf(*form), &whole);
    SetWindowPos(desktop.HandleOf(*form), nullptr, 0, 0, whole.right - whole.left + 90, whole.bottom - whole.top + 60,
                 SWP_NOMOVE | SWP_NOZORDER);
    desktop.DoEvents();
    EXPECT_EQ(place(form->fraSort).top - frame.top, 60);
    EXPECT_EQ(place(form->fraSort).right - frame.right, 90);
    EXPECT_EQ(place(form->optUp).top - up.top, 60) << "not left behind";
    EXPECT_EQ(place(form->optUp).right - up.right, 0);
    EXPECT_EQ(place(form->optDown).left - down.left, 90);
    EXPECT_EQ(place(form->lvwLines).left - list.left, 90);
    EXPECT_EQ(place(form->lvwLines).bottom - list.bottom, 0);
  });
}

TEST_F(WindowHabits, AFormStaysOnTheScreen) {
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  const auto isOnScreen = [&](controls::Form& shown) {
    RECT window{};
    GetWindowRect(desktop.HandleOf(shown), &window);
    RECT both{};
    return IntersectRect(&both, &screen, &window) && EqualRect(&both, &window);
  };
  const auto large = std::make_shared<frmLarge>(desktop);
  form->On(form->cmdOk.Click, "cmdOk_Click", [&] { large->Show(form.get()); });
  person.Work(*form, [&] {
    // Its owner was pushed over the corner of the screen.
    SetWindowPos(desktop.HandleOf(*form), nullptr, screen.right - 60, screen.bottom - 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    person.WorkInNext([&](controls::Form& top) {
      EXPECT_TRUE(isOnScreen(top));
      RECT list{};
      GetWindowRect(Window(large->lvwLines), &list);
      RECT button{};
      GetWindowRect(Window(large->cmdClose), &button);
      EXPECT_LE(list.bottom, button.top) << "the list gives way";
      EXPECT_LE(button.bottom, screen.bottom);
    });
    person.Press("Alt+O");
  });
}

TEST(FormSizes, LargerTextsGiveWayWhereAFormWouldNotFitOnTheScreen) {
  struct Case {
    int dpi;
    SIZE room;
    int width, height, fits;
  };
  for (const Case& screen : {Case{144, {1012, 730}, 10080, 7200, 144},
                             {144, {1012, 730}, 11400, 0, 127},
                             {144, {1012, 730}, 9000, 8400, 125},
                             {192, {1012, 730}, 11400, 0, 127},
                             {192, {400, 300}, 11400, 7000, 96},
                             {96, {400, 300}, 11400, 7000, 96},
                             {72, {400, 300}, 11400, 7000, 72}}) {
    const int fits = windows::FittingDpi(screen.dpi, screen.room, screen.width, screen.height);
    EXPECT_EQ(fits, screen.fits) << screen.width << " by " << screen.height << " at " << screen.dpi;
  }
}

}  // namespace
}  // namespace counter
