#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/console/drawing/canvas.h"

namespace console {

/// A table to be drawn, whatever control it comes from.
struct Table {
  struct Column {
    std::string heading;
    int width = 0;  ///< characters it would take on the screen; a column of 0 is not shown
    Align align = Align::Left;
  };
  struct Row {
    std::string marks;  ///< before the cells; as wide in every row
    std::vector<std::string> cells;
  };
  std::string headingMarks;
  std::vector<Column> columns;
  std::vector<Row> rows;
  long above = 0;  ///< rows not shown
  long below = 0;
};

/// Headings, a rule, the rows, and how many more there are. Columns take what their cells need within `width`, and at least
/// their headings as long as there is room; columns that do not fit at all are left out with an ellipsis.
Canvas DrawTable(const Table& table, int width);

/// The rows first..last of `count` to show when `room` of them fit: from `top` on if that shows the current one.
struct RowWindow {
  long first = 0;
  long last = -1;
};
RowWindow WindowAround(long current, long top, long firstRow, long lastRow, long room);

}  // namespace console
