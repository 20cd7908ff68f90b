#include "platform/windows/desktop/shown_objects.h"

#include <memory>
#include <utility>

#include "platform/windows/com/module_lifetime.h"
#include "platform/windows/desktop/common_controls.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/handles.h"
#include "platform/windows/window_queries.h"

namespace windows {
namespace {

constexpr UINT kLook = 500;  // milliseconds

struct Kept {
  HWND window = nullptr;
  std::vector<late::ObjectPtr> objects;
  ModuleLifetime::Reference keepsLoaded;
};

/// A hidden window. It is asked from time to time, for the other one may be of any thread or program.
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
  std::vector<HWND> windows = TopLevelWindows();
  std::erase_if(windows, [&](HWND window) { return !IsWindowVisible(window) || WindowText(window) != title; });
  return windows;
}

void KeepWhileOpen(HWND window, std::vector<late::ObjectPtr> objects) {
  auto kept = std::make_unique<Kept>();
  kept->window = window;
  kept->objects = std::move(objects);
  Owned<HWND> keeper(CreateWindowExW(0, WC_STATICW, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, ThisModule(), nullptr));
  if (!keeper || !SetWindowSubclass(keeper.get(), KeeperProcedure, 1, reinterpret_cast<DWORD_PTR>(kept.get()))) return;
  static_cast<void>(kept.release());  // the keeper's, until it is destroyed
  SetTimer(keeper.release(), 1, kLook, nullptr);
}

}  // namespace windows
