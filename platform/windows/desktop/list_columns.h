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

/// Gives a list these columns. Those that are there already are kept, so that one which is being pulled stays in the hand.
void ShowColumns(HWND list, int count, const std::function<ColumnLook(int)>& lookOf);

/// The heading of a list in report view.
HWND HeadingOf(HWND list);

/// Draws the arrow of the sorted column upon a heading that the system has drawn, from a WM_NOTIFY that a list got of its
/// heading. `column` counts from 0, -1 for no arrow. The answer where the notification asks for drawing.
std::optional<LRESULT> PaintSortArrow(NMHDR& header, int column, bool ascending);

/// Whether a cell, counted from 0, is too narrow for its text or partly out of the list's window.
bool IsCut(HWND list, int item, int column, const std::string& text);

/// What the mouse does to a column, from a WM_NOTIFY that a list got of its heading.
struct ColumnPull {
  int column = -1;                ///< counts from 0; -1 for any other notification
  std::optional<int> newWidth{};  ///< in pixels, once it has it; before, the column is about to be pulled
};
ColumnPull ColumnPullOf(const NMHDR& header);

}  // namespace windows
