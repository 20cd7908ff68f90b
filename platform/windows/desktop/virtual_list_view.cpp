#include "platform/windows/desktop/virtual_list_view.h"

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/form_window.h"

namespace windows {

void VirtualListView::CreateList(HWND parent, int id, DWORD style) {
  CreateChild(parent, id, WC_LISTVIEWW, "", style | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_OWNERDATA,
              WS_EX_CLIENTEDGE);
  const DWORD extended = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER;
  List().SetExtendedStyle(extended, extended);
}

void VirtualListView::ShowColumns() {
  const controls::ScopedFlag showing(showingColumns_);
  List().SetColumns(ColumnCount(), [this](int column) {
    return ColumnLook{ColumnHeading(column), Window().Measures().Pixels(ColumnWidth(column)), ColumnFormat(column)};
  });
}

std::optional<int> VirtualListView::ItemSelected(const NMHDR& header) const {
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  if (updating_ || change.iItem < 0 || (change.uNewState & LVIS_SELECTED) == 0) return std::nullopt;
  return change.iItem;
}

bool VirtualListView::TakeFocus() {
  return !Model().CanFocus() || Model().HasFocus() || Model().Owner().MoveFocus(&Model());
}

std::optional<LRESULT> VirtualListView::Intercept(UINT message, WPARAM, LPARAM lParam) {
  if (message != WM_NOTIFY || showingColumns_) return std::nullopt;
  const auto [column, newWidth] = ColumnResizeOf(*reinterpret_cast<const NMHDR*>(lParam));
  if (column < 0 || column >= ColumnCount()) return std::nullopt;
  if (newWidth) {
    ResizeColumn(column, Window().Measures().Twips(*newWidth));
  } else if (ColumnWidth(column) == 0) {
    return TRUE;  // a hidden column stays hidden
  }
  return std::nullopt;
}

}  // namespace windows
