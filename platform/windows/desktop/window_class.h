#pragma once

#include <string_view>

#include "platform/windows/windows_gate.h"

namespace windows {

/// The name of the forms' window class, registered on first use with this procedure for this module.
const wchar_t* FormClassName(WNDPROC procedure);

/// Takes the class back; a DLL does so before it is unloaded. Does nothing when no form was ever shown.
void UnregisterFormClass();

/// The icon of the module's resources, for a title bar (ICON_SMALL) or the task list (ICON_BIG); null where the module has none.
HICON FormIcon(WPARAM size);

/// Raises error 7 with what the system says: the window of this form or control could not be made.
[[noreturn]] void RaiseNoWindow(std::string_view name);

}  // namespace windows
