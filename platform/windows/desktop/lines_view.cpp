#include "platform/windows/desktop/lines_view.h"

#include <algorithm>

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/list_columns.h"
#include "platform/windows/wide_text.h"

namespace windows {

using controls::Aspect;
using controls::ColumnAlignment;

void CopyText(const std::string& text, LVITEMW& item) {
  if (item.cchTextMax <= 0) return;
  const std::wstring wide = Wide(text);
  const auto length = std::min(wide.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
  std::copy_n(wide.begin(), length, item.pszText);
  item.pszText[length] = L'\0';
}

POINT BelowFocusedLine(HWND list) {
  const LRESULT line = SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
  RECT place{};
  place.left = LVIR_LABEL;
  RECT inside{};
  GetClientRect(list, &inside);
  const bool known =
      line >= 0 && SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&place)) != 0;
  if (!known || place.bottom <= 0 || place.bottom > inside.bottom) return {};
  return {std::max(0L, place.left), place.bottom};
}

void LinesView::Create(HWND parent, int id) {
  CreateChild(parent, id, WC_LISTVIEWW, "",
              WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_OWNERDATA | LVS_NOSORTHEADER, WS_EX_CLIENTEDGE);
  const DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER;
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, style, static_cast<LPARAM>(style));
  // The check marks are the model's.
  SendMessageW(Handle(), LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK, 0);
  ShowColumns();
  ShowLines();
}

void LinesView::ShowColumns() {
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, list_.CheckBoxes() ? LVS_EX_CHECKBOXES : 0);
  showingColumns_ = true;
  windows::ShowColumns(Handle(), list_.ColumnCount(), [this](int index) {
    const controls::ColumnHeader& header = list_.Column(index + 1);
    const int format = header.alignment == ColumnAlignment::Right    ? LVCFMT_RIGHT
                       : header.alignment == ColumnAlignment::Center ? LVCFMT_CENTER
                                                                     : LVCFMT_LEFT;
    return ColumnLook{header.text, Window().Measures().Pixels(header.width), format};
  });
  showingColumns_ = false;
}

void LinesView::ShowLines() {
  updating_ = true;
  const COLORREF back = ScreenColor(list_.BackColor());
  SendMessageW(Handle(), LVM_SETBKCOLOR, 0, static_cast<LPARAM>(back));
  SendMessageW(Handle(), LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(back));
  SendMessageW(Handle(), LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ScreenColor(list_.ForeColor())));
  SendMessageW(Handle(), LVM_SETITEMCOUNT, static_cast<WPARAM>(list_.Count()), LVSICF_NOSCROLL);
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  if (const int line = list_.SelectedItem(); line > 0) {
    state.state = state.stateMask;
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(line - 1), reinterpret_cast<LPARAM>(&state));
    SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(line - 1), FALSE);
  } else {
    SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&state));
  }
  InvalidateRect(Handle(), nullptr, FALSE);
  updating_ = false;
}

void LinesView::Update(Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect == Aspect::Layout) ShowColumns();
  if (aspect == Aspect::Items || aspect == Aspect::Selection || aspect == Aspect::Layout || aspect == Aspect::Colors) ShowLines();
}

void LinesView::Describe(LVITEMW& item) const {
  const int line = item.iItem + 1;
  if (line < 1 || line > list_.Count()) return;
  const controls::ListItem& model = list_.Item(line);
  if ((item.mask & LVIF_TEXT) != 0) {
    const bool known = item.iSubItem < list_.ColumnCount();
    CopyText(item.iSubItem == 0 ? model.Text() : known ? model.SubItem(item.iSubItem) : std::string(), item);
  }
  if ((item.mask & LVIF_STATE) != 0 && list_.CheckBoxes()) {
    item.state = INDEXTOSTATEIMAGEMASK(model.Checked() ? 2u : 1u);
    item.stateMask = LVIS_STATEIMAGEMASK;
  }
}

LinesView::Place LinesView::PlaceAt(POINT point) const {
  LVHITTESTINFO hit{};
  hit.pt = point;
  SendMessageW(Handle(), LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  if (hit.iItem < 0 || hit.iItem >= list_.Count()) return {};
  const int column = hit.iSubItem;
  // A cell's hit says less of the box than the line's, where the flag for the line as a whole contains that for its box.
  SendMessageW(Handle(), LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  const bool isBox = list_.CheckBoxes() && column == 0 && (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON;
  return {hit.iItem + 1, column, isBox};
}

void LinesView::Clicked(POINT point) {
  const Place place = PlaceAt(point);
  if (place.line == 0) {
    ShowLines();  // the window has let go of its line, the model has not
    list_.Click.Fire();
  } else if (place.isBox) {
    list_.CheckItem(place.line, !list_.Item(place.line).Checked());
  } else {
    list_.ClickItem(place.line);
  }
}

void LinesView::DoubleClicked(POINT point) {
  const Place place = PlaceAt(point);
  if (place.isBox) {
    Clicked(point);  // two quick clicks on a box are two clicks
  } else if (place.line > 0 || list_.Count() == 0) {
    list_.DblClick.Fire();
  }
}

void LinesView::RightButtonAt(POINT point) {
  const int line = PlaceAt(point).line;
  if (list_.CanFocus() && !list_.HasFocus() && !list_.Owner().MoveFocus(&list_)) return;
  if (line > 0 && line <= list_.Count()) list_.ClickItem(line);
}

std::optional<LRESULT> LinesView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      Describe(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case NM_CLICK:
      Clicked(reinterpret_cast<NMITEMACTIVATE&>(header).ptAction);
      return 0;
    case NM_DBLCLK:
      DoubleClicked(reinterpret_cast<NMITEMACTIVATE&>(header).ptAction);
      return 0;
    case LVN_COLUMNCLICK:
      list_.ColumnClick.Fire(reinterpret_cast<NMLISTVIEW&>(header).iSubItem + 1);
      return 0;
    case LVN_ITEMCHANGED:
      // The mouse button went down on another line; the click follows when it comes up.
      if (const auto& change = reinterpret_cast<NMLISTVIEW&>(header);
          !updating_ && change.iItem >= 0 && (change.uNewState & LVIS_SELECTED) != 0 && change.iItem < list_.Count()) {
        updating_ = true;
        list_.Select(change.iItem + 1);
        updating_ = false;
      }
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> LinesView::Intercept(UINT message, WPARAM, LPARAM lParam) {
  if (message != WM_NOTIFY || showingColumns_) return std::nullopt;
  const auto [column, newWidth] = ColumnPullOf(*reinterpret_cast<const NMHDR*>(lParam));
  if (column < 0 || column >= list_.ColumnCount()) return std::nullopt;
  if (newWidth) {
    list_.PullColumn(column + 1, Window().Measures().Twips(*newWidth));
  } else if (list_.Column(column + 1).width == 0) {
    return TRUE;  // a hidden column stays hidden
  }
  return std::nullopt;
}

std::string LinesView::ToolTipAt(POINT point) const {
  const Place place = PlaceAt(point);
  if (place.line == 0 || place.column >= list_.ColumnCount()) return list_.ToolTipText();
  const controls::ListItem& item = list_.Item(place.line);
  if (place.column > 0 && !item.SubItemToolTip(place.column).empty()) return item.SubItemToolTip(place.column);
  const std::string& text = place.column == 0 ? item.Text() : item.SubItem(place.column);
  return IsCut(Handle(), place.line - 1, place.column, text) ? text : list_.ToolTipText();
}

}  // namespace windows
