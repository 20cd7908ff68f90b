#pragma once

#include <string_view>

#include "base/controls/form.h"
#include "platform/console/command_line.h"
#include "platform/console/text_desktop.h"

namespace console {

/// Finds what a command names, and refuses what a person could not reach. All raise CommandError.

/// The form on top.
controls::Form& ActiveForm(const TextDesktop& desktop);
controls::Form& LoadedForm(const TextDesktop& desktop, std::string_view name);
/// `control` of the active form, or `form.control` of any loaded form.
controls::Control& ControlToRead(const TextDesktop& desktop, std::string_view name);
/// The same, for acting: on the active form, visible and enabled.
controls::Control& ControlToActOn(const TextDesktop& desktop, std::string_view name);
/// Besides, the control must be able to hold the focus.
controls::Control& ControlToFocus(const TextDesktop& desktop, std::string_view name);

/// The control as its own kind; `what` says what the command works on.
template <class Kind>
Kind& As(controls::Control& control, std::string_view what) {
  if (auto* kind = controls::As<Kind>(&control)) return *kind;
  throw CommandError(control.Name() + " is no " + std::string(what));
}

}  // namespace console
