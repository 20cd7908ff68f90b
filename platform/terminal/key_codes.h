#pragma once

#include <optional>

#include "base/controls/keyboard.h"

namespace terminal {

/// The key of a code beyond the characters, as the terminal's description names it; nothing for codes that are no keys.
/// `name` is the code's extended name ("kUP5"), null where it has none.
std::optional<controls::KeyStroke> KeyOf(int code, const char* name);

/// The key of a control character: Ctrl with a letter, Enter, Tab, Esc, Backspace. Ctrl+J is Ctrl+Enter, which terminals do not
/// send.
controls::KeyStroke ControlKey(int character);

/// A character that is typed, with Shift for capitals and Alt where it was held.
controls::KeyStroke TypedKey(char32_t character, bool alt);

}  // namespace terminal
