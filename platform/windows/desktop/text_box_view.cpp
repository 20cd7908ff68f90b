#include "platform/windows/desktop/text_box_view.h"

#include "base/controls/scoped_flag.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {

void TextBoxView::Create(HWND parent, int id) {
  DWORD style = WS_TABSTOP | (box_.MultiLine() ? ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL);
  if (box_.RightAligned()) style |= ES_RIGHT;
  CreateChild(parent, id, WC_EDITW, box_.Text(), style, WS_EX_CLIENTEDGE);
  Update(controls::Aspect::Layout);
}

void TextBoxView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect != controls::Aspect::Text && aspect != controls::Aspect::Selection && aspect != controls::Aspect::Layout) return;
  if (IsPasting()) return;
  const controls::ScopedFlag updating(updating_);
  const Selection selection = ShowEntry();
  Send(Handle(), EM_SETSEL, selection.start, selection.end);
  Send(Handle(), EM_SCROLLCARET);
  Send(Handle(), EM_SETREADONLY, box_.Locked());
}

void TextBoxView::OnCommand(int code) {
  // Input methods, undo and other programs change the window itself; the keys do not.
  if (code == EN_CHANGE && !updating_) Pull();
}

void TextBoxView::Pull() {
  const std::wstring text = WindowText(Handle());
  const Selection selection = SelectionIn(text, EM_GETSEL);
  box_.TakeEdited(Utf8(text), selection.start, selection.end - selection.start);
}

bool TextBoxView::WantsNatively(const MSG& message) const {
  if (message.message != WM_KEYDOWN) return false;
  switch (message.wParam) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
      return true;
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
      return box_.MultiLine();
    case VK_PROCESSKEY:
      return true;
    default:
      return false;
  }
}

bool TextBoxView::SelectAll() {
  box_.SelectAll();
  return true;
}

std::optional<LRESULT> TextBoxView::Intercept(UINT message, WPARAM, LPARAM) {
  // The box's own menu pastes, cuts and undoes, too.
  switch (message) {
    case WM_PASTE:
      Paste();
      return 0;
    case WM_UNDO:
    case EM_UNDO:
      box_.Undo();
      return TRUE;
    case EM_CANUNDO:
      return box_.CanUndo();
    case WM_CUT:
      Cut();
      return 0;
    case WM_CLEAR:
      Pull();
      if (box_.SelLength() > 0) box_.TypeOver("");
      return 0;
    default:
      return std::nullopt;
  }
}

}  // namespace windows
