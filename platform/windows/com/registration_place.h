#pragma once

#include <string>

#include "platform/windows/windows_gate.h"

namespace windows {

/// For whom something is registered.
enum class RegistrationScope { Machine, User };

HKEY RegistryRoot(RegistrationScope scope);

/// Where classes, interfaces and type libraries are registered, below the root.
inline const std::wstring kClasses = L"Software\\Classes\\";

/// The identifier as the registry writes it, with braces.
std::wstring GuidText(const GUID& id);

}  // namespace windows
