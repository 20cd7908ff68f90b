#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/text/drawing/canvas.h"

namespace text {

/// A table to be drawn, whatever control it comes from.
struct Table {
  struct Column {
    std::string heading;
    int width = 0;  ///< characters it would take on the screen; a column of 0 is not shown
    Align align = Align::Left;
    long number = 0;  ///< as the control counts its columns
  };
  struct Row {
    std::string marks;  ///< before the cells; as wide in every row
    std::vector<std::string> cells;
    long number = 0;                 ///< as the control counts its rows
    Looks looks = kPlain;            ///< of all cells
    std::vector<Looks> byCell = {};  ///< added to those; may be shorter than the cells
  };
  controls::Control* control = nullptr;
  std::string headingMarks;
  std::vector<Column> columns;
  std::vector<Row> rows;
  long above = 0;  ///< rows not shown
  long below = 0;
  int boxColumn = -1;  ///< where a row's marks hold its check box; -1 where there is none
  /// The lines below the rule that the table takes even when it has fewer; 0 takes what it needs.
  int height = 0;
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

}  // namespace text
