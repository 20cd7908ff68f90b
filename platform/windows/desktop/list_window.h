#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/windows/desktop/common_controls.h"

namespace windows {

/// How one column of a list looks.
struct ColumnLook {
  std::string heading;
  int width = 0;             ///< in pixels
  int format = LVCFMT_LEFT;  ///< LVCFMT_*
};

/// A cell under the mouse, counted from 0; `item` is -1 where there is none.
struct ListHit {
  int item = -1;
  int column = 0;
  bool isBox = false;  ///< over the item's check box
};

/// A system list view in report style that asks its owner for the items it shows. Items and columns count from 0, sizes are in
/// pixels. Does not own the window.
class ListWindow {
 public:
  explicit ListWindow(HWND handle) : handle_(handle) {}

  void SetExtendedStyle(DWORD mask, DWORD style) const;
  void SetBackColor(COLORREF color) const;
  void SetTextColor(COLORREF color) const;
  /// The scroll position stays.
  void SetCount(long count) const;
  /// Adds, removes and changes columns; those that stay are kept, so that a drag of their edge goes on.
  void SetColumns(int count, const std::function<ColumnLook(int)>& lookOf) const;

  void Select(long item) const;
  void Deselect(long item) const;
  void DeselectAll() const;
  void EnsureVisible(long item) const;
  /// Scrolls so that the item is the first one shown.
  void SetTopItem(long item) const;
  void ScrollToColumn(long column) const;
  /// Both ends are redrawn, too.
  void RedrawItems(long first, long last) const;
  /// The number of items that fit into the window.
  long CountPerPage() const;

  HWND Heading() const;
  /// The column's place in the heading; nothing where there is no such column.
  std::optional<RECT> HeadingPlace(long column) const;
  /// The text of a cell, in the list's coordinates.
  RECT CellPlace(int item, int column) const;
  /// Of an item's text or check box: `part` is LVIR_*. Nothing where there is no such item.
  std::optional<RECT> ItemPlace(long item, int part) const;
  ListHit HitTest(POINT point) const;
  /// Whether a cell is too narrow for its text or partly outside the window.
  bool IsCut(int item, int column, const std::string& text) const;
  /// The lower left corner of the focused item; the list's own corner when that item is not in view.
  POINT BelowFocusedItem() const;

 private:
  void SetState(long item, UINT state) const;

  HWND handle_;
};

/// Copies a text into the buffer that the window offers, cut to its size.
void CopyText(const std::string& text, LVITEMW& item);

/// Draws the arrow of the sorted column on a heading that the system has drawn, from a WM_NOTIFY that a list got from its
/// heading. `column` counts from 0, -1 for no arrow. The answer where the notification asks for drawing.
std::optional<LRESULT> PaintSortArrow(NMHDR& header, int column, bool ascending);

/// A column being resized with the mouse, from a WM_NOTIFY that a list got from its heading.
struct ColumnResize {
  int column = -1;                ///< counts from 0; -1 for any other notification
  std::optional<int> newWidth{};  ///< in pixels; nothing when the resizing is about to begin
};
ColumnResize ColumnResizeOf(const NMHDR& header);

}  // namespace windows
