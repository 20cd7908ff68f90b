#include "platform/windows/desktop/tab_view.h"

#include <algorithm>

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/wide_text.h"

namespace windows {

void TabView::Create(HWND parent, int id) {
  CreateChild(parent, id, WC_TABCONTROLW, "", WS_TABSTOP);
  ShowPages();
}

void TabView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  ShowPages();
  Window().Arrange();
}

void TabView::ShowPages() {
  SendMessageW(Handle(), TCM_DELETEALLITEMS, 0, 0);
  shownPages_.clear();
  for (int page = 0; page < tab_.Tabs(); ++page) {
    if (!tab_.TabVisible(page)) continue;
    std::wstring caption = Wide(tab_.TabCaption(page));
    std::erase(caption, L'&');
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(Handle(), TCM_INSERTITEMW, shownPages_.size(), reinterpret_cast<LPARAM>(&item));
    shownPages_.push_back(page);
  }
  const auto current = std::find(shownPages_.begin(), shownPages_.end(), tab_.Tab());
  if (current != shownPages_.end()) SendMessageW(Handle(), TCM_SETCURSEL, static_cast<WPARAM>(current - shownPages_.begin()), 0);
}

std::optional<LRESULT> TabView::OnNotify(NMHDR& header) {
  if (header.code != TCN_SELCHANGE) return std::nullopt;
  const auto tab = static_cast<std::size_t>(SendMessageW(Handle(), TCM_GETCURSEL, 0, 0));
  if (tab < shownPages_.size()) tab_.SetTab(shownPages_[tab]);
  return 0;
}

}  // namespace windows
