// How the grid looks: headings, widths and alignments of its columns, colours of its cells.

#include <algorithm>
#include <utility>

#include "base/controls/flex_grid.h"
#include "base/controls/pulled_column.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {

constexpr long kBadCol = 30010;
constexpr int kDefaultColWidth = 960;  // twips
/// Width of a heading: so much a character, less a blank, and a margin on both sides together.
constexpr int kCharacterWidth = 105;
constexpr int kBlankWidth = 45;
constexpr int kHeadingMargin = 120;

int HeadingWidth(std::string_view text) {
  const auto blanks = static_cast<int>(std::ranges::count(text, ' '));
  return blanks * kBlankWidth + (static_cast<int>(vb::Len(text)) - blanks) * kCharacterWidth + kHeadingMargin;
}

void CheckColumn(const FlexGrid& grid, long col) {
  if (col < 0 || col >= grid.Cols()) vb::Raise(kBadCol, "Invalid Col value");
}

std::size_t At(long index) {
  return static_cast<std::size_t>(index);
}

}  // namespace

void FlexGrid::SetFormatString(std::string_view format) {
  EnsureLoaded();
  formatString_ = format;
  if (format.empty()) return;
  const std::vector<std::string> parts = vb::Split(format, "|");
  if (parts.size() > columns_.size()) columns_.resize(parts.size());
  if (rows_.empty()) rows_.resize(1);
  for (std::size_t col = 0; col < parts.size(); ++col) {
    std::string_view text = parts[col];
    GridColumn& column = columns_[col];
    if (!text.empty() && (text[0] == '<' || text[0] == '^' || text[0] == '>')) {
      column.alignment = text[0] == '<' ? GridAlignment::Left : text[0] == '^' ? GridAlignment::Center : GridAlignment::Right;
      text.remove_prefix(1);
    }
    // Trailing blanks after the mark and the text widen the column; the heading itself is stored without them.
    if (!text.empty()) column.width = HeadingWidth(text);
    SetTextMatrix(0, static_cast<long>(col), vb::Trim(text));
  }
  Changed(Aspect::Layout);
}

int FlexGrid::ColWidth(long col) const {
  CheckColumn(*this, col);
  const int width = columns_[At(col)].width;
  return width < 0 ? kDefaultColWidth : width;
}

void FlexGrid::SetColWidth(long col, int width) {
  CheckColumn(*this, col);
  columns_[At(col)].width = width;
  Changed(Aspect::Layout);
}

void FlexGrid::PullColumn(long col, int width) {
  const bool isHidden = ColWidth(col) == 0;
  hasPulledColumns_ = hasPulledColumns_ || !isHidden;
  SetColWidth(col, isHidden ? 0 : PulledWidth(width));
}

GridAlignment FlexGrid::ColAlignment(long col) const {
  CheckColumn(*this, col);
  return columns_[At(col)].alignment;
}

void FlexGrid::SetColAlignment(long col, GridAlignment alignment) {
  CheckColumn(*this, col);
  columns_[At(col)].alignment = alignment;
  Changed(Aspect::Layout);
}

void FlexGrid::ShowSortedBy(long col, bool ascending) {
  if (col != -1) CheckColumn(*this, col);
  if (col == sortedCol_ && ascending == sortedAscending_) return;
  sortedCol_ = col;
  sortedAscending_ = ascending;
  Changed(Aspect::Layout);
}

Color FlexGrid::CellForeColor(long row, long col) const {
  CheckCell(row, col);
  const GridRow& cells = rows_[At(row)];
  const Color own = cells.colors && At(col) < cells.colors->size() ? (*cells.colors)[At(col)].fore : kDefaultColor;
  return own == kDefaultColor ? cells.rowFore : own;
}

FlexGrid::CellColors& FlexGrid::ColorsOf(long row, long col) {
  CheckCell(row, col);
  auto& colors = rows_[At(row)].colors;
  if (!colors) colors = std::make_unique<std::vector<CellColors>>();
  colors->resize(columns_.size());
  return (*colors)[At(col)];
}

void FlexGrid::SetCellForeColor(long row, long col, Color color) {
  CheckCell(row, col);
  GridRow& cells = rows_[At(row)];
  if (color == kDefaultColor && cells.rowFore != kDefaultColor) {
    // A cell goes back to the default inside a coloured row: the row's colour becomes that of its other cells.
    const Color whole = std::exchange(cells.rowFore, kDefaultColor);
    for (long other = 0; other < Cols(); ++other) {
      if (CellColors& colors = ColorsOf(row, other); colors.fore == kDefaultColor) colors.fore = whole;
    }
  }
  if (color != kDefaultColor || cells.colors) ColorsOf(row, col).fore = color;
  Changed(Aspect::Colors);
}

void FlexGrid::SetRowForeColor(long row, Color color) {
  CheckCell(row, 0);
  GridRow& cells = rows_[At(row)];
  cells.rowFore = color;
  if (cells.colors) {
    for (CellColors& colors : *cells.colors) colors.fore = kDefaultColor;
  }
  Changed(Aspect::Colors);
}

Color FlexGrid::CellBackColor(long row, long col) const {
  CheckCell(row, col);
  const GridRow& cells = rows_[At(row)];
  return cells.colors && At(col) < cells.colors->size() ? (*cells.colors)[At(col)].back : kDefaultColor;
}

void FlexGrid::SetCellBackColor(long row, long col, Color color) {
  CheckCell(row, col);
  if (color != kDefaultColor || rows_[At(row)].colors) ColorsOf(row, col).back = color;
  Changed(Aspect::Colors);
}

Color FlexGrid::BackColorSel() const {
  EnsureLoaded();
  return backColorSel_;
}

void FlexGrid::SetBackColorSel(Color color) {
  EnsureLoaded();
  if (std::exchange(backColorSel_, color) != color) Changed(Aspect::Selection);
}

Color FlexGrid::ForeColorSel() const {
  EnsureLoaded();
  return foreColorSel_;
}

void FlexGrid::SetForeColorSel(Color color) {
  EnsureLoaded();
  if (std::exchange(foreColorSel_, color) != color) Changed(Aspect::Selection);
}

bool FlexGrid::IsTicked(long row) const {
  CheckCell(row, 0);
  return rows_[static_cast<std::size_t>(row)].isTicked;
}

void FlexGrid::SetTicked(long row, bool ticked) {
  CheckCell(row, 0);
  rows_[static_cast<std::size_t>(row)].isTicked = ticked;
  Changed(Aspect::Items);
}

std::vector<long> FlexGrid::TickedRows() const {
  std::vector<long> ticked;
  for (long row = fixedRows_; row < Rows(); ++row) {
    if (rows_[static_cast<std::size_t>(row)].isTicked) ticked.push_back(row);
  }
  return ticked;
}

std::string FlexGrid::ShownText(long row, long col) const {
  const std::string& text = TextMatrix(row, col);
  if (!IsTicked(row)) return text;
  for (long before = 0; before < col; ++before) {
    if (ColWidth(before) != 0) return text;
  }
  return ColWidth(col) != 0 ? "[x] " + text : text;
}

}  // namespace controls
