#include "platform/windows/desktop/text_box_view.h"

#include "base/controls/scoped_flag.h"
#include "base/vb/text.h"
#include "platform/windows/desktop/clipboard.h"
#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/messages.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"

namespace windows {
namespace {

/// Positions of the window are UTF-16 units, of the model characters.
int UnitsOf(const std::string& text, int characters) {
  return static_cast<int>(Wide(vb::Left(text, characters)).size());
}
int CharactersOf(const std::wstring& text, DWORD units) {
  return static_cast<int>(vb::Len(Utf8(std::wstring_view(text).substr(0, std::min<std::size_t>(units, text.size())))));
}

}  // namespace

void TextBoxView::Create(HWND parent, int id) {
  DWORD style = WS_TABSTOP | (box_.MultiLine() ? ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL);
  if (box_.RightAligned()) style |= ES_RIGHT;
  CreateChild(parent, id, WC_EDITW, box_.Text(), style, WS_EX_CLIENTEDGE);
  Update(controls::Aspect::Layout);
}

void TextBoxView::Update(controls::Aspect aspect) {
  ControlView::Update(aspect);
  if (aspect != controls::Aspect::Text && aspect != controls::Aspect::Selection && aspect != controls::Aspect::Layout) return;
  if (pasting_) return;
  const controls::ScopedFlag updating(updating_);
  const std::string& text = box_.Text();
  const std::wstring wide = Wide(text);
  if (WindowText(Handle()) != wide) SetWindowTextW(Handle(), wide.c_str());
  Send(Handle(), EM_SETSEL, UnitsOf(text, box_.SelStart()), UnitsOf(text, box_.SelStart() + box_.SelLength()));
  Send(Handle(), EM_SCROLLCARET);
  Send(Handle(), EM_SETREADONLY, box_.Locked());
}

void TextBoxView::OnCommand(int code) {
  // Input methods, undo and other programs change the window itself; the keys do not.
  if (code == EN_CHANGE && !updating_) Pull();
}

void TextBoxView::Pull() {
  const std::wstring text = WindowText(Handle());
  DWORD start = 0;
  DWORD end = 0;
  Send(Handle(), EM_GETSEL, &start, &end);
  const int first = CharactersOf(text, start);
  box_.TakeEdited(Utf8(text), first, CharactersOf(text, end) - first);
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

bool TextBoxView::Copy() {
  Pull();
  if (box_.SelLength() > 0) PutOnClipboard(Handle(), box_.SelText());
  return true;
}

bool TextBoxView::Cut() {
  Copy();
  if (!box_.Locked() && box_.SelLength() > 0) box_.TypeOver("");
  return true;
}

bool TextBoxView::Paste() {
  Pull();
  // Shown once it is all there: character by character, a long text would keep everybody waiting.
  const auto keep = box_.Owner().weak_from_this().lock();
  const controls::TextBox& box = box_;
  pasting_ = true;
  box_.Paste(ClipboardText(Handle()));
  if (!box.Owner().IsShown()) return true;  // this view is gone with its form
  pasting_ = false;
  Update(controls::Aspect::Text);
  return true;
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
      if (!box_.Locked() && box_.SelLength() > 0) box_.TypeOver("");
      return 0;
    default:
      return std::nullopt;
  }
}

}  // namespace windows
