#include "platform/windows/desktop/window_class.h"

#include <array>
#include <string>

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr const wchar_t* kClassName = L"ShopForm";
constexpr int kIconResource = 1;
constexpr long kOutOfMemory = 7;  // the classic runtime's number for a window that cannot be made
bool registered = false;

}  // namespace

const wchar_t* FormClassName(WNDPROC procedure) {
  if (registered) return kClassName;
  const INITCOMMONCONTROLSEX kinds{sizeof(INITCOMMONCONTROLSEX),
                                   ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&kinds);
  WNDCLASSEXW description{};
  description.cbSize = sizeof(description);
  description.lpfnWndProc = procedure;
  description.hInstance = ThisModule();
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.lpszClassName = kClassName;
  registered = RegisterClassExW(&description) != 0;
  return kClassName;
}

void UnregisterFormClass() {
  if (registered) UnregisterClassW(kClassName, ThisModule());
  registered = false;
}

HICON FormIcon(WPARAM size) {
  const bool isSmall = size == ICON_SMALL;
  return static_cast<HICON>(LoadImageW(ThisModule(), MAKEINTRESOURCEW(kIconResource), IMAGE_ICON,
                                       GetSystemMetrics(isSmall ? SM_CXSMICON : SM_CXICON),
                                       GetSystemMetrics(isSmall ? SM_CYSMICON : SM_CYICON), LR_SHARED));
}

void RaiseNoWindow(std::string_view name) {
  const DWORD error = GetLastError();
  std::array<wchar_t, 512> text{};
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                                      nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  std::string description = "The window of " + std::string(name) + " cannot be made";
  // A hook that refuses a window gives no reason.
  if (error != ERROR_SUCCESS && length > 0)
    description.append(": ").append(vb::Trim(Utf8(std::wstring_view(text.data(), length))));
  vb::Raise(kOutOfMemory, std::move(description));
}

}  // namespace windows
