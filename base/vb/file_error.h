#pragma once

#include <string_view>

namespace vb {

/// Raises a file error (52, 53, 70, 75, 76 and the like) with the runtime's own text and the file, port or program that it is
/// about.
[[noreturn]] void RaiseFileError(long number, std::string_view file);

}  // namespace vb
