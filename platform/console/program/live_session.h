#pragma once

#include <string>

#include "platform/console/options.h"

namespace console {

/// A shop's program full screen in this terminal: the host's log-on values, from which the goods requests open. Returns when it
/// is closed, with the error that ended it; empty for none.
std::string RunLiveSession(const Options& options);

}  // namespace console
