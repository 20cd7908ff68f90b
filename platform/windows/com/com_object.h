#pragma once

#include "platform/windows/com/com_ptr.h"
#include "platform/windows/com/module_lifetime.h"

namespace windows {

/// Reference count and interface list of a COM object. `Interfaces` are the interfaces that Derived implements; Derived says with
/// `void* Find(REFIID)` which pointer answers which identifier (null for none).
template <class Derived, class... Interfaces>
class ComObject : public Interfaces... {
 public:
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references_)); }
  ULONG STDMETHODCALLTYPE Release() override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) Destroy();
    return static_cast<ULONG>(left);
  }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
    if (!found) return E_POINTER;
    *found = static_cast<Derived*>(this)->Find(id);
    if (!*found) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

 protected:
  ComObject() = default;
  virtual ~ComObject() = default;

 private:
  void Destroy() {
    references_ = 1 << 30;  // what happens during destruction may take and give back references
    delete this;
  }

  LONG references_ = 1;
  ModuleLifetime::Reference keepsLoaded_;
};

/// The one reference of a new object.
template <class T, class... A>
ComPtr<T> MakeCom(A&&... arguments) {
  return ComPtr<T>::Adopt(new T(std::forward<A>(arguments)...));
}

}  // namespace windows
