#include "platform/windows/desktop/grid_view.h"

#include <algorithm>
#include <utility>

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/list_columns.h"
#include "platform/windows/wide_text.h"

namespace windows {

using controls::Aspect;
using controls::GridAlignment;

void GridView::Create(HWND parent, int id) {
  CreateChild(parent, id, WC_LISTVIEWW, "", WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_OWNERDATA,
              WS_EX_CLIENTEDGE);
  const DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER;
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style));
  ShowColumns();
  ShowRows();
}

void GridView::ShowColumns() {
  showingColumns_ = true;
  windows::ShowColumns(Handle(), grid_.Cols(), [this](int index) {
    const GridAlignment alignment = grid_.ColAlignment(index);
    const int format = alignment == GridAlignment::Right    ? LVCFMT_RIGHT
                       : alignment == GridAlignment::Center ? LVCFMT_CENTER
                                                            : LVCFMT_LEFT;
    return ColumnLook{grid_.FixedRows() > 0 ? grid_.TextMatrix(0, index) : std::string(),
                      Window().Measures().Pixels(grid_.ColWidth(index)), format};
  });
  showingColumns_ = false;
  InvalidateRect(HeadingOf(Handle()), nullptr, FALSE);
}

void GridView::ShowColors() {
  const COLORREF back = ScreenColor(grid_.BackColor());
  if (std::exchange(shownBack_, back) != back) {
    SendMessageW(Handle(), LVM_SETBKCOLOR, 0, static_cast<LPARAM>(back));
    SendMessageW(Handle(), LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(back));
  }
  InvalidateRect(Handle(), nullptr, FALSE);
}

void GridView::ShowRows() {
  updating_ = true;
  // Told anew, the count costs as much as a picture of the whole list.
  if (const long count = std::max(0L, grid_.Rows() - grid_.FixedRows()); std::exchange(shownCount_, count) != count) {
    SendMessageW(Handle(), LVM_SETITEMCOUNT, static_cast<WPARAM>(count), LVSICF_NOSCROLL);
  }
  updating_ = false;
  ShowColors();
  ShowCurrentRow();
}

void GridView::ScrollToTop(long item) {
  const auto top = static_cast<int>(SendMessageW(Handle(), LVM_GETTOPINDEX, 0, 0));
  RECT row{};
  row.left = LVIR_BOUNDS;
  SendMessageW(Handle(), LVM_GETITEMRECT, static_cast<WPARAM>(top), reinterpret_cast<LPARAM>(&row));
  SendMessageW(Handle(), LVM_SCROLL, 0, (item - top) * (row.bottom - row.top));
}

void GridView::ScrollToColumn(long column) {
  const HWND header = HeadingOf(Handle());
  RECT place{};
  if (!SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&place))) return;
  MapWindowPoints(header, Handle(), reinterpret_cast<POINT*>(&place), 2);
  RECT inside{};
  GetClientRect(Handle(), &inside);
  // Of a column wider than the window the left end is shown.
  const LONG right = std::min(place.right - inside.right, place.left);
  const LONG by = place.left < 0 ? place.left : std::max(0L, right);
  if (by != 0) SendMessageW(Handle(), LVM_SCROLL, static_cast<WPARAM>(by), 0);
}

void GridView::FollowKey(int keyCode) {
  if (keyCode == VK_LEFT || keyCode == VK_RIGHT || keyCode == VK_HOME || keyCode == VK_END) ScrollToColumn(grid_.ColSel());
}

void GridView::SelectShownItem() {
  const bool wasUpdating = std::exchange(updating_, true);
  LVITEMW state{};
  state.state = state.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
  if (shownItem_ >= 0)
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(shownItem_), reinterpret_cast<LPARAM>(&state));
  updating_ = wasUpdating;
}

void GridView::ShowCurrentRow() {
  updating_ = true;
  const long item = grid_.Row() - grid_.FixedRows();
  const bool isMoved = item != shownItem_;
  // Left to it, a virtual list may look for the row to unselect among all of them.
  if (isMoved && shownItem_ >= 0 && shownItem_ < shownCount_) {
    LVITEMW state{};
    state.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(shownItem_), reinterpret_cast<LPARAM>(&state));
  }
  shownItem_ = item;
  if (item >= 0) {
    SelectShownItem();
    // A row brought to the top by code stays at the top; otherwise it is enough that the current row is in view.
    if (grid_.TopRow() != shownTop_ && grid_.TopRow() >= grid_.FixedRows()) {
      shownTop_ = grid_.TopRow();
      ScrollToTop(shownTop_ - grid_.FixedRows());
    }
    SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), FALSE);
  }
  ShowSelection(isMoved);
  updating_ = false;
}

void GridView::ShowSelection(bool isMoved) {
  const bool wasOneRow = selectedFrom_ == selectedTo_;
  const long from = std::min(grid_.Row(), grid_.RowSel()) - grid_.FixedRows();
  const long to = std::max(grid_.Row(), grid_.RowSel()) - grid_.FixedRows();
  // One row that moved is drawn with its window's state; of others only the rows that were or are selected look different.
  const bool isDrawn = isMoved && wasOneRow && from == to;
  if (!isDrawn) RedrawSelected();
  selectedFrom_ = from;
  selectedTo_ = to;
  if (!isDrawn) RedrawSelected();
}

void GridView::RedrawSelected() {
  const long first = std::max(0L, selectedFrom_);
  if (selectedTo_ >= first) SendMessageW(Handle(), LVM_REDRAWITEMS, static_cast<WPARAM>(first), selectedTo_);
}

void GridView::Update(Aspect aspect) {
  ControlView::Update(aspect);
  switch (aspect) {
    case Aspect::Layout:
    case Aspect::Items:
    case Aspect::Text:
      ShowColumns();
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

bool GridView::IsSelected(long row) const {
  return row >= std::min(grid_.Row(), grid_.RowSel()) && row <= std::max(grid_.Row(), grid_.RowSel());
}

void GridView::PaintCell(NMLVCUSTOMDRAW& draw) const {
  const long row = RowOf(static_cast<int>(draw.nmcd.dwItemSpec));
  const long column = draw.iSubItem;
  if (row >= grid_.Rows() || column >= grid_.Cols()) return;
  const controls::Color fore = grid_.CellForeColor(row, column);
  const controls::Color back = grid_.CellBackColor(row, column);
  draw.clrText = ScreenColor(fore == controls::kDefaultColor ? grid_.ForeColor() : fore);
  draw.clrTextBk = ScreenColor(back == controls::kDefaultColor ? grid_.BackColor() : back);
  if (!IsSelected(row)) return;
  COLORREF selection = ScreenColor(grid_.BackColorSel());
  // A selection in the colour of its surroundings would be none; a text in the colour of the selection cannot be read.
  if (!IsReadable(selection, draw.clrTextBk)) selection = GetSysColor(COLOR_HIGHLIGHT);
  draw.clrTextBk = selection;
  draw.clrText = ScreenColor(grid_.ForeColorSel());
  if (!IsReadable(draw.clrText, selection)) draw.clrText = TextOn(selection);
}

LRESULT GridView::Paint(NMLVCUSTOMDRAW& draw) const {
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      // The window's own idea of a selection stays away: the model's colours show it.
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

void GridView::Clicked(const NMITEMACTIVATE& click) {
  const LVHITTESTINFO hit = CellAt(click.ptAction);
  if (hit.iItem < 0) return SelectShownItem();  // the window has let go of its row, the model has not
  if ((click.uKeyFlags & LVKF_SHIFT) != 0) {
    grid_.SelectRange(grid_.Row(), RowOf(hit.iItem));
  } else {
    grid_.ClickCell(RowOf(hit.iItem), std::clamp<long>(hit.iSubItem, 0, grid_.Cols() - 1));
  }
}

std::optional<LRESULT> GridView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW: {
      LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(header).item;
      const long row = RowOf(item.iItem);
      if ((item.mask & LVIF_TEXT) != 0 && row < grid_.Rows() && item.iSubItem < grid_.Cols()) {
        CopyText(grid_.TextMatrix(row, item.iSubItem), item);
      }
      return 0;
    }
    case NM_CUSTOMDRAW:
      return Paint(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
    case NM_CLICK:
      Clicked(reinterpret_cast<NMITEMACTIVATE&>(header));
      return 0;
    case NM_DBLCLK:
      if (CellAt(reinterpret_cast<NMITEMACTIVATE&>(header).ptAction).iItem >= 0) grid_.DblClick.Fire();
      return 0;
    case LVN_COLUMNCLICK:
      if (grid_.FixedRows() > 0) grid_.ClickHeading(reinterpret_cast<NMLISTVIEW&>(header).iSubItem);
      return 0;
    case LVN_ITEMCHANGED:
      // The mouse button went down on another row: it becomes current before the click that follows.
      if (const auto& change = reinterpret_cast<NMLISTVIEW&>(header);
          !updating_ && change.iItem >= 0 && (change.uNewState & LVIS_SELECTED) != 0 && RowOf(change.iItem) < grid_.Rows() &&
          GetKeyState(VK_SHIFT) >= 0 && RowOf(change.iItem) != grid_.Row()) {
        updating_ = true;
        shownItem_ = change.iItem;
        grid_.SetRow(RowOf(change.iItem));
        updating_ = false;
        InvalidateRect(Handle(), nullptr, FALSE);
      }
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> GridView::Intercept(UINT message, WPARAM, LPARAM lParam) {
  if (message != WM_NOTIFY || showingColumns_) return std::nullopt;
  auto& header = *reinterpret_cast<NMHDR*>(lParam);
  if (header.hwndFrom == HeadingOf(Handle())) {
    const auto painted = PaintSortArrow(header, static_cast<int>(grid_.SortedCol()), grid_.SortedAscending());
    if (painted) return painted;
  }
  const auto [column, newWidth] = ColumnPullOf(header);
  if (column < 0 || column >= grid_.Cols()) return std::nullopt;
  if (newWidth) {
    grid_.PullColumn(column, Window().Measures().Twips(*newWidth));
  } else if (grid_.ColWidth(column) == 0) {
    return TRUE;  // a hidden column stays hidden
  }
  return std::nullopt;
}

LVHITTESTINFO GridView::CellAt(POINT point) const {
  LVHITTESTINFO hit{};
  hit.pt = point;
  SendMessageW(Handle(), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (hit.iItem >= 0 && RowOf(hit.iItem) >= grid_.Rows()) hit.iItem = -1;
  return hit;
}

void GridView::MouseMoved(POINT point) {
  const LVHITTESTINFO hit = CellAt(point);
  if (hit.iItem >= 0 && hit.iSubItem < grid_.Cols()) grid_.MoveMouse(RowOf(hit.iItem), hit.iSubItem);
}

void GridView::RightButtonAt(POINT point) {
  const LVHITTESTINFO hit = CellAt(point);
  if (grid_.CanFocus() && !grid_.HasFocus() && !grid_.Owner().MoveFocus(&grid_)) return;
  const long row = RowOf(hit.iItem);
  if (hit.iItem >= 0 && row < grid_.Rows() && !IsSelected(row)) grid_.SetRow(row);
}

std::string GridView::ToolTipAt(POINT point) const {
  const LVHITTESTINFO hit = CellAt(point);
  // The model's text is that of the cell the mouse was over last: it says nothing of the room below the rows.
  if (hit.iItem < 0) return {};
  if (!grid_.ToolTipText().empty() || hit.iSubItem >= grid_.Cols()) return grid_.ToolTipText();
  const std::string& text = grid_.TextMatrix(RowOf(hit.iItem), hit.iSubItem);
  return IsCut(Handle(), hit.iItem, hit.iSubItem, text) ? text : std::string();
}

}  // namespace windows
