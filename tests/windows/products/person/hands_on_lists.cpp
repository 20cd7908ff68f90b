// What somebody does and sees in the list of a form.

#include <algorithm>

#include "platform/windows/desktop/common_controls.h"
#include "tests/windows/products/person/hands.h"
#include "tests/windows/products/person/mouse.h"

namespace person {
namespace {

std::string Joined(const Texts& cells) {
  std::string text;
  for (const std::string& cell : cells) text += (text.empty() ? "" : " | ") + cell;
  return text;
}

}  // namespace

HWND FormOnScreen::List() const {
  HWND widest = nullptr;
  // While a page is turned there is none for a moment.
  Wait(
      [&] {
        LONG width = 0;
        for (HWND child : ChildrenOf(form_)) {
          RECT place{};
          GetWindowRect(child, &place);
          if (KindOf(child) != "SysListView32" || place.right - place.left <= width) continue;
          widest = child;
          width = place.right - place.left;
        }
        return widest != nullptr;
      },
      "a list");
  return widest;
}

void FormOnScreen::GoToList() {
  if (FocusOf(form_) == List()) return;
  ComeToFront();
  ClickPoint(List(), ListOnScreen(List()).PlaceOf(std::max(0, ListOnScreen(List()).SelectedRow())));
  HasFocusOnList();
}

void FormOnScreen::HasFocusOnList() {
  Wait([&] { return FocusOf(form_) == List(); }, "the focus on the list");
}

void FormOnScreen::ClickRow(int row) {
  ComeToFront();
  ClickPoint(List(), ListOnScreen(List()).PlaceOf(row));
  HasSelected(row);
}

void FormOnScreen::DoubleClickRow(int row) {
  ClickRow(row);
  Mouse(List(), ListOnScreen(List()).PlaceOf(row), 2, WM_LBUTTONDOWN, WM_LBUTTONUP);
}

void FormOnScreen::RightClickList() {
  ComeToFront();
  Mouse(List(), MiddleOf(List()), 1, WM_RBUTTONDOWN, WM_RBUTTONUP);
}

void FormOnScreen::ClickCell(int row, const std::string& heading) {
  ComeToFront();
  ClickPoint(List(), ListOnScreen(List()).PlaceOf(row, heading));
}

void FormOnScreen::ClickBox(int row) {
  ComeToFront();
  ClickPoint(List(), ListOnScreen(List()).BoxOf(row));
}

void FormOnScreen::ClickHeading(const std::string& heading) {
  ComeToFront();
  const ListOnScreen list(List());
  const RECT place = list.HeadingPlace(heading);
  ClickPoint(list.Header(), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

void FormOnScreen::PullColumn(const std::string& heading, int right) {
  ComeToFront();
  const ListOnScreen list(List());
  const RECT place = list.HeadingPlace(heading);
  Drag(list.Header(), {place.right - 2, (place.top + place.bottom) / 2}, right);
}

void FormOnScreen::TickRow(int row) {
  ClickRow(row);
  const bool before = ListOnScreen(List()).IsTicked(row);
  Press("Space");
  HasTicked(row, !before);
}

void FormOnScreen::HasRows(int count) {
  int seen = 0;
  WaitUntil([&] { return (seen = ListOnScreen(List()).Rows()) == count; },
            [&] { return std::to_string(seen) + " rows and not " + std::to_string(count) + Describe(process_); });
}

void FormOnScreen::HasRow(int row, const Texts& cells) {
  Texts seen;
  WaitUntil([&] { return (seen = ListOnScreen(List()).Row(row)) == cells; },
            [&] { return "row " + std::to_string(row) + " is\n  " + Joined(seen) + "\nand not\n  " + Joined(cells); });
}

void FormOnScreen::HasSelected(int row) {
  Wait([&] { return ListOnScreen(List()).SelectedRow() == row; }, "row " + std::to_string(row) + " selected");
}

void FormOnScreen::HasSelectedCell(const std::string& cell) {
  Texts seen;
  WaitUntil(
      [&] {
        const ListOnScreen list(List());
        const int row = list.SelectedRow();
        if (row >= 0) seen = list.Row(row);
        return std::find(seen.begin(), seen.end(), cell) != seen.end();
      },
      [&] { return "the selected row is\n  " + Joined(seen) + "\nand has no " + Quoted(cell); });
}

void FormOnScreen::HasSelectedRow(const Texts& cells) {
  Texts seen;
  WaitUntil(
      [&] {
        const ListOnScreen list(List());
        const int row = list.SelectedRow();
        return row >= 0 && (seen = list.Row(row)) == cells;
      },
      [&] { return "the selected row is\n  " + Joined(seen) + "\nand not\n  " + Joined(cells); });
}

void FormOnScreen::HasTicked(int row, bool ticked) {
  Wait([&] { return ListOnScreen(List()).IsTicked(row) == ticked; },
       "row " + std::to_string(row) + (ticked ? " ticked" : " not ticked"));
}

int FormOnScreen::WidthOf(const std::string& heading) const {
  const RECT place = ListOnScreen(List()).HeadingPlace(heading);
  return place.right - place.left;
}

void FormOnScreen::HasWidth(const std::string& heading, int least, int most) {
  Wait([&] { return WidthOf(heading) >= least && WidthOf(heading) <= most; },
       Quoted(heading) + " to be " + std::to_string(least) + " to " + std::to_string(most) + " pixels wide");
}

void FormOnScreen::HasInSight(const std::string& heading) {
  Wait(
      [&] {
        RECT list{};
        GetClientRect(List(), &list);
        const RECT place = ListOnScreen(List()).HeadingPlace(heading);
        return place.left >= 0 && place.right <= list.right;
      },
      "the whole column " + Quoted(heading));
}

SIZE FormOnScreen::ListSize() const {
  RECT place{};
  GetWindowRect(List(), &place);
  return {place.right - place.left, place.bottom - place.top};
}

void FormOnScreen::HasListOf(SIZE size) {
  SIZE seen{};
  WaitUntil(
      [&] {
        seen = ListSize();
        return seen.cx == size.cx && seen.cy == size.cy;
      },
      [&] {
        return "the list has " + std::to_string(seen.cx) + " by " + std::to_string(seen.cy) + " pixels and not " +
               std::to_string(size.cx) + " by " + std::to_string(size.cy);
      });
}

}  // namespace person
