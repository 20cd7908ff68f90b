#include "base/controls/flex_grid.h"

#include <algorithm>

#include "base/controls/form.h"
#include "base/controls/keys.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {

constexpr long kBadRow = 30009;
constexpr long kBadCol = 30010;
constexpr long kLastDataRow = 30015;

[[noreturn]] void RaiseRow() {
  vb::Raise(kBadRow, "Invalid Row value");
}
[[noreturn]] void RaiseCol() {
  vb::Raise(kBadCol, "Invalid Col value");
}
std::size_t At(long index) {
  return static_cast<std::size_t>(index);
}
const std::string kNoText;

}  // namespace

void FlexGrid::ItemsChanged() {
  inOrderBy_ = kUnknown;
  Changed(Aspect::Items);
}

long FlexGrid::Rows() const {
  EnsureLoaded();
  return static_cast<long>(rows_.size());
}

long FlexGrid::Cols() const {
  EnsureLoaded();
  return static_cast<long>(columns_.size());
}

void FlexGrid::SetRows(long rows) {
  if (rows < 0) RaiseRow();
  const bool hadNone = Rows() <= fixedRows_;
  rows_.resize(At(rows));
  KeepCurrentInside();
  CurrentIntoData(hadNone);
  ItemsChanged();
}

void FlexGrid::SetCols(long cols) {
  if (cols < 0) RaiseCol();
  EnsureLoaded();
  inOrderBy_ = kUnknown;
  columns_.resize(At(cols));
  for (GridRow& row : rows_) {
    if (row.cells.size() > columns_.size()) row.cells.resize(columns_.size());
    if (row.colors) row.colors->resize(columns_.size());
  }
  if (sortedCol_ >= cols) sortedCol_ = -1;
  KeepCurrentInside();
  Changed(Aspect::Layout);
}

long FlexGrid::FixedRows() const {
  EnsureLoaded();
  return fixedRows_;
}

void FlexGrid::SetFixedRows(long rows) {
  if (rows < 0 || rows > Rows()) RaiseRow();
  inOrderBy_ = kUnknown;
  fixedRows_ = rows;
  if (row_ < fixedRows_ && fixedRows_ < Rows()) MoveCurrent(fixedRows_, col_);
  topRow_ = std::max(topRow_, fixedRows_);
  Changed(Aspect::Layout);
}

long FlexGrid::FixedCols() const {
  EnsureLoaded();
  return fixedCols_;
}

void FlexGrid::SetFixedCols(long cols) {
  if (cols < 0 || cols > Cols()) RaiseCol();
  fixedCols_ = cols;
  if (col_ < fixedCols_ && fixedCols_ < Cols()) MoveCurrent(row_, fixedCols_);
  Changed(Aspect::Layout);
}

long FlexGrid::Row() const {
  EnsureLoaded();
  return row_;
}

long FlexGrid::Col() const {
  EnsureLoaded();
  return col_;
}

void FlexGrid::SetRow(long row) {
  if (row < 0 || row >= Rows()) RaiseRow();
  MoveCurrent(row, col_);
}

void FlexGrid::SetCol(long col) {
  if (col < 0 || col >= Cols()) RaiseCol();
  MoveCurrent(row_, col);
}

void FlexGrid::MoveCurrent(long row, long col) {
  const bool moves = row != row_ || col != col_;
  if (!moves && rowSel_ == row && colSel_ == col) return;
  row_ = rowSel_ = row;
  col_ = colSel_ = col;
  Changed(Aspect::Selection);
  if (moves) RowColChange.Fire();
}

void FlexGrid::MoveSelection(long rowSel, long colSel) {
  if (rowSel == rowSel_ && colSel == colSel_) return;
  rowSel_ = rowSel;
  colSel_ = colSel;
  Changed(Aspect::Selection);
  SelChange.Fire();
}

void FlexGrid::KeepCurrentInside() {
  const long lastRow = std::max(0L, static_cast<long>(rows_.size()) - 1);
  const long lastCol = std::max(0L, static_cast<long>(columns_.size()) - 1);
  topRow_ = std::min(topRow_, lastRow);
  rowSel_ = std::min(rowSel_, lastRow);
  colSel_ = std::min(colSel_, lastCol);
  if (row_ > lastRow || col_ > lastCol) MoveCurrent(std::min(row_, lastRow), std::min(col_, lastCol));
}

void FlexGrid::CurrentIntoData(bool hadNone) {
  if (!hadNone || static_cast<long>(rows_.size()) <= fixedRows_) return;
  row_ = rowSel_ = topRow_ = fixedRows_;
}

long FlexGrid::RowSel() const {
  EnsureLoaded();
  return rowSel_;
}

long FlexGrid::ColSel() const {
  EnsureLoaded();
  return colSel_;
}

FlexGrid::RowRange FlexGrid::SelectedRows() const {
  const auto [first, last] = std::minmax({Row(), rowSel_});
  return {first, last};
}

void FlexGrid::SetRowSel(long row) {
  if (row < 0 || row >= Rows()) RaiseRow();
  MoveSelection(row, colSel_);
}

void FlexGrid::SetColSel(long col) {
  if (col < 0 || col >= Cols()) RaiseCol();
  MoveSelection(rowSel_, col);
}

long FlexGrid::TopRow() const {
  EnsureLoaded();
  return topRow_;
}

void FlexGrid::SetTopRow(long row) {
  if (row < 0 || row >= Rows()) RaiseRow();
  topRow_ = row;
  Changed(Aspect::Selection);
}

void FlexGrid::CheckCell(long row, long col) const {
  if (row < 0 || row >= Rows() || col < 0 || col >= Cols()) vb::Raise(vb::kInvalidPropertyIndex, "Subscript out of range");
}

const std::string& FlexGrid::CellText(const GridRow& row, long col) const {
  return At(col) < row.cells.size() ? row.cells[At(col)] : kNoText;
}

const std::string& FlexGrid::TextMatrix(long row, long col) const {
  CheckCell(row, col);
  return CellText(rows_[At(row)], col);
}

void FlexGrid::SetTextMatrix(long row, long col, std::string_view text) {
  CheckCell(row, col);
  std::vector<std::string>& cells = rows_[At(row)].cells;
  if (At(col) >= cells.size()) cells.resize(columns_.size());
  cells[At(col)] = text;
  ItemsChanged();
}

const std::string& FlexGrid::Text() const {
  return TextMatrix(row_, col_);
}

void FlexGrid::SetText(std::string_view text) {
  SetTextMatrix(row_, col_, text);
}

FlexGrid::GridRow FlexGrid::RowOf(std::string_view tabSeparated) {
  GridRow row;
  row.cells = vb::Split(tabSeparated, "\t");
  if (row.cells.size() > columns_.size()) row.cells.resize(columns_.size());
  return row;
}

void FlexGrid::AddItem(std::string_view tabSeparated, long index) {
  const long count = Rows();
  if (index < -1 || index > count) RaiseRow();
  GridRow row = RowOf(tabSeparated);
  rows_.insert(rows_.begin() + (index < 0 ? count : index), std::move(row));
  CurrentIntoData(count <= fixedRows_);
  ItemsChanged();
}

void FlexGrid::AppendRow(std::vector<std::string>&& cells) {
  const bool hadNone = Rows() <= fixedRows_;
  if (cells.size() > columns_.size()) columns_.resize(cells.size());
  rows_.emplace_back().cells = std::move(cells);
  CurrentIntoData(hadNone);
  ItemsChanged();
}

void FlexGrid::ReserveRows(long rows) {
  EnsureLoaded();
  rows_.reserve(At(std::max(0L, rows)));
}

void FlexGrid::RemoveItem(long row) {
  if (row < 0 || row >= Rows()) RaiseRow();
  if (row >= fixedRows_ && Rows() - fixedRows_ <= 1) vb::Raise(kLastDataRow, "Cannot remove last non-fixed row");
  rows_.erase(rows_.begin() + row);
  KeepCurrentInside();
  ItemsChanged();
}

void FlexGrid::Clear() {
  EnsureLoaded();
  for (GridRow& row : rows_) row = GridRow();
  sortedCol_ = -1;
  ItemsChanged();
}

std::string FlexGrid::Clip() const {
  EnsureLoaded();
  std::string clip;
  const auto [left, right] = std::minmax(col_, colSel_);
  const auto [top, bottom] = std::minmax(row_, rowSel_);
  for (long row = top; row <= bottom; ++row) {
    if (row > top) clip += '\r';
    for (long col = left; col <= right; ++col) {
      if (col > left) clip += '\t';
      clip += TextMatrix(row, col);
    }
  }
  return clip;
}

void FlexGrid::SetClip(std::string_view text) {
  EnsureLoaded();
  if (text.empty()) return;
  const long left = std::min(col_, colSel_);
  const long right = std::max(col_, colSel_);
  const long bottom = std::max(row_, rowSel_);
  long row = std::min(row_, rowSel_);
  for (const std::string& line : vb::Split(text, "\r")) {
    if (row > bottom) return;
    long col = left;
    for (const std::string& cell : vb::Split(line, "\t")) {
      if (col > right) break;
      SetTextMatrix(row, col++, cell);
    }
    ++row;
  }
}

void FlexGrid::Reset() {
  Control::Reset();
  rows_.clear();
  rows_.resize(2);
  columns_.assign(2, GridColumn());
  fixedRows_ = fixedCols_ = 1;
  row_ = col_ = rowSel_ = colSel_ = topRow_ = 1;
  mouseRow_ = mouseCol_ = 0;
  inOrderBy_ = kUnknown;
  sortedCol_ = -1;
  sortedAscending_ = true;
  hasPulledColumns_ = false;
  formatString_.clear();
  backColorSel_ = kHighlight;
  foreColorSel_ = kHighlightText;
}

}  // namespace controls
