#include "platform/windows/desktop/tab_control_view.h"

#include <algorithm>

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"

namespace windows {

void TabControlView::Create(HWND parent, int id) {
  CreateChild(parent, id, WC_TABCONTROLW, "", WS_TABSTOP);
  ShowPages();
}

void TabControlView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  ShowPages();
  Window().Arrange();
}

void TabControlView::ShowPages() {
  Send(Handle(), TCM_DELETEALLITEMS);
  shownPages_.clear();
  for (int page = 0; page < tab_.Tabs(); ++page) {
    if (!tab_.TabVisible(page)) continue;
    std::wstring caption = Wide(tab_.TabCaption(page));
    std::erase(caption, L'&');
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(Handle(), TCM_INSERTITEMW, shownPages_.size(), &item);
    shownPages_.push_back(page);
  }
  const auto current = std::find(shownPages_.begin(), shownPages_.end(), tab_.Tab());
  if (current != shownPages_.end()) Send(Handle(), TCM_SETCURSEL, current - shownPages_.begin());
}

std::optional<LRESULT> TabControlView::OnNotify(NMHDR& header) {
  if (header.code != TCN_SELCHANGE) return std::nullopt;
  const auto tab = static_cast<std::size_t>(Send(Handle(), TCM_GETCURSEL));
  if (tab < shownPages_.size()) tab_.SetTab(shownPages_[tab]);
  return 0;
}

}  // namespace windows
