#include <algorithm>
#include <cmath>

#include "platform/text/drawing/control_pictures.h"
#include "platform/text/drawing/table_picture.h"

namespace text {
namespace {

constexpr long kMinRows = 3;
constexpr long kMaxRows = 15;

/// The rows that fit below the headings.
long RoomFor(const controls::Control& control, const Surface& surface) {
  const long room = std::clamp<long>(control.Place().height / kTwipsPerRow - 1, kMinRows, kMaxRows);
  return std::max<long>(room + surface.extraRows, kMinRows);
}

/// The rows of a list around its current one, or where a person has scrolled to. On a screen two lines are kept for the numbers
/// of rows above and below.
RowWindow WindowOf(const controls::Control& list, const Surface& surface, long current, long top, long first, long last) {
  long room = RoomFor(list, surface);
  if (surface.isScreen && last - first + 1 > room) room = std::max<long>(room - 2, 1);
  if (surface.scrolled) {
    if (const auto scrolled = surface.scrolled->find(&list); scrolled != surface.scrolled->end()) {
      return WindowAround(first - 1, std::max(scrolled->second, first), first, last, room);
    }
  }
  return WindowAround(current, top, first, last, room);
}

int InCharacters(int twips, int twipsPerColumn) {
  return twips <= 0 ? 0 : std::max(1, (twips + twipsPerColumn / 2) / twipsPerColumn);
}

bool IsRed(const controls::FlexGrid& grid, long row) {
  return grid.Cols() > 0 && grid.CellForeColor(row, 0) == controls::kRed;
}

RowWindow ShownRows(const controls::FlexGrid& grid, const Surface& surface) {
  return WindowOf(grid, surface, grid.Row(), grid.TopRow(), grid.FixedRows(), grid.Rows() - 1);
}

RowWindow ShownLines(const controls::ListView& list, const Surface& surface) {
  return WindowOf(list, surface, list.SelectedItem(), list.VisibleLine(), 1, list.Count());
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

/// The table, on a screen as high as its room, with the caret at the chosen row.
Canvas DrawOn(const Surface& surface, Table& table, int columns) {
  if (surface.isScreen) table.height = static_cast<int>(RoomFor(*table.control, surface));
  Canvas sheet = DrawTable(table, columns);
  if (!table.control->HasFocus()) return sheet;
  sheet.SetCaret({0, 0});
  for (const Spot& spot : sheet.Spots()) {
    if (spot.part == Spot::Part::Row && sheet.At(spot.x + spot.width - 1, spot.y).looks & kChosen) sheet.SetCaret({1, spot.y});
  }
  return sheet;
}

}  // namespace

bool HasRedRows(const controls::FlexGrid& grid, const Surface& surface) {
  const RowWindow window = ShownRows(grid, surface);
  for (long row = window.first; row <= window.last; ++row) {
    if (IsRed(grid, row)) return true;
  }
  return false;
}

bool HasRedLines(const controls::ListView& list, const Surface& surface) {
  const RowWindow window = ShownLines(list, surface);
  for (long line = window.first; line <= window.last; ++line) {
    if (IsRed(list, static_cast<int>(line))) return true;
  }
  return false;
}

long RowsShown(const controls::Control& list, const Surface& surface) {
  return std::max<long>(RoomFor(list, surface) - 2, 1);
}

Canvas DrawGrid(controls::FlexGrid& grid, int columns, const Surface& surface) {
  Table table;
  table.control = &grid;
  table.headingMarks = std::string(MarkOf(grid)) + "  ";
  for (long col = 0; col < grid.Cols(); ++col) {
    table.columns.push_back({HeadingOf(grid, col), InCharacters(grid.ColWidth(col), surface.twipsPerColumn),
                             AlignmentOf(grid.ColAlignment(col)), col});
  }
  const RowWindow window = ShownRows(grid, surface);
  for (long row = window.first; row <= window.last; ++row) {
    Table::Row shown{GridRowMarks(grid, row), {}, row, grid.SelectedRows().Has(row) ? kChosen : kPlain, {}};
    for (long col = 0; col < grid.Cols(); ++col) {
      shown.cells.push_back(grid.ShownText(row, col));
      shown.byCell.push_back(grid.CellForeColor(row, col) == controls::kRed ? kRed : kPlain);
    }
    table.rows.push_back(std::move(shown));
  }
  table.above = window.first - grid.FixedRows();
  table.below = grid.Rows() - 1 - window.last;
  return DrawOn(surface, table, columns);
}

Canvas DrawList(controls::ListView& list, int columns, const Surface& surface) {
  Table table;
  table.control = &list;
  table.headingMarks = std::string(MarkOf(list)) + "  " + (list.CheckBoxes() ? "    " : "");
  if (list.CheckBoxes()) table.boxColumn = 3;
  for (int index = 1; index <= list.ColumnCount(); ++index) {
    const controls::ColumnHeader& column = list.Column(index);
    table.columns.push_back(
        {column.text, InCharacters(column.width, surface.twipsPerColumn), AlignmentOf(column.alignment), index});
  }
  const RowWindow window = ShownLines(list, surface);
  for (long line = window.first; line <= window.last; ++line) {
    const auto number = static_cast<int>(line);
    const controls::ListItem& item = list.Item(number);
    Table::Row shown{ListLineMarks(list, number), {item.Text()}, line, number == list.SelectedItem() ? kChosen : kPlain, {}};
    for (int sub = 1; sub < list.ColumnCount(); ++sub) shown.cells.push_back(item.SubItem(sub));
    for (int col = 0; item.IsColored() && col < list.ColumnCount(); ++col) {
      shown.byCell.push_back(item.CellForeColor(col) == controls::kRed ? kRed : kPlain);
    }
    table.rows.push_back(std::move(shown));
  }
  table.above = window.first - 1;
  table.below = list.Count() - window.last;
  return DrawOn(surface, table, columns);
}

}  // namespace text
