#pragma once

#include <memory>
#include <string_view>

#include "base/workstation/state_file.h"

namespace windows {

/// Whether the user's folder for the component's state (in the per-user application data of this machine) has a file of that
/// name, taken or not.
bool StateFileExists(std::string_view name);

/// Takes the state file of that name; null when another process has it. Makes the folder. File errors when the folder cannot be
/// made or written.
std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name);

}  // namespace windows
