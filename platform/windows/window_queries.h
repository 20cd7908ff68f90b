#pragma once

#include <string>
#include <vector>

#include "platform/windows/windows_gate.h"

namespace windows {

std::wstring WindowText(HWND window);
/// Whether a window is of this class; small and capital letters are alike.
bool IsOfClass(HWND window, const wchar_t* name);

/// The top-level windows of all programs, from front to back.
std::vector<HWND> TopLevelWindows();
/// Those of this thread.
std::vector<HWND> WindowsOfThread();
/// The windows inside a window, at any depth.
std::vector<HWND> WindowsInside(HWND parent);

}  // namespace windows
