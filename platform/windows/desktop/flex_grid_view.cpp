#include "platform/windows/desktop/flex_grid_view.h"

#include <algorithm>
#include <utility>

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/form_window.h"

namespace windows {

using controls::Aspect;

void FlexGridView::Create(HWND parent, int id) {
  CreateList(parent, id, 0);
  ShowHeading();
  ShowRows();
}

std::string FlexGridView::ColumnHeading(int column) const {
  return grid_.FixedRows() > 0 ? grid_.TextMatrix(0, column) : std::string();
}

void FlexGridView::ShowHeading() {
  ShowColumns();
  InvalidateRect(List().Heading(), nullptr, FALSE);
}

void FlexGridView::ShowColors() {
  const COLORREF back = ScreenColor(grid_.BackColor());
  if (std::exchange(shownBack_, back) != back) List().SetBackColor(back);
  InvalidateRect(Handle(), nullptr, FALSE);
}

void FlexGridView::ShowRows() {
  // Setting the count repaints the whole list.
  if (const long count = std::max(0L, grid_.Rows() - grid_.FixedRows()); std::exchange(shownCount_, count) != count) {
    const controls::ScopedFlag updating(updating_);
    List().SetCount(count);
  }
  ShowColors();
  ShowCurrentRow();
}

void FlexGridView::FollowKey(int keyCode) {
  if (keyCode == VK_LEFT || keyCode == VK_RIGHT || keyCode == VK_HOME || keyCode == VK_END) List().ScrollToColumn(grid_.ColSel());
}

void FlexGridView::SelectShownItem() {
  const controls::ScopedFlag updating(updating_);
  if (shownItem_ >= 0) List().Select(shownItem_);
}

void FlexGridView::ShowCurrentRow() {
  const controls::ScopedFlag updating(updating_);
  const long item = grid_.Row() - grid_.FixedRows();
  const bool isMoved = item != shownItem_;
  // Otherwise a virtual list may search all its rows for the one to deselect.
  if (isMoved && shownItem_ >= 0 && shownItem_ < shownCount_) List().Deselect(shownItem_);
  shownItem_ = item;
  if (item >= 0) {
    SelectShownItem();
    // A row that code has brought to the top stays there; otherwise it is enough that the current row is in view.
    if (grid_.TopRow() != shownTop_ && grid_.TopRow() >= grid_.FixedRows()) {
      shownTop_ = grid_.TopRow();
      List().SetTopItem(shownTop_ - grid_.FixedRows());
    }
    List().EnsureVisible(item);
  }
  ShowSelection(isMoved);
}

void FlexGridView::ShowSelection(bool isMoved) {
  const bool wasOneRow = selectedFrom_ == selectedTo_;
  const long from = std::min(grid_.Row(), grid_.RowSel()) - grid_.FixedRows();
  const long to = std::max(grid_.Row(), grid_.RowSel()) - grid_.FixedRows();
  // The window itself redraws a single row that moved; otherwise the rows that were or are selected look different.
  const bool isDrawn = isMoved && wasOneRow && from == to;
  if (!isDrawn) RedrawSelected();
  selectedFrom_ = from;
  selectedTo_ = to;
  if (!isDrawn) RedrawSelected();
}

void FlexGridView::RedrawSelected() {
  const long first = std::max(0L, selectedFrom_);
  if (selectedTo_ >= first) List().RedrawItems(first, selectedTo_);
}

void FlexGridView::Update(Aspect aspect) {
  ControlView::Update(aspect);
  switch (aspect) {
    case Aspect::Layout:
    case Aspect::Items:
    case Aspect::Text:
      ShowHeading();
      ShowRows();
      break;
    case Aspect::Selection:
      ShowCurrentRow();
      break;
    case Aspect::Colors:
      ShowColors();
      break;
    default:
      break;
  }
}

bool FlexGridView::IsSelected(long row) const {
  return row >= std::min(grid_.Row(), grid_.RowSel()) && row <= std::max(grid_.Row(), grid_.RowSel());
}

void FlexGridView::PaintCell(NMLVCUSTOMDRAW& draw) const {
  const long row = RowOf(static_cast<int>(draw.nmcd.dwItemSpec));
  const long column = draw.iSubItem;
  if (row >= grid_.Rows() || column >= grid_.Cols()) return;
  const controls::Color fore = grid_.CellForeColor(row, column);
  const controls::Color back = grid_.CellBackColor(row, column);
  draw.clrText = ScreenColor(fore == controls::kDefaultColor ? grid_.ForeColor() : fore);
  draw.clrTextBk = ScreenColor(back == controls::kDefaultColor ? grid_.BackColor() : back);
  if (!IsSelected(row)) return;
  COLORREF selection = ScreenColor(grid_.BackColorSel());
  // A selection in the colour of its surroundings could not be seen, a text in the colour of the selection not be read.
  if (!IsReadable(selection, draw.clrTextBk)) selection = GetSysColor(COLOR_HIGHLIGHT);
  draw.clrTextBk = selection;
  draw.clrText = ScreenColor(grid_.ForeColorSel());
  if (!IsReadable(draw.clrText, selection)) draw.clrText = TextOn(selection);
}

LRESULT FlexGridView::Paint(NMLVCUSTOMDRAW& draw) const {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      // The window does not draw its own selection: the model's colours show it.
      draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
      PaintCell(draw);
      return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
      PaintCell(draw);
      return CDRF_NEWFONT;
    default:
      return CDRF_DODEFAULT;
  }
}

void FlexGridView::Clicked(const NMITEMACTIVATE& click) {
  const ListHit hit = CellAt(click.ptAction);
  if (hit.item < 0) return SelectShownItem();  // the window has deselected its row, the model has not
  if ((click.uKeyFlags & LVKF_SHIFT) != 0) {
    grid_.SelectRange(grid_.Row(), RowOf(hit.item));
  } else {
    grid_.ClickCell(RowOf(hit.item), std::clamp<long>(hit.column, 0, grid_.Cols() - 1));
  }
}

std::optional<LRESULT> FlexGridView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
      const long row = RowOf(item.iItem);
      if ((item.mask & LVIF_TEXT) != 0 && row < grid_.Rows() && item.iSubItem < grid_.Cols()) {
        CopyText(grid_.ShownText(row, item.iSubItem), item);
      }
      return 0;
    }
    case NM_CUSTOMDRAW:
      return Paint(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case NM_CLICK:
      Clicked(reinterpret_cast<NMITEMACTIVATE&>(header));
      return 0;
    case NM_DBLCLK:
      if (CellAt(reinterpret_cast<NMITEMACTIVATE&>(header).ptAction).item >= 0) grid_.DblClick.Fire();
      return 0;
    case LVN_COLUMNCLICK:
      if (grid_.FixedRows() > 0) grid_.ClickHeading(reinterpret_cast<NMLISTVIEW&>(header).iSubItem);
      return 0;
    case LVN_ITEMCHANGED:
      // The mouse button went down on another row: it becomes current before the click that follows.
      if (const auto item = ItemSelected(header);
          item && RowOf(*item) < grid_.Rows() && GetKeyState(VK_SHIFT) >= 0 && RowOf(*item) != grid_.Row()) {
        const controls::ScopedFlag updating(updating_);
        shownItem_ = *item;
        grid_.SetRow(RowOf(*item));
        InvalidateRect(Handle(), nullptr, FALSE);
      }
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FlexGridView::Intercept(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY) {
    auto& header = *reinterpret_cast<NMHDR*>(lParam);
    if (header.hwndFrom == List().Heading()) {
      const auto painted = PaintSortArrow(header, static_cast<int>(grid_.SortedCol()), grid_.SortedAscending());
      if (painted) return painted;
    }
  }
  return VirtualListView::Intercept(message, wParam, lParam);
}

ListHit FlexGridView::CellAt(POINT point) const {
  const ListHit hit = List().HitTest(point);
  return RowOf(hit.item) < grid_.Rows() ? hit : ListHit{};
}

void FlexGridView::MouseMoved(POINT point) {
  const ListHit hit = CellAt(point);
  if (hit.item >= 0 && hit.column < grid_.Cols()) grid_.MoveMouse(RowOf(hit.item), hit.column);
}

void FlexGridView::RightButtonAt(POINT point) {
  const ListHit hit = CellAt(point);
  if (!TakeFocus()) return;
  const long row = RowOf(hit.item);
  if (hit.item >= 0 && row < grid_.Rows() && !IsSelected(row)) grid_.SetRow(row);
}

std::string FlexGridView::ToolTipAt(POINT point) const {
  const ListHit hit = CellAt(point);
  // The model's text is that of the cell the mouse was over last: it says nothing of the room below the rows.
  if (hit.item < 0) return {};
  if (!grid_.ToolTipText().empty() || hit.column >= grid_.Cols()) return grid_.ToolTipText();
  const std::string& text = grid_.TextMatrix(RowOf(hit.item), hit.column);
  return List().IsCut(hit.item, hit.column, text) ? text : std::string();
}

}  // namespace windows
