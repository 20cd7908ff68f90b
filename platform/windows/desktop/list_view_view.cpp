#include "platform/windows/desktop/list_view_view.h"

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"

namespace windows {

using controls::Aspect;

void ListViewView::Create(HWND parent, int id) {
  CreateList(parent, id, LVS_NOSORTHEADER);
  // The check marks are the model's.
  Send(Handle(), LVM_SETCALLBACKMASK, LVIS_STATEIMAGEMASK);
  ShowLayout();
  ShowLines();
}

void ListViewView::ShowLayout() {
  List().SetExtendedStyle(LVS_EX_CHECKBOXES, list_.CheckBoxes() ? LVS_EX_CHECKBOXES : 0);
  ShowColumns();
}

void ListViewView::ShowLines() {
  const controls::ScopedFlag updating(updating_);
  const ListWindow window = List();
  window.SetBackColor(ScreenColor(list_.BackColor()));
  window.SetTextColor(ScreenColor(list_.ForeColor()));
  window.SetCount(list_.Count());
  if (const int line = list_.SelectedItem(); line > 0) {
    window.Select(line - 1);
    window.EnsureVisible(line - 1);
  } else {
    window.DeselectAll();
  }
  InvalidateRect(Handle(), nullptr, FALSE);
}

void ListViewView::Update(Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect == Aspect::Layout) ShowLayout();
  if (aspect == Aspect::Items || aspect == Aspect::Selection || aspect == Aspect::Layout || aspect == Aspect::Colors) ShowLines();
}

void ListViewView::Describe(LVITEMW& item) const {
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

ListViewView::Place ListViewView::PlaceAt(POINT point) const {
  const ListHit hit = List().HitTest(point);
  if (hit.item < 0 || hit.item >= list_.Count()) return {};
  return {hit.item + 1, hit.column, hit.isBox && list_.CheckBoxes()};
}

void ListViewView::Clicked(POINT point) {
  const Place place = PlaceAt(point);
  if (place.line == 0) {
    ShowLines();  // the window has deselected its line, the model has not
    list_.Click.Fire();
  } else if (place.isBox) {
    list_.CheckItem(place.line, !list_.Item(place.line).Checked());
  } else {
    list_.ClickItem(place.line);
  }
}

void ListViewView::DoubleClicked(POINT point) {
  const Place place = PlaceAt(point);
  if (place.isBox) {
    Clicked(point);  // two quick clicks on a box are two clicks
  } else if (place.line > 0 || list_.Count() == 0) {
    list_.DblClick.Fire();
  }
}

void ListViewView::RightButtonAt(POINT point) {
  const int line = PlaceAt(point).line;
  if (TakeFocus() && line > 0 && line <= list_.Count()) list_.ClickItem(line);
}

LRESULT ListViewView::Paint(NMLVCUSTOMDRAW& draw) const {
  const int line = static_cast<int>(draw.nmcd.dwItemSpec) + 1;
  switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      return line <= list_.Count() && list_.Item(line).IsColored() ? CDRF_NOTIFYSUBITEMDRAW : CDRF_DODEFAULT;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      if (line > list_.Count()) return CDRF_DODEFAULT;
      const controls::Color color = list_.Item(line).CellForeColor(draw.iSubItem);
      draw.clrText = ScreenColor(color == controls::kDefaultColor ? list_.ForeColor() : color);
      return CDRF_NEWFONT;
    }
    default:
      return CDRF_DODEFAULT;
  }
}

std::optional<LRESULT> ListViewView::OnNotify(NMHDR& header) {
  switch (header.code) {
    case NM_CUSTOMDRAW:
      return Paint(reinterpret_cast<NMLVCUSTOMDRAW&>(header));
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
      if (const auto item = ItemSelected(header); item && *item < list_.Count()) {
        const controls::ScopedFlag updating(updating_);
        list_.Select(*item + 1);
      }
      return 0;
    default:
      return std::nullopt;
  }
}

std::string ListViewView::ToolTipAt(POINT point) const {
  const Place place = PlaceAt(point);
  if (place.line == 0 || place.column >= list_.ColumnCount()) return list_.ToolTipText();
  const controls::ListItem& item = list_.Item(place.line);
  if (place.column > 0 && !item.SubItemToolTip(place.column).empty()) return item.SubItemToolTip(place.column);
  const std::string& text = place.column == 0 ? item.Text() : item.SubItem(place.column);
  return List().IsCut(place.line - 1, place.column, text) ? text : list_.ToolTipText();
}

}  // namespace windows
