#pragma once

#include "platform/windows/windows_gate.h"

namespace windows {

/// The name of the forms' window class, registered on first use with this procedure for this module.
const wchar_t* FormClassName(WNDPROC procedure);

/// Takes the class back; a DLL does so before it is unloaded. Does nothing when no form was ever shown.
void UnregisterFormClass();

}  // namespace windows
