#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "base/workstation/state_file.h"

namespace text {

/// The user's folder for what programs keep between runs: XDG_STATE_HOME, else .local/state of the home folder, and there the
/// component's. Empty when neither is known.
std::filesystem::path StateFolder();

/// Whether the folder has a state file of that name, taken or not. False where the folder cannot be looked into.
bool StateFileExists(const std::filesystem::path& folder, std::string_view name);

/// Takes the state file of that name; null when another process has it. Makes the folder. Error 75 when the folder cannot be
/// made or written.
std::unique_ptr<workstation::StateFile> TakeStateFile(const std::filesystem::path& folder, std::string_view name);

}  // namespace text
