#include "platform/windows/desktop/list_columns.h"

#include "platform/windows/wide_text.h"

namespace windows {

void ShowColumns(HWND list, int count, const std::function<ColumnLook(int)>& lookOf) {
  const auto header = reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0));
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

ColumnPull ColumnPullOf(const NMHDR& header) {
  const auto& change = reinterpret_cast<const NMHEADERW&>(header);
  switch (header.code) {
    case HDN_BEGINTRACKA:
    case HDN_BEGINTRACKW:
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
