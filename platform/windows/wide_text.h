#pragma once

#include <string>
#include <string_view>

namespace windows {

/// UTF-8 to the system's UTF-16 and back. What is no valid text becomes the replacement character; nothing is refused.
std::wstring Wide(std::string_view text);
std::string Utf8(std::wstring_view text);

}  // namespace windows
