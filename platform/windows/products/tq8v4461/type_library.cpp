#include "platform/windows/products/tq8v4461/type_library.h"

#include "platform/windows/com/com_error.h"
#include "platform/windows/com/registration.h"

namespace windows {

ComPtr<ITypeInfo> TypeInfoOf(REFGUID id) {
  // Loaded from the module itself: what is registered may be missing, or another version's.
  ComPtr<ITypeLib> library;
  Check(LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Receive()));
  ComPtr<ITypeInfo> info;
  Check(library->GetTypeInfoOfGuid(id, info.Receive()));
  return info;
}

}  // namespace windows
