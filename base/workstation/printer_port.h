#pragma once

#include <string>
#include <string_view>

namespace workstation {

/// The name in upper case of the printer port that the path names: PRN, LPT1 to LPT9 or COM1 to COM9, in any letter case and with
/// or without a colon. Empty when it names none.
std::string PrinterPort(std::string_view path);

}  // namespace workstation
