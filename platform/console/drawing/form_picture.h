#pragma once

#include <string>
#include <vector>

#include "base/controls/form.h"

namespace console {

/// A loaded form as a person sees it, about a hundred columns wide at most.
std::vector<std::string> DrawForm(const controls::Form& form);

}  // namespace console
