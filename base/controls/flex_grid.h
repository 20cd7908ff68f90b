#pragma once

#include <map>

#include "base/controls/alignment.h"
#include "base/controls/control.h"

namespace controls {

enum class GridSort {
  None = 0,
  GenericAscending = 1,
  GenericDescending = 2,
  NumericAscending = 3,
  NumericDescending = 4,
  TextNoCaseAscending = 5,
  TextNoCaseDescending = 6,
  TextAscending = 7,
  TextDescending = 8,
};

/// Hierarchical flex grid. Rows and columns count from 0, row 0 being the heading row. A bad row is error 30009, a bad column
/// 30010, a bad subscript of TextMatrix and the like 381. Made for a hundred thousand rows: cells are plain strings, colours are
/// kept only for the rows that have any.
class FlexGrid : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::FlexGrid;
  FlexGrid(Form& form, std::string name) : Control(form, kKind, std::move(name)) {}

  long Rows() const;
  long Cols() const;
  /// Growing adds empty rows or columns; shrinking drops them and moves the current cell inside.
  void SetRows(long rows);
  void SetCols(long cols);
  long FixedRows() const;
  void SetFixedRows(long rows);
  long FixedCols() const;
  void SetFixedCols(long cols);

  /// Setting the current row or column fires RowColChange when it changes, and resets RowSel and ColSel to the current cell.
  long Row() const;
  long Col() const;
  void SetRow(long row);
  void SetCol(long col);
  long RowSel() const;
  long ColSel() const;
  /// The rows from Row to RowSel, from top to bottom.
  struct RowRange {
    long first = 0, last = 0;
    bool Has(long row) const { return row >= first && row <= last; }
  };
  RowRange SelectedRows() const;
  void SetRowSel(long row);
  void SetColSel(long col);
  long TopRow() const;
  void SetTopRow(long row);

  const std::string& TextMatrix(long row, long col) const;
  /// Does not move the current cell.
  void SetTextMatrix(long row, long col, std::string_view text);
  const std::string& Text() const;  ///< of the current cell
  void SetText(std::string_view text);
  /// Tab-separated cells; at `index`, or after the last row (-1).
  void AddItem(std::string_view tabSeparated, long index = -1);
  /// Appends one row, taking its cells over; columns grow when there are more cells than columns. The fast way to fill.
  void AppendRow(std::vector<std::string>&& cells);
  void ReserveRows(long rows);
  void RemoveItem(long row);
  /// Wipes text and cell formatting; keeps rows, columns, widths.
  void Clear();

  /// "<Code|^Name|>Qty": aligns the columns, writes row 0, sets widths by the text, in which a blank is narrower than other
  /// characters. Grows the grid, never shrinks it.
  void SetFormatString(std::string_view format);
  const std::string& FormatString() const { return formatString_; }
  int ColWidth(long col) const;  ///< twips; -1 asked for the default gives the default width
  void SetColWidth(long col, int width);
  GridAlignment ColAlignment(long col) const;
  void SetColAlignment(long col, GridAlignment alignment);

  /// 0 is the grid's own colour; black is 1.
  Color CellForeColor(long row, long col) const;
  void SetCellForeColor(long row, long col, Color color);
  void SetRowForeColor(long row, Color color);
  Color CellBackColor(long row, long col) const;
  void SetCellBackColor(long row, long col, Color color);
  Color BackColorSel() const;
  void SetBackColorSel(Color color);
  Color ForeColorSel() const;
  void SetForeColorSel(Color color);

  /// A row that a person has ticked; it keeps its tick when the rows are sorted. Clear takes it off.
  bool IsTicked(long row) const;
  void SetTicked(long row, bool ticked);
  /// The ticked rows from top to bottom.
  std::vector<long> TickedRows() const;
  /// A cell's text as desktops show it: "[x] " precedes the first column with a width where the row is ticked.
  std::string ShownText(long row, long col) const;

  /// Sorts whole rows (with their colours) by the columns Col..ColSel from left to right: the rows Row..RowSel, or all but the
  /// fixed ones when those are equal. Stable. The current cell keeps its place (row number).
  void Sort(GridSort kind);
  /// Whether the rows below the fixed ones are in the generic ascending order of a column: two numbers by value, anything else
  /// as text without regard to case. A list found in order is not looked at again before it changes.
  bool IsInOrder(long col) const;
  /// The selected range as text, tabs between cells and CR between rows; setting it fills the range, extra cells stay, extra text
  /// is ignored.
  std::string Clip() const;
  void SetClip(std::string_view text);

  /// The column whose heading shows by an arrow that the rows are sorted by it; -1 for none. A sort by itself shows none.
  long SortedCol() const { return sortedCol_; }
  bool SortedAscending() const { return sortedAscending_; }
  /// The arrow points up for an ascending order. -1 takes it away, and so does Clear.
  void ShowSortedBy(long col, bool ascending);

  /// The cell under the mouse.
  long MouseRow() const { return mouseRow_; }
  long MouseCol() const { return mouseCol_; }

  // What a person does.
  void ClickCell(long row, long col);
  /// A click on the heading of a column: the current cell stays. Fires Click with the mouse on row 0, then HeadingClick.
  void ClickHeading(long col);
  void SelectRange(long firstRow, long lastRow);
  void MoveMouse(long row, long col);  ///< fires MouseMove
  /// The edge of a column pulled to a width in twips. It stays wide enough to be taken hold of; a hidden one (width 0) stays
  /// hidden.
  void PullColumn(long col, int width);
  /// Whether a person pulled a column since the form was loaded.
  bool HasPulledColumns() const { return hasPulledColumns_; }
  /// Arrow, page, home and end keys; whether the key was one of them.
  bool NavigationKey(int keyCode, int shift);

  Event<> RowColChange;
  Event<> SelChange;
  Event<long> HeadingClick;  ///< the column

  /// Ctrl+C copies the selected rows as a table with the headings; hidden columns are left out. Ctrl+A selects all rows.
  void OnKey(int keyCode, int shift) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "MSHFlexGrid"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  struct CellColors {
    Color fore = kDefaultColor;
    Color back = kDefaultColor;
  };
  struct GridRow {
    std::vector<std::string> cells;                   // may be shorter than the columns: the rest is empty
    std::unique_ptr<std::vector<CellColors>> colors;  // only where single cells have colours
    Color rowFore = kDefaultColor;                    // of the cells without one of their own
    bool isTicked = false;
  };
  struct GridColumn {
    int width = -1;
    GridAlignment alignment = GridAlignment::Left;
  };
  static constexpr long kUnknown = -1;
  void CopyRows() const;
  void ItemsChanged();
  const std::string& CellText(const GridRow& row, long col) const;
  void CheckCell(long row, long col) const;
  void MoveCurrent(long row, long col);
  void MoveSelection(long rowSel, long colSel);
  void KeepCurrentInside();
  /// The first data row becomes the current one of a grid that had none.
  void CurrentIntoData(bool hadNone);
  void ScrollTo(long row);
  CellColors& ColorsOf(long row, long col);
  GridRow RowOf(std::string_view tabSeparated);
  RowRange SortedRows() const;

  std::vector<GridRow> rows_ = std::vector<GridRow>(2);
  std::vector<GridColumn> columns_ = std::vector<GridColumn>(2);
  long fixedRows_ = 1;
  long fixedCols_ = 1;
  long row_ = 1, col_ = 1, rowSel_ = 1, colSel_ = 1;
  long topRow_ = 1;
  long mouseRow_ = 0, mouseCol_ = 0;
  long sortedCol_ = -1;
  bool sortedAscending_ = true;
  bool hasPulledColumns_ = false;
  mutable long inOrderBy_ = kUnknown;  // the column that the rows are known to be in order by
  std::string formatString_;
  Color backColorSel_ = kHighlight;
  Color foreColorSel_ = kHighlightText;
};

}  // namespace controls
