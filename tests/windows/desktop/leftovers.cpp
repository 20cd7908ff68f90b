#include "tests/windows/desktop/leftovers.h"

#include "platform/windows/window_queries.h"

namespace counter {
std::size_t GraphicsObjects() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return counted;
  // Wine does not count them itself, but keeps the classic table: entries of 24 bytes with the object's type, 0 for a free one,
  // at byte 14.
  constexpr bool kWide = sizeof(void*) == 8;
  constexpr std::size_t kProcessBlockInThreadBlock = 12 * sizeof(void*);
  constexpr std::size_t kTableInProcessBlock = kWide ? 0xF8 : 0x94;
  constexpr std::size_t kEntries = 0x10000;
  constexpr std::size_t kEntrySize = 24;
  constexpr std::size_t kType = 14;
  const auto at = [](const void* block, std::size_t offset) {
    return *reinterpret_cast<const unsigned char* const*>(static_cast<const unsigned char*>(block) + offset);
  };
  const unsigned char* table = at(at(NtCurrentTeb(), kProcessBlockInThreadBlock), kTableInProcessBlock);
  std::size_t count = 0;
  for (std::size_t entry = 0; table != nullptr && entry < kEntries; ++entry) count += table[entry * kEntrySize + kType] != 0;
  return count;
}

std::size_t Windows() {
  const std::vector<HWND> topLevel = windows::WindowsOfThread();
  std::size_t count = topLevel.size();
  for (HWND window : topLevel) count += windows::WindowsInside(window).size();
  for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;) {
    count += GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
  }
  return count;
}

}  // namespace counter
