#include "platform/windows/window_queries.h"

#include <array>

namespace windows {
namespace {

/// A function, no lambda: the 32-bit system calls back with its own calling convention.
BOOL CALLBACK Append(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

}  // namespace

std::wstring WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

bool IsOfClass(HWND window, const wchar_t* name) {
  std::array<wchar_t, 257> text{};  // no class has a longer name
  GetClassNameW(window, text.data(), static_cast<int>(text.size()));
  return lstrcmpiW(text.data(), name) == 0;
}

std::vector<HWND> TopLevelWindows() {
  std::vector<HWND> windows;
  EnumWindows(Append, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> WindowsOfThread() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), Append, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::vector<HWND> WindowsInside(HWND parent) {
  std::vector<HWND> windows;
  EnumChildWindows(parent, Append, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace windows
