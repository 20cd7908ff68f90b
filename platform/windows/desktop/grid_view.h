#pragma once

#include "base/controls/flex_grid.h"
#include "platform/windows/desktop/control_view.h"
#include "platform/windows/desktop/lines_view.h"

namespace windows {

/// A flex grid as a virtual list: the grid's row 0 is the heading, the window asks for the rows it shows. Row and cell colours
/// and the selection are painted from the model.
class GridView : public ControlView {
 public:
  GridView(FormWindow& window, controls::FlexGrid& grid) : ControlView(window, grid), grid_(grid) {}

  void Create(HWND parent, int id) override;
  void Update(controls::Aspect aspect) override;
  std::optional<LRESULT> OnNotify(NMHDR& header) override;
  void MouseMoved(POINT point) override;
  void FollowKey(int keyCode) override;
  std::string ToolTipAt(POINT point) const override;

 protected:
  void RightButtonAt(POINT point) override;
  POINT MenuPlace() const override { return BelowFocusedLine(Handle()); }
  std::optional<LRESULT> Intercept(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void ShowColumns();
  void ShowColors();
  void ShowRows();
  void SelectShownItem();
  void ShowCurrentRow();
  void ScrollToTop(long item);
  void ScrollToColumn(long column);
  void ShowSelection(bool isMoved);
  void RedrawSelected();
  LRESULT Paint(NMLVCUSTOMDRAW& draw) const;
  void PaintCell(NMLVCUSTOMDRAW& draw) const;
  void Clicked(const NMITEMACTIVATE& click);
  /// The cell under a point, as item and subitem of the window; an item below 0 where there is none.
  LVHITTESTINFO CellAt(POINT point) const;
  long RowOf(int item) const { return item + grid_.FixedRows(); }
  bool IsSelected(long row) const;

  controls::FlexGrid& grid_;
  bool updating_ = false;
  bool showingColumns_ = false;
  // What the window shows, so that it is told of changes only. Items count from 0, without the heading.
  long shownTop_ = -1;
  long shownCount_ = -1;
  long shownItem_ = -1;
  COLORREF shownBack_ = CLR_INVALID;
  long selectedFrom_ = 0;
  long selectedTo_ = -1;
};

}  // namespace windows
