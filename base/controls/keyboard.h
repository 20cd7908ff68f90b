#pragma once

#include <string_view>

#include "base/controls/form.h"

namespace controls {

/// One key of a person's keyboard.
struct KeyStroke {
  int keyCode = 0;         ///< 0 for a character without a key code of its own
  int shift = 0;           ///< ShiftState, added up
  char32_t character = 0;  ///< what KeyPress gets; 0 for keys without one
};

/// Reads "Enter", "Ctrl+Enter", "Esc", "Tab", "Shift+Tab", "Delete", "Backspace", "Up", "PageDown", "F3", "Shift+F3", "Ctrl+D",
/// "Alt+X" or a single character. False when it is none of these.
bool ParseKey(std::string_view name, KeyStroke& key);

/// The classic order of a key on the active control, for desktops without a keyboard of their own: form preview and control
/// KeyDown; access keys, Tab, default and cancel buttons; form preview and control KeyPress; what the control itself does with
/// the key; KeyUp; then a pending {TAB}. Stops where a handler sets the key to 0, and when the form is unloaded on the way.
void PressKey(Form& form, const KeyStroke& key);

/// Whether the rest of a typed text should still be typed: the form is the active one and its focus still on `control`.
bool CanGoOnTyping(const Form& form, const Control& control);

/// Alt+key: focuses or clicks the control of that access key. False when there is none.
bool PressAccessKey(Form& form, char32_t upperCaseKey);

/// A mouse click on a control, as a person's: focus first (unless validation keeps it), then what the control does and its Click.
/// For buttons, options and check boxes; lists and grids have ClickItem and ClickCell.
void ClickControl(Control& control);

/// The right button on a control: focus first (unless validation keeps it), then its mouse events, which may open a menu.
void RightClickControl(Control& control, int shift = 0);

}  // namespace controls
