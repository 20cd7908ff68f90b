#pragma once

#include "base/controls/flex_grid.h"
#include "platform/windows/desktop/virtual_list_view.h"

namespace windows {

/// A flex grid. The grid's row 0 is the heading; row and cell colours and the selection are painted from the model.
class FlexGridView : public VirtualListView {
 public:
  FlexGridView(FormWindow& window, controls::FlexGrid& grid) : VirtualListView(window, grid), grid_(grid) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  void MouseMoved(POINT point) override;
  void FollowKey(int keyCode) override;
  std::string ToolTipAt(POINT point) const override;

 protected:
  void RightButtonAt(POINT point) override;
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;
  int ColumnCount() const override { return static_cast<int>(grid_.Cols()); }
  int ColumnWidth(int column) const override { return grid_.ColWidth(column); }
  std::string ColumnHeading(int column) const override;
  int ColumnFormat(int column) const override { return ColumnFormatOf(grid_.ColAlignment(column)); }
  void ResizeColumn(int column, int width) override { grid_.PullColumn(column, width); }

 private:
  void ShowHeading();
  void ShowColors();
  void ShowRows();
  void SelectShownItem();
  void ShowCurrentRow();
  void ShowSelection(bool isMoved);
  void RedrawSelected();
  LRESULT Paint(NMLVCUSTOMDRAW& draw) const;
  void PaintCell(NMLVCUSTOMDRAW& draw) const;
  void Clicked(const NMITEMACTIVATE& click);
  ListHit CellAt(POINT point) const;
  long RowOf(int item) const { return item + grid_.FixedRows(); }
  bool IsSelected(long row) const;

  controls::FlexGrid& grid_;
  // What the window shows, so that only changes are sent to it. Items count from 0, without the heading.
  long shownTop_ = -1;
  long shownCount_ = -1;
  long shownItem_ = -1;
  COLORREF shownBack_ = CLR_INVALID;
  long selectedFrom_ = 0;
  long selectedTo_ = -1;
};

}  // namespace windows
