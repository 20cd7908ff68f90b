#pragma once

#include <string>
#include <string_view>

namespace console {

/// Writes `"`, `\`, line feed, carriage return and tab as two characters, so that any text fits on one line.
std::string Escape(std::string_view text);
/// The same between double quotes.
std::string Quote(std::string_view text);
/// The way back; a backslash before any other character is literal.
std::string Unescape(std::string_view text);

}  // namespace console
