#include "src/lists/grid_search.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace goods {
namespace {

constexpr long kNoRow = 0;  // the heading row is never found

/// The text to find, and how a cell compares to it.
class TypedText {
 public:
  explicit TypedText(std::string_view typed)
      : text_(vb::Trim(typed)), length_(static_cast<long>(vb::Len(vb::LTrim(typed)))), numeric_(vb::IsNumeric(text_)) {
    if (numeric_) number_ = vb::CDbl(text_);
  }

  bool IsNumeric() const { return numeric_; }

  /// Whether the cell begins with the typed text. A blank typed last counts: it asks for the end of a word.
  bool Matches(std::string_view cell) const {
    cell = vb::Trim(cell);
    if (!MayMatch(cell)) return false;
    const std::string start = vb::Left(cell, length_);
    if (numeric_) return IsTheNumber(start);
    return vb::EqualNoCase(vb::Trim(start), text_);
  }

  /// Whether the typed text sorts after the cell.
  bool IsAfter(std::string_view cell) const { return vb::CompareNoCase(vb::Trim(vb::Left(vb::Trim(cell), length_)), text_) < 0; }

 private:
  /// A look at the first characters, which tells most cells apart: equal numbers that begin with a figure from 1 to 9 begin with
  /// the same one, and none begins with a letter.
  bool MayMatch(std::string_view trimmed) const {
    if (trimmed.empty() || text_.empty()) return true;
    const auto first = static_cast<unsigned char>(trimmed.front());
    const auto wanted = static_cast<unsigned char>(text_.front());
    const auto isFigure = [](unsigned char c) { return c >= '1' && c <= '9'; };
    if (numeric_) return std::isalpha(first) == 0 && (first == wanted || !isFigure(first) || !isFigure(wanted));
    return first > 0x7F || wanted > 0x7F || std::tolower(first) == std::tolower(wanted);
  }

  bool IsTheNumber(std::string_view start) const {
    if (const auto plain = vb::PlainNumber(start)) return *plain == number_;
    return vb::IsNumeric(start) && vb::CDbl(start) == number_;
  }

  std::string text_;
  long length_;
  bool numeric_;
  double number_ = 0;
};

long Bisect(const controls::FlexGrid& grid, long column, const TypedText& typed, long last) {
  long low = 1;
  long high = last;
  while (low < high) {
    const long middle = low + (high - low) / 2;
    if (typed.IsAfter(grid.TextMatrix(middle, column))) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low <= last && typed.Matches(grid.TextMatrix(low, column)) ? low : kNoRow;
}

long Walk(const controls::FlexGrid& grid, long column, const TypedText& typed, long last) {
  for (long row = 1; row <= last; ++row) {
    if (typed.Matches(grid.TextMatrix(row, column))) return row;
  }
  return kNoRow;
}

long FirstMatch(const controls::FlexGrid& grid, long column, const TypedText& typed, long last) {
  // Sorted by value, 2 comes before 10 and 25: numbers that begin alike are not adjacent, and halving would step over the
  // first of them.
  if (typed.IsNumeric()) return Walk(grid, column, typed, last);
  const long row = Bisect(grid, column, typed, last);
  return row != kNoRow ? row : Walk(grid, column, typed, last);
}

std::vector<std::string> CellsOf(const controls::FlexGrid& grid, long row) {
  std::vector<std::string> cells;
  for (long column = 0; column < grid.Cols(); ++column) cells.push_back(grid.TextMatrix(row, column));
  return cells;
}

bool HasCells(const controls::FlexGrid& grid, long row, const std::vector<std::string>& cells) {
  for (long column = 0; column < grid.Cols(); ++column) {
    if (grid.TextMatrix(row, column) != cells[static_cast<std::size_t>(column)]) return false;
  }
  return true;
}

/// Sorts the grid ascending on the column; the line that was current stays current at its new place.
void SortKeepingCurrentLine(controls::FlexGrid& grid, long column) {
  if (grid.IsInOrder(column)) return;
  const long row = grid.Row();
  const long col = grid.Col();
  const long colSel = grid.ColSel();
  const bool hasCurrent = row >= 1 && row < grid.Rows();
  const std::vector<std::string> current = hasCurrent ? CellsOf(grid, row) : std::vector<std::string>();
  grid.SetCol(column);
  grid.SetColSel(column);
  grid.Sort(controls::GridSort::GenericAscending);
  grid.ShowSortedBy(-1, true);  // the arrow of a heading clicked before would be wrong now
  for (long line = 1; hasCurrent && line < grid.Rows(); ++line) {
    if (!HasCells(grid, line, current)) continue;
    grid.SetRow(line);
    break;
  }
  grid.SetCol(col);
  grid.SetColSel(colSel);
}

}  // namespace

bool SearchInGrid(controls::FlexGrid& grid, long column, std::string_view typed) {
  constexpr long kLastSearched = 32767;  // rows are numbered in 16 bits
  const long last = std::min(grid.Rows() - 1, kLastSearched);
  SortKeepingCurrentLine(grid, column);
  const long found = FirstMatch(grid, column, TypedText(typed), last);
  if (found == kNoRow) return false;
  grid.SetRow(found);
  grid.SetCol(0);
  grid.SetColSel(grid.Cols() - 1);
  grid.SetTopRow(found);
  return true;
}

}  // namespace goods
