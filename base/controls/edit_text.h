#pragma once

#include <string>
#include <string_view>

#include "base/controls/control.h"

/// What the boxes that take typed text share. Details of the room, not for others.
namespace controls {

/// `text` with the `length` characters after the first `start` ones replaced. Positions in characters, from 0.
std::string Spliced(std::string_view text, int start, int length, std::string_view with);

/// The text on one line: a line break becomes a blank, those at the end go.
std::string JoinedLines(std::string_view text);

/// Runs each character of a pasted text through the control's key-press handler and inserts what it lets pass, one by one, so
/// that the handler sees the text grow. Line breaks go past the handler (they are text, not the Enter key); other control
/// characters are dropped. Ends early where `insert` returns false: the box is full.
void PasteThroughKeyPress(Control& control, std::string_view text, const std::function<bool(std::string_view)>& insert);

}  // namespace controls
