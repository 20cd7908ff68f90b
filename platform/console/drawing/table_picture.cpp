#include "platform/console/drawing/table_picture.h"

#include <algorithm>
#include <numeric>

namespace console {
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

std::string RowText(const Table& table, const ShownColumns& shown, const std::vector<std::string>& cells) {
  std::string line;
  for (std::size_t i = 0; i < shown.indexes.size(); ++i) {
    const std::size_t column = shown.indexes[i];
    if (i > 0) line += kSeparator;
    line += Fit(column < cells.size() ? cells[column] : "", shown.widths[i], table.columns[column].align);
  }
  return shown.cut ? line + " …" : line;
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
  std::vector<std::string> headings;
  for (const Table::Column& column : table.columns) headings.push_back(column.heading);

  int y = 0;
  sheet.Put(0, y, table.headingMarks);
  sheet.Put(marks, y++, RowText(table, shown, headings));
  sheet.Put(marks, y++, RuleText(shown));
  if (table.above > 0) sheet.Put(marks, y++, "... " + std::to_string(table.above) + " more");
  for (const Table::Row& row : table.rows) {
    sheet.Put(0, y, row.marks);
    sheet.Put(marks, y++, RowText(table, shown, row.cells));
  }
  if (table.below > 0) sheet.Put(marks, y++, "... " + std::to_string(table.below) + " more");
  if (table.rows.empty()) sheet.Put(marks, y++, "(no lines)");
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

}  // namespace console
