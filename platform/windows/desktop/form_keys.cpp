// How key messages of a form's windows become the model's keys.

#include "platform/windows/desktop/form_window.h"
#include "platform/windows/desktop/windows_desktop.h"

namespace windows {
namespace {

using namespace controls;

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

int ShiftState() {
  return (IsDown(VK_SHIFT) ? kShift : 0) | (IsDown(VK_CONTROL) ? kCtrl : 0) | (IsDown(VK_MENU) ? kAlt : 0);
}

/// F10 comes as a system key though Alt is not held: by itself it would open the window's menu.
bool IsPlainF10(const MSG& message, int shift) {
  return message.wParam == VK_F10 && shift == 0;
}

/// The character, or the half of one, that a key-down gives, taken out of the queue; 0 for keys without one.
char32_t TakeCharacter(const MSG& keyDown) {
  TranslateMessage(&keyDown);
  MSG character{};
  if (!PeekMessageW(&character, keyDown.hwnd, WM_CHAR, WM_CHAR, PM_REMOVE)) return 0;
  return static_cast<char32_t>(character.wParam);
}

}  // namespace

char32_t FormWindow::Whole(char32_t unit) {
  const char32_t first = std::exchange(firstHalf_, U'\0');
  if (unit < 0xD800 || unit > 0xDFFF) return unit;
  if (unit < 0xDC00) {
    firstHalf_ = unit;
    return 0;
  }
  return first == 0 ? U'\xFFFD' : 0x10000 + ((first - 0xD800) << 10) + (unit - 0xDC00);
}

bool FormWindow::RunClipboardKey(ControlView& view, WPARAM key, bool control, bool shift) {
  if (control && !shift) {
    switch (key) {
      case 'C':
      case VK_INSERT:
        return view.Copy();
      case 'X':
        return view.Cut();
      case 'V':
        return view.Paste();
      case 'A':
        return view.SelectAll();
      default:
        return false;
    }
  }
  if (shift && !control && key == VK_INSERT) return view.Paste();
  return shift && !control && key == VK_DELETE && view.Cut();
}

void FormWindow::RunNatively(ControlView& view, const MSG& message) {
  // The handlers get the key; moving the caret is left to the window.
  const std::weak_ptr<late::Object> form = form_.weak_from_this();
  Control& control = view.Model();
  int code = static_cast<int>(message.wParam);
  const int shift = ShiftState();
  if (message.message == WM_KEYDOWN) {
    if (form_.KeyPreview()) form_.KeyDown.Fire(code, shift);
    if (code != 0 && form_.IsShown()) control.KeyDown.Fire(code, shift);
    if (code == 0 || form.expired() || !form_.IsShown()) return;
  }
  // These keys give no character; only an input method's key must be translated.
  if (message.wParam == VK_PROCESSKEY) TranslateMessage(&message);
  DispatchMessageW(&message);
  if (form.expired() || !form_.IsShown()) return;
  view.Pull();
  if (message.message != WM_KEYDOWN) return;
  if (form_.KeyPreview()) form_.KeyUp.Fire(code, shift);
  if (form_.IsShown()) control.KeyUp.Fire(code, shift);
}

bool FormWindow::HandleKey(const MSG& message) {
  ControlView* view = ViewOf(GetFocus());
  if (view != nullptr && view->WantsNatively(message)) {
    RunNatively(*view, message);
    return true;
  }
  KeyStroke key;
  key.shift = ShiftState();
  switch (message.message) {
    case WM_SYSKEYDOWN: {
      // Alt with a letter or digit is an access key, and F10 alone is the form's; the rest of the system keys (Alt+F4, Alt+blank,
      // Shift+F10) stay the system's.
      const bool access = (message.wParam >= 'A' && message.wParam <= 'Z') || (message.wParam >= '0' && message.wParam <= '9');
      if (!(access && (key.shift & kAlt) != 0) && !IsPlainF10(message, key.shift)) return false;
      key.keyCode = static_cast<int>(message.wParam);
      break;
    }
    case WM_KEYDOWN:
      if (message.wParam == VK_SHIFT || message.wParam == VK_CONTROL || message.wParam == VK_MENU) return false;
      if (view != nullptr) {
        view->Pull();
        const bool control = (key.shift & (kCtrl | kAlt)) == kCtrl;
        if (RunClipboardKey(*view, message.wParam, control, (key.shift & kShift) != 0)) return true;
      }
      key.keyCode = static_cast<int>(message.wParam);
      key.character = Whole(TakeCharacter(message));
      // AltGr arrives as Ctrl+Alt; its characters are typed like any others.
      if ((key.shift & (kCtrl | kAlt)) == (kCtrl | kAlt) && key.character >= U' ') key.shift &= ~(kCtrl | kAlt);
      break;
    case WM_CHAR:  // a character without a key of its own: input methods, other programs
      if (view != nullptr) view->Pull();
      key.character = Whole(static_cast<char32_t>(message.wParam));
      if (key.character == 0) return true;
      break;
    case WM_KEYUP:  // KeyUp has been fired with the key press
      // The system opens a menu only for a window that got the key press, too.
      if (message.wParam == VK_APPS) {
        Send(message.hwnd, WM_CONTEXTMENU, message.hwnd, -1);
      }
      return true;
    case WM_SYSKEYUP:
      return IsPlainF10(message, key.shift);
    default:
      return false;
  }
  PressKeyAndFollow(key);
  return true;
}

void FormWindow::PressKeyAndFollow(const KeyStroke& key) {
  const std::weak_ptr<late::Object> form = form_.weak_from_this();
  const Control* pressedOn = form_.ActiveControl();
  PressKey(form_, key);
  if (form.expired() || !form_.IsShown() || form_.ActiveControl() != pressedOn) return;
  if (ControlView* view = ViewOf(pressedOn)) view->FollowKey(key.keyCode);
}

}  // namespace windows
