#pragma once

#include <string>
#include <string_view>

#include "base/controls/control.h"

/// What the boxes that take typed text share. Details of the room, not for others.
namespace controls {

/// `text` with the `length` characters behind the first `start` ones replaced. Positions in characters, from 0.
std::string Spliced(std::string_view text, int start, int length, std::string_view with);

/// Runs each character of a pasted text through the control's key-press handler and hands on what it lets pass, one by one, so
/// that the handler sees the text grow. Line breaks go past the handler when they are kept (they are text, not the Enter key);
/// other control characters are dropped.
void PasteThroughKeyPress(Control& control, std::string_view text, bool keepLineBreaks,
                          const std::function<void(std::string_view)>& insert);

}  // namespace controls
