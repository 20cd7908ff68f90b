#pragma once

#include <string>

#include "platform/windows/com/com_ptr.h"
#include "platform/windows/com/registration_place.h"

namespace windows {

/// A module's type library, and its entries in the registry.
class RegisteredLibrary {
 public:
  /// Loads the library that is a resource of the module; Result() says whether it could.
  explicit RegisteredLibrary(const std::wstring& modulePath);
  RegisteredLibrary(const RegisteredLibrary&) = delete;
  RegisteredLibrary& operator=(const RegisteredLibrary&) = delete;
  ~RegisteredLibrary();

  HRESULT Result() const { return result_; }
  const GUID& Id() const { return attributes_->guid; }

  HRESULT Register(std::wstring path, RegistrationScope scope) const;
  /// What the other width's library needs stays as long as that one is registered.
  HRESULT Unregister(RegistrationScope scope) const;

 private:
  std::wstring PlaceOf(SYSKIND system) const;
  HRESULT DeleteInterfaces(HKEY root) const;

  ComPtr<ITypeLib> library_;
  TLIBATTR* attributes_ = nullptr;
  HRESULT result_ = S_OK;
};

}  // namespace windows
