#include "platform/windows/desktop/captioned_view.h"

#include "base/controls/keyboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"

namespace windows {

using controls::ControlKind;

void CaptionedView::Create(HWND parent, int id) {
  DWORD style = WS_TABSTOP;
  const wchar_t* windowClass = WC_BUTTONW;
  switch (captioned_.Kind()) {
    case ControlKind::CommandButton:
      style |= static_cast<controls::CommandButton&>(captioned_).IsDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
      break;
    case ControlKind::OptionButton:
      style |= BS_RADIOBUTTON | BS_NOTIFY;
      break;
    case ControlKind::CheckBox:
      style |= BS_CHECKBOX | BS_NOTIFY;
      break;
    case ControlKind::Frame:
      style = BS_GROUPBOX;
      break;
    default:
      windowClass = WC_STATICW;
      style = SS_LEFT | SS_NOTIFY;
      break;
  }
  // The form paints what is inside a frame.
  const DWORD extended = captioned_.Kind() == ControlKind::Frame ? WS_EX_TRANSPARENT : 0;
  CreateChild(parent, id, windowClass, captioned_.Caption(), style, extended);
  ShowValue();
}

void CaptionedView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect == controls::Aspect::Text) SetWindowTextW(Handle(), Wide(captioned_.Caption()).c_str());
  ShowValue();
}

void CaptionedView::ShowValue() {
  bool checked = false;
  if (captioned_.Kind() == ControlKind::OptionButton)
    checked = static_cast<controls::OptionButton&>(captioned_).Value();
  else if (captioned_.Kind() == ControlKind::CheckBox)
    checked = static_cast<controls::CheckBox&>(captioned_).IsChecked();
  else
    return;
  Send(Handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
}

void CaptionedView::OnCommand(int code) {
  if (code != BN_CLICKED) return;
  switch (captioned_.Kind()) {
    case ControlKind::CommandButton:
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
      controls::ClickControl(captioned_);
      break;
    default:
      break;
  }
}

}  // namespace windows
