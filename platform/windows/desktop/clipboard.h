#pragma once

#include <string>

#include "platform/windows/windows_gate.h"

namespace windows {

/// The clipboard's text, empty when it holds none.
std::string ClipboardText(HWND owner);
void PutOnClipboard(HWND owner, const std::string& text);

}  // namespace windows
