#include <algorithm>
#include <cmath>

#include "platform/console/drawing/control_pictures.h"
#include "platform/console/drawing/table_picture.h"

namespace console {
namespace {

constexpr long kMinRows = 3;
constexpr long kMaxRows = 15;

/// The rows that fit below the headings.
long RoomFor(const controls::Control& control) {
  return std::clamp<long>(control.Place().height / kTwipsPerRow - 1, kMinRows, kMaxRows);
}

int InCharacters(int twips, int twipsPerColumn) {
  return twips <= 0 ? 0 : std::max(1, (twips + twipsPerColumn / 2) / twipsPerColumn);
}

bool IsRed(const controls::FlexGrid& grid, long row) {
  return grid.Cols() > 0 && grid.CellForeColor(row, 0) == controls::kRed;
}

RowWindow ShownRows(const controls::FlexGrid& grid) {
  return WindowAround(grid.Row(), grid.TopRow(), grid.FixedRows(), grid.Rows() - 1, RoomFor(grid));
}

RowWindow ShownLines(const controls::ListView& list) {
  return WindowAround(list.SelectedItem(), list.VisibleLine(), 1, list.Count(), RoomFor(list));
}

/// Whether a cell of the line is red.
bool IsRed(const controls::ListView& list, int line) {
  const controls::ListItem& item = list.Item(line);
  for (int column = 0; item.IsColored() && column < list.ColumnCount(); ++column) {
    if (item.CellForeColor(column) == controls::kRed) return true;
  }
  return false;
}

std::string GridRowMarks(const controls::FlexGrid& grid, long row) {
  std::string marks = grid.SelectedRows().Has(row) ? " >" : "  ";
  return marks + (IsRed(grid, row) ? "!" : " ");
}

std::string HeadingOf(const controls::FlexGrid& grid, long col) {
  if (grid.FixedRows() == 0 || grid.Rows() == 0) return {};
  const std::string& heading = grid.TextMatrix(0, col);
  if (col != grid.SortedCol()) return heading;
  return heading + (grid.SortedAscending() ? " ▲" : " ▼");
}

std::string ListLineMarks(const controls::ListView& list, int line) {
  std::string marks = line == list.SelectedItem() ? " >" : "  ";
  marks += IsRed(list, line) ? '!' : ' ';
  if (list.CheckBoxes()) marks += list.Item(line).Checked() ? "[x] " : "[ ] ";
  return marks;
}

}  // namespace

bool HasRedRows(const controls::FlexGrid& grid) {
  const RowWindow window = ShownRows(grid);
  for (long row = window.first; row <= window.last; ++row) {
    if (IsRed(grid, row)) return true;
  }
  return false;
}

bool HasRedLines(const controls::ListView& list) {
  const RowWindow window = ShownLines(list);
  for (long line = window.first; line <= window.last; ++line) {
    if (IsRed(list, static_cast<int>(line))) return true;
  }
  return false;
}

Canvas DrawGrid(const controls::FlexGrid& grid, int columns, int twipsPerColumn) {
  Table table;
  table.headingMarks = std::string(MarkOf(grid)) + "  ";
  for (long col = 0; col < grid.Cols(); ++col) {
    table.columns.push_back(
        {HeadingOf(grid, col), InCharacters(grid.ColWidth(col), twipsPerColumn), AlignmentOf(grid.ColAlignment(col))});
  }
  const RowWindow window = ShownRows(grid);
  for (long row = window.first; row <= window.last; ++row) {
    Table::Row shown{GridRowMarks(grid, row), {}};
    for (long col = 0; col < grid.Cols(); ++col) shown.cells.push_back(grid.ShownText(row, col));
    table.rows.push_back(std::move(shown));
  }
  table.above = window.first - grid.FixedRows();
  table.below = grid.Rows() - 1 - window.last;
  return DrawTable(table, columns);
}

Canvas DrawList(const controls::ListView& list, int columns, int twipsPerColumn) {
  Table table;
  table.headingMarks = std::string(MarkOf(list)) + "  " + (list.CheckBoxes() ? "    " : "");
  for (int index = 1; index <= list.ColumnCount(); ++index) {
    const controls::ColumnHeader& column = list.Column(index);
    table.columns.push_back({column.text, InCharacters(column.width, twipsPerColumn), AlignmentOf(column.alignment)});
  }
  const RowWindow window = ShownLines(list);
  for (long line = window.first; line <= window.last; ++line) {
    const auto number = static_cast<int>(line);
    Table::Row shown{ListLineMarks(list, number), {list.Item(number).Text()}};
    for (int sub = 1; sub < list.ColumnCount(); ++sub) shown.cells.push_back(list.Item(number).SubItem(sub));
    table.rows.push_back(std::move(shown));
  }
  table.above = window.first - 1;
  table.below = list.Count() - window.last;
  return DrawTable(table, columns);
}

}  // namespace console
