#include "platform/windows/desktop/clipboard.h"

#include "platform/windows/wide_text.h"

namespace windows {

std::string ClipboardText(HWND owner) {
  if (!OpenClipboard(owner)) return {};
  std::string text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* wide = static_cast<const wchar_t*>(GlobalLock(data))) {
      text = Utf8(wide);
      GlobalUnlock(data);
    }
  }
  CloseClipboard();
  return text;
}

void PutOnClipboard(HWND owner, const std::string& text) {
  if (!OpenClipboard(owner)) return;
  EmptyClipboard();
  const std::wstring wide = Wide(text);
  const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
  if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
    CopyMemory(GlobalLock(memory), wide.c_str(), bytes);
    GlobalUnlock(memory);
    if (!SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
  }
  CloseClipboard();
}

}  // namespace windows
