#include "platform/windows/desktop/list_columns.h"

#include <algorithm>
#include <array>

#include "platform/windows/wide_text.h"

namespace windows {
namespace {

/// Room that a list keeps free on both sides of a cell's text together, in pixels.
constexpr int kCellPadding = 8;

/// The arrow is where the heading's text does not begin.
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

HWND HeadingOf(HWND list) {
  return reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
}

void ShowColumns(HWND list, int count, const std::function<ColumnLook(int)>& lookOf) {
  const HWND header = HeadingOf(list);
  const auto shown = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
  for (int surplus = shown - 1; surplus >= count; --surplus) {
    SendMessageW(list, LVM_DELETECOLUMN, static_cast<WPARAM>(surplus), 0);
  }
  for (int index = 0; index < count; ++index) {
    const ColumnLook look = lookOf(index);
    std::wstring heading = Wide(look.heading);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.fmt = look.format;
    column.cx = look.width;
    column.pszText = heading.data();
    SendMessageW(list, index < shown ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&column));
  }
}

std::optional<LRESULT> PaintSortArrow(NMHDR& header, int column, bool ascending) {
  if (header.code != NM_CUSTOMDRAW || column < 0) return std::nullopt;
  const auto& draw = reinterpret_cast<const NMCUSTOMDRAW&>(header);
  if (draw.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYPOSTPAINT;
  RECT heading{};
  if (draw.dwDrawStage == CDDS_POSTPAINT &&
      SendMessageW(header.hwndFrom, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&heading)) != 0) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    SendMessageW(header.hwndFrom, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    DrawArrow(draw.hdc, heading, (item.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT, ascending);
  }
  return CDRF_DODEFAULT;
}

bool IsCut(HWND list, int item, int column, const std::string& text) {
  RECT cell{};
  cell.top = column;
  cell.left = LVIR_LABEL;
  SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell));
  RECT inside{};
  GetClientRect(list, &inside);
  const LRESULT shown = std::min(cell.right, inside.right) - std::max(cell.left, inside.left);
  return SendMessageW(list, LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(Wide(text).c_str())) + kCellPadding > shown;
}

ColumnPull ColumnPullOf(const NMHDR& header) {
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
