#include "platform/windows/desktop/combo_box_view.h"

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {

void ComboBoxView::Create(HWND parent, int id) {
  const DWORD style = HasEdit() ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
  CreateChild(parent, id, WC_COMBOBOXW, "", style | WS_TABSTOP | WS_VSCROLL);
  ShowEntries();
}

void ComboBoxView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect == controls::Aspect::Items) ShowEntries();
  if (aspect == controls::Aspect::Text || aspect == controls::Aspect::Selection) ShowText();
}

void ComboBoxView::ShowEntries() {
  const controls::ScopedFlag updating(updating_);
  Send(Handle(), WM_SETREDRAW, FALSE);
  Send(Handle(), CB_RESETCONTENT);
  for (int index = 0; index < combo_.ListCount(); ++index) {
    Send(Handle(), CB_ADDSTRING, 0, Wide(combo_.List(index)).c_str());
  }
  Send(Handle(), WM_SETREDRAW, TRUE);
  InvalidateRect(Handle(), nullptr, TRUE);
  ShowText();
}

void ComboBoxView::ShowText() {
  if (IsPasting()) return;
  const controls::ScopedFlag updating(updating_);
  Send(Handle(), CB_SETCURSEL, combo_.ListIndex());
  if (!HasEdit()) return;
  const Selection selection = ShowEntry();
  Send(Handle(), CB_SETEDITSEL, 0, MAKELPARAM(selection.start, selection.end));
}

void ComboBoxView::OnCommand(int code) {
  if (updating_) return;
  if (code == CBN_SETFOCUS) {
    Window().FocusArrived(*this);  // a click into the typed text reaches the edit window alone
  } else if (code == CBN_SELENDOK) {
    const int index = SelectedEntry();
    Send(Handle(), CB_SHOWDROPDOWN, FALSE);
    if (index >= 0) combo_.Pick(index);
  } else if (code == CBN_SELCHANGE) {
    // Arrows in the open list pick as they do in the closed one, so that the entry shown is the picked one however the list
    // closes.
    const int index = SelectedEntry();
    if (index >= 0 && index != combo_.ListIndex()) combo_.Pick(index);
  } else if (code == CBN_CLOSEUP) {
    ShowText();
  } else if (code == CBN_EDITCHANGE) {
    Pull();
  }
}

bool ComboBoxView::WantsNatively(const MSG& message) const {
  if (message.message == WM_SYSKEYDOWN) return message.wParam == VK_DOWN || message.wParam == VK_UP;
  if (message.message != WM_KEYDOWN) return false;
  const WPARAM key = message.wParam;
  if (key == VK_F4 || key == VK_PROCESSKEY) return true;
  if (IsDropped()) {
    return key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT || key == VK_RETURN || key == VK_ESCAPE;
  }
  return HasEdit() && (key == VK_LEFT || key == VK_RIGHT || key == VK_HOME || key == VK_END);
}

void ComboBoxView::Pull() {
  if (!HasEdit() || IsDropped()) return;
  const std::wstring text = WindowText(Handle());
  if (const std::string typed = Utf8(text); typed != combo_.Text()) combo_.TakeEdited(typed);
  const Selection selection = SelectionIn(text, CB_GETEDITSEL);
  const controls::ScopedFlag updating(updating_);
  combo_.SetSelStart(selection.start);
  combo_.SetSelLength(selection.end - selection.start);
}

std::optional<LRESULT> ComboBoxView::Intercept(UINT message, WPARAM, LPARAM) {
  if (message == WM_PASTE && Paste()) return 0;
  return std::nullopt;
}

}  // namespace windows
