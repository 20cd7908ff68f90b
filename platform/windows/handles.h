#pragma once

#include <memory>
#include <type_traits>

#include "platform/windows/windows_gate.h"

namespace windows {

/// Gives a system object back in the way of its kind.
struct HandleCloser {
  void operator()(HWND window) const { DestroyWindow(window); }
  void operator()(HMENU menu) const { DestroyMenu(menu); }
  void operator()(HHOOK hook) const { UnhookWindowsHookEx(hook); }
  void operator()(HBRUSH brush) const { DeleteObject(brush); }
  void operator()(HFONT font) const { DeleteObject(font); }
};

/// A system object that ends with its owner.
template <class Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, HandleCloser>;

}  // namespace windows
