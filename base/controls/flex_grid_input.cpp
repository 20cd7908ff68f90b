// What a person does to the grid: mouse, keys, the clipboard.

#include <algorithm>

#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/keys.h"
#include "base/controls/table_text.h"

namespace controls {

void FlexGrid::ClickCell(long row, long col) {
  CheckCell(row, col);
  mouseRow_ = row;
  mouseCol_ = col;
  MoveCurrent(row, col);
  Click.Fire();
}

void FlexGrid::ClickHeading(long col) {
  CheckCell(0, col);
  mouseRow_ = 0;
  mouseCol_ = col;
  Click.Fire();
  if (Owner().IsLoaded()) HeadingClick.Fire(col);
}

void FlexGrid::SelectRange(long firstRow, long lastRow) {
  CheckCell(firstRow, 0);
  CheckCell(lastRow, 0);
  MoveCurrent(firstRow, std::min(fixedCols_, Cols() - 1));
  MoveSelection(lastRow, Cols() - 1);
}

void FlexGrid::MoveMouse(long row, long col) {
  CheckCell(row, col);
  mouseRow_ = row;
  mouseCol_ = col;
  MouseMove.Fire();
}

void FlexGrid::ScrollTo(long row) {
  const long shown = Owner().Desktop().RowsShown(*this);
  if (row < topRow_) {
    topRow_ = row;
  } else if (row >= topRow_ + shown) {
    topRow_ = row - shown + 1;
  }
}

bool FlexGrid::NavigationKey(int keyCode, int shift) {
  if (Rows() <= fixedRows_ || Cols() <= fixedCols_) return false;
  const bool extend = (shift & kShift) != 0;
  const bool ctrl = (shift & kCtrl) != 0;
  long row = extend ? rowSel_ : row_;
  long col = extend ? colSel_ : col_;
  switch (keyCode) {
    case kKeyUp:
      row -= 1;
      break;
    case kKeyDown:
      row += 1;
      break;
    case kKeyLeft:
      col -= 1;
      break;
    case kKeyRight:
      col += 1;
      break;
    case kKeyPageUp:
      row -= Owner().Desktop().RowsShown(*this);
      break;
    case kKeyPageDown:
      row += Owner().Desktop().RowsShown(*this);
      break;
    case kKeyHome:
      col = fixedCols_;
      if (ctrl) row = fixedRows_;
      break;
    case kKeyEnd:
      col = Cols() - 1;
      if (ctrl) row = Rows() - 1;
      break;
    default:
      return false;
  }
  row = std::clamp(row, fixedRows_, Rows() - 1);
  col = std::clamp(col, fixedCols_, Cols() - 1);
  ScrollTo(row);
  if (extend) {
    MoveSelection(row, col);
  } else {
    MoveCurrent(row, col);
  }
  return true;
}

void FlexGrid::OnKey(int keyCode, int shift) {
  if (shift == kCtrl && keyCode == 'C') {
    CopyRows();
  } else if (shift == kCtrl && keyCode == 'A' && Rows() > fixedRows_) {
    SelectRange(fixedRows_, Rows() - 1);
  } else {
    NavigationKey(keyCode, shift);
  }
}

void FlexGrid::CopyRows() const {
  TableText table;
  const auto addRow = [&](long row) {
    for (long col = 0; col < Cols(); ++col) {
      if (ColWidth(col) != 0) table.AddCell(TextMatrix(row, col));
    }
    table.EndRow();
  };
  for (long row = 0; row < fixedRows_; ++row) addRow(row);
  const RowRange selected = SelectedRows();
  for (long row = std::max(selected.first, fixedRows_); row <= selected.last; ++row) addRow(row);
  Owner().Desktop().PutOnClipboard(table.Text());
}

}  // namespace controls
