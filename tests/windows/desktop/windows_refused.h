#pragma once

#include <array>
#include <string>
#include <utility>

#include "platform/windows/windows_gate.h"

/// While it lives, a hook refuses every new window of this class on this thread, or every window where the class is empty. One at
/// a time.
class WindowsRefused {
 public:
  explicit WindowsRefused(std::wstring windowClass) : hook_(SetWindowsHookExW(WH_CBT, Refuse, nullptr, GetCurrentThreadId())) {
    refused_ = std::move(windowClass);
  }
  WindowsRefused(const WindowsRefused&) = delete;
  WindowsRefused& operator=(const WindowsRefused&) = delete;
  ~WindowsRefused() { UnhookWindowsHookEx(hook_); }

 private:
  static LRESULT CALLBACK Refuse(int code, WPARAM window, LPARAM data) {
    if (code != HCBT_CREATEWND) return CallNextHookEx(nullptr, code, window, data);
    std::array<wchar_t, 64> name{};
    GetClassNameW(reinterpret_cast<HWND>(window), name.data(), static_cast<int>(name.size()));
    return refused_.empty() || refused_ == name.data() ? 1 : 0;
  }

  static inline std::wstring refused_;
  HHOOK hook_;
};
