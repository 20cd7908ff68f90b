#pragma once

#include "platform/windows/com/com_ptr.h"

namespace windows {

/// The description of a class or interface in this DLL's own type library. Run-time errors as the system's results.
ComPtr<ITypeInfo> TypeInfoOf(REFGUID id);

}  // namespace windows
