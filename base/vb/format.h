#pragma once

#include <string>
#include <string_view>

#include "base/vb/number.h"

namespace vb {

/// Number pictures of 0, #, comma (thousands) and point, such as "#0.000", "###,###,##0.000#####", "0.00".
/// Rounds half away from zero on the decimal digits of the value (1.005 with "#0.00" is 1.01); trailing # drop zeros.
std::string Format(double value, std::string_view picture);
std::string Format(const Decimal& value, std::string_view picture);
/// Text that reads as a number is formatted as that number; other text, the empty one included, comes back as it is.
std::string FormatText(std::string_view text, std::string_view picture);

}  // namespace vb
