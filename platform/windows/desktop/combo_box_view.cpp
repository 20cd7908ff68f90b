#include "platform/windows/desktop/combo_box_view.h"

#include "base/controls/scoped_flag.h"
#include "base/vb/text.h"
#include "platform/windows/desktop/clipboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {

using controls::ComboStyle;

void ComboBoxView::Create(HWND parent, int id) {
  const DWORD style = combo_.Style() == ComboStyle::DropDownList ? CBS_DROPDOWNLIST : CBS_DROPDOWN | CBS_AUTOHSCROLL;
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
  if (pasting_) return;
  const controls::ScopedFlag updating(updating_);
  Send(Handle(), CB_SETCURSEL, combo_.ListIndex());
  if (combo_.Style() == ComboStyle::DropDown) {
    const std::string text = combo_.Text();
    const std::wstring wide = Wide(text);
    if (WindowText(Handle()) != wide) SetWindowTextW(Handle(), wide.c_str());
    const auto units = [&](int characters) { return static_cast<WORD>(Wide(vb::Left(text, characters)).size()); };
    Send(Handle(), CB_SETEDITSEL, 0, MAKELPARAM(units(combo_.SelStart()), units(combo_.SelStart() + combo_.SelLength())));
  }
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
  return combo_.Style() == ComboStyle::DropDown && (key == VK_LEFT || key == VK_RIGHT || key == VK_HOME || key == VK_END);
}

void ComboBoxView::Pull() {
  if (combo_.Style() != ComboStyle::DropDown || IsDropped()) return;
  const std::wstring text = WindowText(Handle());
  if (const std::string typed = Utf8(text); typed != combo_.Text()) combo_.TakeEdited(typed);
  DWORD start = 0;
  DWORD end = 0;
  Send(Handle(), CB_GETEDITSEL, &start, &end);
  const auto characters = [&](DWORD units) {
    return static_cast<int>(vb::Len(Utf8(std::wstring_view(text).substr(0, std::min<std::size_t>(units, text.size())))));
  };
  const controls::ScopedFlag updating(updating_);
  combo_.SetSelStart(characters(start));
  combo_.SetSelLength(characters(end) - characters(start));
}

bool ComboBoxView::Copy() {
  if (combo_.Style() != ComboStyle::DropDown) return false;
  Pull();
  const std::string selected = vb::Mid(combo_.Text(), combo_.SelStart() + 1, combo_.SelLength());
  if (!selected.empty()) PutOnClipboard(Handle(), selected);
  return true;
}

bool ComboBoxView::Cut() {
  if (!Copy()) return false;
  if (combo_.SelLength() > 0) combo_.TypeOver("");
  return true;
}

bool ComboBoxView::Paste() {
  if (combo_.Style() != ComboStyle::DropDown) return false;
  Pull();
  const auto keep = combo_.Owner().weak_from_this().lock();
  const controls::ComboBox& combo = combo_;
  pasting_ = true;  // shown once it is all there
  combo_.Paste(ClipboardText(Handle()));
  if (!combo.Owner().IsShown()) return true;  // this view is gone with its form
  pasting_ = false;
  ShowText();
  return true;
}

std::optional<LRESULT> ComboBoxView::Intercept(UINT message, WPARAM, LPARAM) {
  if (message == WM_PASTE && Paste()) return 0;
  return std::nullopt;
}

}  // namespace windows
