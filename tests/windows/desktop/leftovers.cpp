#include "tests/windows/desktop/leftovers.h"

#include <intrin.h>

#include "platform/windows/windows_gate.h"

namespace counter {
namespace {

BOOL CALLBACK CountOne(HWND, LPARAM data) {
  ++*reinterpret_cast<std::size_t*>(data);
  return TRUE;
}

}  // namespace

std::size_t GraphicsObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return counted;
  // Wine does not count them itself, but keeps the classic table: entries of 24 bytes with the object's type, 0 for a free one,
  // at byte 14.
  constexpr std::size_t kTableInProcessBlock = 0xF8;
  constexpr std::size_t kEntries = 0x10000;
  constexpr std::size_t kEntrySize = 24;
  constexpr std::size_t kType = 14;
  const auto block = __readgsqword(0x60);
  const auto* table = *reinterpret_cast<const unsigned char* const*>(block + kTableInProcessBlock);
  std::size_t count = 0;
  for (std::size_t entry = 0; table != nullptr && entry < kEntries; ++entry) count += table[entry * kEntrySize + kType] != 0;
  return count;
}

std::size_t Windows() {
  std::size_t count = 0;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM data) -> BOOL {
        EnumChildWindows(window, CountOne, data);
        return CountOne(window, data);
      },
      reinterpret_cast<LPARAM>(&count));
  for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;) {
    count += GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
  }
  return count;
}

}  // namespace counter
