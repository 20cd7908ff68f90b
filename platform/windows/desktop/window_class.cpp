#include "platform/windows/desktop/window_class.h"

#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/desktop/metrics.h"

namespace windows {
namespace {

constexpr const wchar_t* kClassName = L"ShopForm";
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

}  // namespace windows
