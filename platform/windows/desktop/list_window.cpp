#include "platform/windows/desktop/list_window.h"

#include <algorithm>
#include <array>

#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

/// Room that a list keeps free on both sides of a cell's text together, in pixels.
constexpr int kCellPadding = 8;

/// The arrow is at the end of the heading that its text does not start at.
void DrawArrow(HDC dc, const RECT& heading, bool onLeft, bool ascending) {
  const int height = std::max(4L, (heading.bottom - heading.top) / 4);
  const int margin = 2 * height + 2;
  const int middle = onLeft ? heading.left + margin : heading.right - margin;
  const int top = (heading.top + heading.bottom - height) / 2;
  const int base = ascending ? top + height : top;
  const int tip = ascending ? top : top + height;
  const std::array<POINT, 3> corners = {{{middle - height, base}, {middle + height, base}, {middle, tip}}};
  const HGDIOBJ pen = SelectObject(dc, GetStockObject(DC_PEN));
  const HGDIOBJ brush = SelectObject(dc, GetStockObject(DC_BRUSH));
  const COLORREF color = GetSysColor(COLOR_BTNTEXT);
  SetDCPenColor(dc, color);
  SetDCBrushColor(dc, color);
  Polygon(dc, corners.data(), static_cast<int>(corners.size()));
  SelectObject(dc, brush);
  SelectObject(dc, pen);
}

}  // namespace

void ListWindow::SetExtendedStyle(DWORD mask, DWORD style) const {
  Send(handle_, LVM_SETEXTENDEDLISTVIEWSTYLE, mask, style);
}

void ListWindow::SetBackColor(COLORREF color) const {
  Send(handle_, LVM_SETBKCOLOR, 0, color);
  Send(handle_, LVM_SETTEXTBKCOLOR, 0, color);
}

void ListWindow::SetTextColor(COLORREF color) const {
  Send(handle_, LVM_SETTEXTCOLOR, 0, color);
}

void ListWindow::SetCount(long count) const {
  Send(handle_, LVM_SETITEMCOUNT, count, LVSICF_NOSCROLL);
}

void ListWindow::SetColumns(int count, const std::function<ColumnLook(int)>& lookOf) const {
  const auto shown = static_cast<int>(Send(Heading(), HDM_GETITEMCOUNT));
  for (int surplus = shown - 1; surplus >= count; --surplus) Send(handle_, LVM_DELETECOLUMN, surplus);
  for (int index = 0; index < count; ++index) {
    const ColumnLook look = lookOf(index);
    std::wstring heading = Wide(look.heading);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.fmt = look.format;
    column.cx = look.width;
    column.pszText = heading.data();
    Send(handle_, index < shown ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, index, &column);
  }
}

void ListWindow::SetState(long item, UINT state) const {
  LVITEMW change{};
  change.state = state;
  change.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  Send(handle_, LVM_SETITEMSTATE, item, &change);
}

void ListWindow::Select(long item) const {
  SetState(item, LVIS_SELECTED | LVIS_FOCUSED);
}

void ListWindow::Deselect(long item) const {
  SetState(item, 0);
}

void ListWindow::DeselectAll() const {
  SetState(-1, 0);
}

void ListWindow::EnsureVisible(long item) const {
  Send(handle_, LVM_ENSUREVISIBLE, item, FALSE);
}

void ListWindow::SetTopItem(long item) const {
  const auto top = static_cast<long>(Send(handle_, LVM_GETTOPINDEX));
  const RECT place = ItemPlace(top, LVIR_BOUNDS).value_or(RECT{});
  Send(handle_, LVM_SCROLL, 0, (item - top) * (place.bottom - place.top));
}

void ListWindow::ScrollToColumn(long column) const {
  std::optional<RECT> place = HeadingPlace(column);
  if (!place) return;
  MapWindowPoints(Heading(), handle_, reinterpret_cast<POINT*>(&*place), 2);
  RECT inside{};
  GetClientRect(handle_, &inside);
  // A column wider than the window shows its left end.
  const LONG right = std::min(place->right - inside.right, place->left);
  const LONG by = place->left < 0 ? place->left : std::max(0L, right);
  if (by != 0) Send(handle_, LVM_SCROLL, by);
}

void ListWindow::RedrawItems(long first, long last) const {
  Send(handle_, LVM_REDRAWITEMS, first, last);
}

long ListWindow::CountPerPage() const {
  return static_cast<long>(Send(handle_, LVM_GETCOUNTPERPAGE));
}

HWND ListWindow::Heading() const {
  return reinterpret_cast<HWND>(Send(handle_, LVM_GETHEADER));
}

std::optional<RECT> ListWindow::HeadingPlace(long column) const {
  RECT place{};
  if (Send(Heading(), HDM_GETITEMRECT, column, &place) == 0) return std::nullopt;
  return place;
}

RECT ListWindow::CellPlace(int item, int column) const {
  RECT cell{};
  cell.top = column;
  cell.left = LVIR_LABEL;
  Send(handle_, LVM_GETSUBITEMRECT, item, &cell);
  return cell;
}

std::optional<RECT> ListWindow::ItemPlace(long item, int part) const {
  RECT place{};
  place.left = part;
  if (Send(handle_, LVM_GETITEMRECT, item, &place) == 0) return std::nullopt;
  return place;
}

ListHit ListWindow::HitTest(POINT point) const {
  LVHITTESTINFO hit{};
  hit.pt = point;
  Send(handle_, LVM_SUBITEMHITTEST, 0, &hit);
  const ListHit cell{hit.iItem, hit.iSubItem};
  if (cell.item < 0) return {};
  // LVM_SUBITEMHITTEST does not tell a check box from its item's text; LVM_HITTEST does, by a flag that LVHT_ONITEM contains.
  Send(handle_, LVM_HITTEST, 0, &hit);
  return {cell.item, cell.column, cell.column == 0 && (hit.flags & LVHT_ONITEM) == LVHT_ONITEMSTATEICON};
}

bool ListWindow::IsCut(int item, int column, const std::string& text) const {
  const RECT cell = CellPlace(item, column);
  RECT inside{};
  GetClientRect(handle_, &inside);
  const LRESULT shown = std::min(cell.right, inside.right) - std::max(cell.left, inside.left);
  return Send(handle_, LVM_GETSTRINGWIDTHW, 0, Wide(text).c_str()) + kCellPadding > shown;
}

POINT ListWindow::BelowFocusedItem() const {
  const LRESULT item = Send(handle_, LVM_GETNEXTITEM, -1, LVNI_FOCUSED);
  RECT inside{};
  GetClientRect(handle_, &inside);
  const std::optional<RECT> place = item >= 0 ? ItemPlace(static_cast<long>(item), LVIR_LABEL) : std::nullopt;
  if (!place || place->bottom <= 0 || place->bottom > inside.bottom) return {};
  return {std::max(0L, place->left), place->bottom};
}

void CopyText(const std::string& text, LVITEMW& item) {
  if (item.cchTextMax <= 0) return;
  const std::wstring wide = Wide(text);
  const auto length = std::min(wide.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
  std::copy_n(wide.begin(), length, item.pszText);
  item.pszText[length] = L'\0';
}

std::optional<LRESULT> PaintSortArrow(NMHDR& header, int column, bool ascending) {
  if (header.code != NM_CUSTOMDRAW || column < 0) return std::nullopt;
  const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(header);
  if (draw.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYPOSTPAINT;
  RECT heading{};
  if (draw.dwDrawStage == CDDS_POSTPAINT && Send(header.hwndFrom, HDM_GETITEMRECT, column, &heading) != 0) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    Send(header.hwndFrom, HDM_GETITEMW, column, &item);
    DrawArrow(draw.hdc, heading, (item.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT, ascending);
  }
  return CDRF_DODEFAULT;
}

ColumnResize ColumnResizeOf(const NMHDR& header) {
  const auto& change = reinterpret_cast<const NMHEADERW&>(header);
  switch (header.code) {
    case HDN_BEGINTRACKA:
    case HDN_BEGINTRACKW:
    case HDN_DIVIDERDBLCLICKA:
    case HDN_DIVIDERDBLCLICKW:
      return {change.iItem};
    case HDN_ITEMCHANGEDA:
    case HDN_ITEMCHANGEDW:
      if (change.pitem == nullptr || (change.pitem->mask & HDI_WIDTH) == 0) return {};
      return {change.iItem, change.pitem->cxy};
    default:
      return {};
  }
}

}  // namespace windows
