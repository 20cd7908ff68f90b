#pragma once

#include <string>
#include <vector>

namespace hosts {

/// The ways in which a host, or a helper component, misbehaves.
std::vector<std::string> CaseNames();

/// Plays a host that misbehaves in one of these ways, in this process: Show must return each time, and the host's windows must be
/// there to be used again. The exit code is 0 when all was as it must be; otherwise the error output says what was not. A Show
/// that never returns ends the process.
int Play(const std::string& name);

}  // namespace hosts
