#include "platform/windows/desktop/shown_objects.h"

#include <memory>
#include <utility>

#include "platform/windows/com/module_lifetime.h"
#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/desktop/control_view.h"
#include "platform/windows/desktop/metrics.h"

namespace windows {
namespace {

constexpr UINT kLook = 500;  // milliseconds

struct TitleSearch {
  const std::wstring& title;
  std::vector<HWND> found;
};

BOOL CALLBACK NoteTitled(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<TitleSearch*>(data);
  if (IsWindowVisible(window) && WindowText(window) == search.title) search.found.push_back(window);
  return TRUE;
}

struct Kept {
  HWND window = nullptr;
  std::vector<late::ObjectPtr> objects;
  ModuleLifetime::Reference keepsLoaded;
};

/// Of a window that nobody sees. It is asked from time to time, for the other one may be of any thread or program.
LRESULT CALLBACK KeeperProcedure(HWND keeper, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data) {
  auto* kept = reinterpret_cast<Kept*>(data);
  if (message == WM_TIMER && !IsWindow(kept->window)) {
    DestroyWindow(keeper);
    return 0;
  }
  if (message != WM_NCDESTROY) return DefSubclassProc(keeper, message, wParam, lParam);
  const std::unique_ptr<Kept> released(kept);
  RemoveWindowSubclass(keeper, KeeperProcedure, id);
  return DefSubclassProc(keeper, message, wParam, lParam);
}

}  // namespace

std::vector<HWND> WindowsTitled(const std::wstring& title) {
  TitleSearch search{title, {}};
  EnumWindows(NoteTitled, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void KeepWhileOpen(HWND window, std::vector<late::ObjectPtr> objects) {
  auto kept = std::make_unique<Kept>();
  kept->window = window;
  kept->objects = std::move(objects);
  const HWND keeper = CreateWindowExW(0, WC_STATICW, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ThisModule(), nullptr);
  if (keeper == nullptr || !SetWindowSubclass(keeper, KeeperProcedure, 1, reinterpret_cast<DWORD_PTR>(kept.get()))) return;
  static_cast<void>(kept.release());  // the keeper's, until it is destroyed
  SetTimer(keeper, 1, kLook, nullptr);
}

}  // namespace windows
