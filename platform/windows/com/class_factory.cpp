#include "platform/windows/com/class_factory.h"

#include "platform/windows/com/com_error.h"

namespace windows {

void* ClassFactory::Find(REFIID id) {
  return id == IID_IUnknown || id == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** made) {
  if (!made) return E_POINTER;
  *made = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  HRESULT found = S_OK;
  const HRESULT result = Guard("", IID_IClassFactory, [&] { found = maker_()->QueryInterface(id, made); });
  return FAILED(result) ? result : found;
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  if (lock) {
    ModuleLifetime::Lock();
  } else {
    ModuleLifetime::Unlock();
  }
  return S_OK;
}

}  // namespace windows
