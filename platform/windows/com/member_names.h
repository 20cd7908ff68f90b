#pragma once

#include <string>
#include <string_view>

#include "platform/windows/windows_gate.h"

namespace windows {

/// The dispatch identifiers this module gives to member names: one a name, whatever its letter case.
DISPID MemberIdOf(std::string_view name);
/// The name of such an identifier; null for one that was never given. The text lives as long as the module.
const std::string* MemberNameOf(DISPID id);

}  // namespace windows
