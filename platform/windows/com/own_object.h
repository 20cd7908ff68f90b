#pragma once

#include "base/late/object.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// How a wrapper that comes back is known: by the module that made it, since only that one may use what is inside.
struct OwnObject : IUnknown {
  virtual const void* STDMETHODCALLTYPE Module() = 0;
  /// Null when it was disconnected.
  virtual const late::ObjectPtr* STDMETHODCALLTYPE Object() = 0;
};

inline constexpr GUID kOwnObjectId = {0xa7c6e1f4, 0x5d0b, 0x4c7e, {0x9a, 0x31, 0x6f, 0x1d, 0x24, 0x88, 0x0b, 0x5c}};

/// An address that no other module has.
const void* ModuleMark();

}  // namespace windows
