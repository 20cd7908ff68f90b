#pragma once

#include <string>
#include <vector>

#include "base/late/object.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// The visible top-level windows with this title, of any program.
std::vector<HWND> WindowsTitled(const std::wstring& title);

/// Keeps objects of another component until the window that they show is gone, and this module loaded for as long. Who asked for
/// the window may be gone long before.
void KeepWhileOpen(HWND window, std::vector<late::ObjectPtr> objects);

}  // namespace windows
