#include "platform/text/drawing/table_picture.h"

#include <algorithm>
#include <numeric>

namespace text {
namespace {

constexpr int kMinColumn = 4;
constexpr std::string_view kSeparator = " │ ";
constexpr int kSeparatorWidth = 3;

int NeededWidth(const Table& table, std::size_t column) {
  int needed = Length(table.columns[column].heading);
  for (const Table::Row& row : table.rows) {
    if (column < row.cells.size()) needed = std::max(needed, Length(row.cells[column]));
  }
  return std::max(needed, 1);
}

/// Takes room from the widest columns, or gives it to the ones that need it, until the sum fits.
void Balance(std::vector<int>& widths, const std::vector<int>& needed, int room) {
  int total = std::accumulate(widths.begin(), widths.end(), 0);
  while (total > room) {
    const auto widest = std::max_element(widths.begin(), widths.end());
    if (*widest <= kMinColumn) return;
    --*widest;
    --total;
  }
  for (bool grown = true; grown && total < room;) {
    grown = false;
    for (std::size_t i = 0; i < widths.size() && total < room; ++i) {
      if (widths[i] >= needed[i]) continue;
      ++widths[i];
      ++total;
      grown = true;
    }
  }
}

struct ShownColumns {
  std::vector<std::size_t> indexes;
  std::vector<int> widths;
  bool cut = false;
};

ShownColumns ChooseColumns(const Table& table, int room) {
  ShownColumns shown;
  std::vector<int> needed;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    if (table.columns[i].width <= 0) continue;
    shown.indexes.push_back(i);
    needed.push_back(NeededWidth(table, i));
    shown.widths.push_back(std::min(std::max(table.columns[i].width, Length(table.columns[i].heading)), needed.back()));
  }
  while (shown.indexes.size() > 1 &&
         static_cast<int>(shown.indexes.size()) * (kMinColumn + kSeparatorWidth) - kSeparatorWidth > room) {
    shown.indexes.pop_back();
    shown.widths.pop_back();
    shown.cut = true;
  }
  needed.resize(shown.widths.size());
  Balance(shown.widths, needed, room - kSeparatorWidth * (static_cast<int>(shown.widths.size()) - 1));
  return shown;
}

/// Writes cells into their columns; gives where they end.
int PutCells(Canvas& sheet, int x, int y, const Table& table, const ShownColumns& shown, const std::vector<std::string>& cells,
             const std::function<Looks(std::size_t column)>& looks) {
  for (std::size_t i = 0; i < shown.indexes.size(); ++i) {
    const std::size_t column = shown.indexes[i];
    if (i > 0) {
      sheet.Put(x, y, kSeparator);
      x += kSeparatorWidth;
    }
    sheet.Put(x, y, Fit(column < cells.size() ? cells[column] : "", shown.widths[i], table.columns[column].align), looks(column));
    x += shown.widths[i];
  }
  if (!shown.cut) return x;
  sheet.Put(x, y, " …");
  return x + 2;
}

/// The headings with the room that a mouse can take hold of them in.
void PutHeadings(Canvas& sheet, int x, const Table& table, const ShownColumns& shown) {
  std::vector<std::string> headings;
  for (const Table::Column& column : table.columns) headings.push_back(column.heading);
  PutCells(sheet, x, 0, table, shown, headings, [](std::size_t) { return kPlain; });
  for (std::size_t i = 0; i < shown.indexes.size(); ++i) {
    sheet.Mark({.control = table.control,
                .part = Spot::Part::Heading,
                .column = table.columns[shown.indexes[i]].number,
                .x = x,
                .width = shown.widths[i] + kSeparatorWidth});
    x += shown.widths[i] + kSeparatorWidth;
  }
}

void PutRow(Canvas& sheet, int y, const Table& table, const ShownColumns& shown, const Table::Row& row) {
  const int marks = Length(table.headingMarks);
  sheet.Put(0, y, row.marks);
  const int end = PutCells(sheet, marks, y, table, shown, row.cells, [&](std::size_t column) {
    return static_cast<Looks>(row.looks | (column < row.byCell.size() ? row.byCell[column] : Looks{kPlain}));
  });
  if (row.looks & kChosen) sheet.AddLooks(marks, y, end - marks, kChosen);
  sheet.Mark({.control = table.control, .part = Spot::Part::Row, .index = row.number, .y = y, .width = end});
  if (table.boxColumn < 0) return;
  sheet.Mark({.control = table.control, .part = Spot::Part::Box, .index = row.number, .x = table.boxColumn, .y = y, .width = 3});
}

std::string RuleText(const ShownColumns& shown) {
  std::string line;
  for (std::size_t i = 0; i < shown.widths.size(); ++i) {
    if (i > 0) line += "─┼─";
    for (int n = 0; n < shown.widths[i]; ++n) line += "─";
  }
  return line;
}

}  // namespace

Canvas DrawTable(const Table& table, int width) {
  Canvas sheet;
  const int marks = Length(table.headingMarks);
  const ShownColumns shown = ChooseColumns(table, width - marks);
  int y = 0;
  sheet.Put(0, y++, table.headingMarks);
  PutHeadings(sheet, marks, table, shown);
  sheet.Put(marks, y++, RuleText(shown));
  const int top = y;
  if (table.above > 0) sheet.Put(marks, y++, "... " + std::to_string(table.above) + " more");
  for (const Table::Row& row : table.rows) PutRow(sheet, y++, table, shown, row);
  if (table.below > 0) sheet.Put(marks, y++, "... " + std::to_string(table.below) + " more");
  if (table.rows.empty()) sheet.Put(marks, y++, "(no lines)");
  if (y < top + table.height) sheet.Put(0, top + table.height - 1, "");
  return sheet;
}

RowWindow WindowAround(long current, long top, long firstRow, long lastRow, long room) {
  const long count = lastRow - firstRow + 1;
  if (count <= room) return {firstRow, lastRow};
  long first = std::clamp(top, firstRow, lastRow - room + 1);
  if (current >= firstRow && (current < first || current >= first + room)) {
    first = std::clamp(current - room / 2, firstRow, lastRow - room + 1);
  }
  return {first, first + room - 1};
}

}  // namespace text
