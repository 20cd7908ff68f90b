#pragma once

#include <string>
#include <vector>

#include "base/controls/message_box.h"

namespace console {

/// A message box with its buttons, the default one marked.
std::vector<std::string> DrawMessage(const controls::Message& message, const std::vector<std::string>& buttons);

}  // namespace console
