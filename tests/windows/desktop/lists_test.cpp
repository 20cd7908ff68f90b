// Lists and frames on the screen: what the mouse does to lines, boxes, headings and columns, and what is painted.

#include <algorithm>
#include <gtest/gtest.h>

#include "platform/windows/desktop/list_window.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"
#include "tests/base/controls/counter_form.h"
#include "tests/windows/desktop/windows_driver.h"

namespace counter {
namespace {

/// The pixels of a window, row by row, for comparisons.
std::vector<COLORREF> PictureOf(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  const HDC dc = GetDC(window);
  std::vector<COLORREF> pixels;
  for (int y = 0; y < inside.bottom; ++y) {
    for (int x = 0; x < inside.right; ++x) pixels.push_back(GetPixel(dc, x, y));
  }
  ReleaseDC(window, dc);
  return pixels;
}

class ListsOnScreen : public testing::Test {
 protected:
  WindowsDriver person;
  DrivenDesktop& desktop = person.Desktop();
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(desktop);
  controls::ListView& lines = form->lvwLines;
  controls::FlexGrid& grid = form->flexStock;

  HWND Window(controls::Control& control) { return desktop.HandleOf(control); }

  void FillLines() {
    for (int line = 1; line <= 3; ++line) lines.Add("L" + std::to_string(line)).SetSubItem(1, "Frying pan");
    desktop.DoEvents();
  }
  /// Four rows of stock with the columns code and name.
  void FillStock() {
    form->tabPages.SetTab(1);
    grid.SetFormatString("Code|Name|Quantity");
    grid.SetRows(1);
    for (const char* row : {"KT1003\tFrying pan", "KT1001\tSoup bowl", "KT1002\tLid", "KT1004\tLadle"}) grid.AddItem(row);
    desktop.DoEvents();
  }
  /// A point inside a cell, both counted from 0; the row may lie below the last one.
  POINT Cell(controls::Control& list, int row, int column) {
    const RECT cell = windows::ListWindow(Window(list)).CellPlace(0, column);
    return {cell.left + 5, cell.top + 4 + row * (cell.bottom - cell.top)};
  }
  /// A mouse button goes down and up; `second` for the second half of a double click.
  void Button(HWND window, POINT point, UINT down = WM_LBUTTONDOWN) {
    const auto place = static_cast<LPARAM>(MAKELONG(point.x, point.y));
    const bool isRight = down == WM_RBUTTONDOWN;
    PostMessageW(window, down, isRight ? MK_RBUTTON : MK_LBUTTON, place);
    PostMessageW(window, isRight ? WM_RBUTTONUP : WM_LBUTTONUP, 0, place);
    desktop.DoEvents();
  }
  void DoubleClick(HWND window, POINT point) {
    Button(window, point);
    Button(window, point, WM_LBUTTONDBLCLK);
  }
  /// The mouse takes the right edge of a column along, by pixels. Whether it could take hold of it.
  bool Drag(controls::Control& list, int column, int by) {
    const HWND heading = windows::ListWindow(Window(list)).Heading();
    RECT item{};
    SendMessageW(heading, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    const int middle = (item.top + item.bottom) / 2;
    const auto at = [&](int x) { return static_cast<LPARAM>(MAKELONG(x, middle)); };
    // On the edge itself it would take hold of a hidden column after it.
    const LONG edge = std::max(0L, item.right - 2);
    PostMessageW(heading, WM_LBUTTONDOWN, MK_LBUTTON, at(edge));
    PostMessageW(heading, WM_MOUSEMOVE, MK_LBUTTON, at(edge + by));
    PostMessageW(heading, WM_LBUTTONUP, 0, at(edge + by));
    desktop.DoEvents();
    return WidthOf(list, column) != item.right - item.left;
  }
  LRESULT WidthOf(controls::Control& list, int column) {
    return SendMessageW(Window(list), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0);
  }
  /// What the tool tip says once the mouse has come to rest; "" when none shows.
  std::string TipOver(controls::Control& list, int row, int column) {
    desktop.DoEvents();
    const HWND window = Window(list);
    POINT mouse = Cell(list, row, column);
    const auto place = static_cast<LPARAM>(MAKELONG(mouse.x, mouse.y));
    ClientToScreen(window, &mouse);
    SetCursorPos(mouse.x, mouse.y);
    // The first move takes the old tip away, the second one starts to wait for the new.
    for (int move = 0; move < 2; ++move) PostMessageW(window, WM_MOUSEMOVE, 0, place);
    for (int patience = 0; patience < 60; ++patience) {
      desktop.DoEvents();
      Sleep(50);
      const HWND tip = FindWindowW(TOOLTIPS_CLASSW, nullptr);
      if (tip != nullptr && IsWindowVisible(tip)) return windows::Utf8(windows::WindowText(tip));
    }
    return "";
  }
};

TEST_F(ListsOnScreen, OnlyTheBoxOfALineTicksIt) {
  form->Tell(lines.ItemCheck, "ticked");
  person.Work(*form, [&] {
    lines.SetCheckBoxes(true);
    FillLines();
    const POINT text = Cell(lines, 1, 0);
    const POINT box{text.x - 15, text.y};
    Button(Window(lines), text);
    EXPECT_EQ(lines.SelectedItem(), 2);
    Button(Window(lines), Cell(lines, 2, 1));
    EXPECT_EQ(lines.SelectedItem(), 3);
    EXPECT_EQ(form->Told(), "");
    Button(Window(lines), box);
    EXPECT_EQ(form->Told(), "ticked");
    EXPECT_TRUE(lines.Item(2).Checked());
    DoubleClick(Window(lines), box);
    EXPECT_EQ(form->Told(), "ticked, ticked") << "however quick they are, two clicks are two";
    EXPECT_TRUE(lines.Item(2).Checked());
  });
}

TEST_F(ListsOnScreen, ADoubleClickOpensALineAndNothingBelowTheLast) {
  form->Tell(lines.DblClick, "line");
  form->Tell(grid.DblClick, "row");
  person.Work(*form, [&] {
    DoubleClick(Window(lines), {20, 100});
    EXPECT_EQ(form->Told(), "line") << "an empty list is opened for its first line";
    FillLines();
    DoubleClick(Window(lines), Cell(lines, 3, 0));
    EXPECT_EQ(form->Told(), "");
    DoubleClick(Window(lines), Cell(lines, 2, 1));
    EXPECT_EQ(form->Told(), "line");
    FillStock();
    DoubleClick(Window(grid), Cell(grid, 4, 0));
    EXPECT_EQ(form->Told(), "");
    EXPECT_EQ(SendMessageW(Window(grid), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), grid.Row() - 1);
    DoubleClick(Window(grid), Cell(grid, 3, 0));
    EXPECT_EQ(form->Told(), "row");
  });
}

TEST_F(ListsOnScreen, TheRightButtonSelectsTheRowBelowItUnlessItIsSelected) {
  form->On(grid.MouseUp, "flexStock_MouseUp",
           [&](int, int) { form->story.push_back(std::to_string(grid.Row()) + " to " + std::to_string(grid.RowSel())); });
  person.Work(*form, [&] {
    FillStock();
    Button(Window(grid), Cell(grid, 1, 0), WM_RBUTTONDOWN);
    EXPECT_EQ(form->Told(), "2 to 2");
    EXPECT_EQ(person.Focus(*form), "flexStock");
    Button(Window(grid), Cell(grid, 4, 0), WM_RBUTTONDOWN);
    EXPECT_EQ(form->Told(), "2 to 2") << "there is no row";
    person.Press("Shift+Down");
    Button(Window(grid), Cell(grid, 2, 1), WM_RBUTTONDOWN);
    EXPECT_EQ(form->Told(), "2 to 3") << "several rows stay selected";
    Button(Window(grid), Cell(grid, 0, 1), WM_RBUTTONDOWN);
    EXPECT_EQ(form->Told(), "1 to 1");
  });
}

TEST_F(ListsOnScreen, AColumnPulledShutCanBePulledOpen) {
  person.Work(*form, [&] {
    lines.AddColumn("Remarks", 0);
    FillLines();
    EXPECT_TRUE(Drag(lines, 1, 40));
    EXPECT_TRUE(Drag(lines, 1, -1000));
    EXPECT_GT(WidthOf(lines, 1), 0);
    EXPECT_TRUE(Drag(lines, 1, 90));
    EXPECT_GT(WidthOf(lines, 1), 90);
    EXPECT_EQ(lines.Column(3).width, 0);

    FillStock();
    grid.SetColWidth(0, 0);
    desktop.DoEvents();
    EXPECT_FALSE(Drag(grid, 0, 60)) << "what the program hides stays hidden";
    EXPECT_FALSE(grid.HasPulledColumns());
    EXPECT_TRUE(Drag(grid, 1, -1000));
    EXPECT_TRUE(Drag(grid, 1, 70));
    EXPECT_GT(WidthOf(grid, 1), 70);
    EXPECT_EQ(WidthOf(grid, 0), 0);
    EXPECT_TRUE(grid.HasPulledColumns());
  });
}

TEST_F(ListsOnScreen, AnArrowInTheHeadingShowsTheOrder) {
  person.Work(*form, [&] {
    FillStock();
    const HWND heading = windows::ListWindow(Window(grid)).Heading();
    const auto shown = [&](long column, bool ascending) {
      grid.ShowSortedBy(column, ascending);
      desktop.DoEvents();
      return PictureOf(heading);
    };
    const auto none = PictureOf(heading);
    const auto up = shown(1, true);
    EXPECT_TRUE(up != none);
    const auto down = shown(1, false);
    EXPECT_TRUE(down != none);
    EXPECT_TRUE(down != up);
    EXPECT_TRUE(shown(0, false) != down);
    EXPECT_TRUE(shown(-1, true) == none);
  });
}

TEST_F(ListsOnScreen, ACellThatIsCutShowsItsTextAsToolTip) {
  person.Work(*form, [&] {
    FillLines();
    lines.SetColumnWidth(2, 600);
    lines.Item(2).SetSubItem(1, "Saucepan with lid");
    lines.Item(3).SetSubItem(1, "Saucepan with spout");
    lines.Item(3).SetSubItemToolTip(1, "7 in stock");
    EXPECT_EQ(TipOver(lines, 1, 1), "Saucepan with lid");
    EXPECT_EQ(TipOver(lines, 2, 1), "7 in stock") << "a text of its own comes first";
    FillStock();
    grid.SetColWidth(0, 1200);
    grid.SetColWidth(1, 500);
    EXPECT_EQ(TipOver(grid, 1, 1), "Soup bowl");
    EXPECT_EQ(TipOver(grid, 1, 0), "") << "KT1001 is all there";
  });
}

TEST_F(ListsOnScreen, AFrameIsWholeWhateverSizeItsFormTakes) {
  person.Work(*form, [&] {
    desktop.DoEvents();
    const HWND window = desktop.HandleOf(*form);
    const auto before = PictureOf(Window(form->fraSort));
    RECT whole{};
    GetWindowRect(window, &whole);
    for (const LONG growth : {80, 0}) {
      SetWindowPos(window, nullptr, 0, 0, whole.right - whole.left + growth, whole.bottom - whole.top + growth,
                   SWP_NOMOVE | SWP_NOZORDER);
      desktop.DoEvents();
      EXPECT_TRUE(PictureOf(Window(form->fraSort)) == before) << "larger by " << growth;
    }
    form->SetCaption("Counter 2");
    desktop.DoEvents();
    EXPECT_TRUE(PictureOf(Window(form->fraSort)) == before) << "under another title";
  });
}

}  // namespace
}  // namespace counter
