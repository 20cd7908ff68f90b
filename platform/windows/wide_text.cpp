#include "platform/windows/wide_text.h"

#include <algorithm>

#include "platform/windows/windows_gate.h"

namespace windows {
namespace {

bool IsAscii(auto character) {
  return static_cast<unsigned>(character) < 0x80;
}

}  // namespace

std::wstring Wide(std::string_view text) {
  if (std::ranges::all_of(text, [](char c) { return IsAscii(static_cast<unsigned char>(c)); })) {
    return std::wstring(text.begin(), text.end());
  }
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), length);
  return wide;
}

std::string Utf8(std::wstring_view text) {
  std::string narrow;
  if (std::ranges::all_of(text, [](wchar_t c) { return IsAscii(c); })) {
    narrow.resize(text.size());
    std::ranges::transform(text, narrow.begin(), [](wchar_t c) { return static_cast<char>(c); });
    return narrow;
  }
  const int units = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(length));
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

}  // namespace windows
