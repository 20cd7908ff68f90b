#pragma once

#include <type_traits>

#include "platform/windows/windows_gate.h"

namespace windows {

template <class To, class From>
To MessageParameter(From value) {
  if constexpr (std::is_pointer_v<From>) {
    return reinterpret_cast<To>(value);
  } else {
    return static_cast<To>(value);
  }
}

/// SendMessageW with parameters of any integer or pointer type.
template <class First = WPARAM, class Second = LPARAM>
LRESULT Send(HWND window, UINT message, First first = {}, Second second = {}) {
  return SendMessageW(window, message, MessageParameter<WPARAM>(first), MessageParameter<LPARAM>(second));
}

/// The mouse's place in a mouse message, in the window's coordinates.
inline POINT MousePoint(LPARAM parameter) {
  return {static_cast<short>(LOWORD(parameter)), static_cast<short>(HIWORD(parameter))};
}

}  // namespace windows
