#pragma once

#include <string>
#include <vector>

#include "platform/windows/com/registration_place.h"
#include "platform/windows/com/registry_key.h"

namespace windows {

/// A class that a server registers.
struct ServerClass {
  CLSID id;
  std::wstring progId;
  std::wstring description;
};

/// What a server writes into the registry about itself.
struct ServerRegistration {
  std::wstring modulePath;
  std::vector<ServerClass> classes;
  bool hasTypeLibrary = false;  ///< as the module's own resource
};

/// A ProgID of the server belongs to another class: it was left alone, all else was done.
constexpr HRESULT kProgIdOfAnother = static_cast<HRESULT>(0x80040201);  // SELFREG_E_CLASS

/// Registers for the machine, or for the user where the machine's registry is refused; the user's own entries go when the machine
/// has them. A failure leaves nothing registered, kProgIdOfAnother excepted.
HRESULT RegisterServer(const ServerRegistration& server);
/// `view`: the half of the registry for the classes.
HRESULT RegisterServer(const ServerRegistration& server, RegistrationScope scope, RegistryView view = RegistryView::Own);

/// Takes everything out again, for the machine and for the user, but what the server of the other width shares with it. What is
/// not there counts as taken out. E_ACCESSDENIED when the machine has it and this user may not change that; kProgIdOfAnother when
/// a ProgID meanwhile belongs to another class.
HRESULT UnregisterServer(const ServerRegistration& server);
HRESULT UnregisterServer(const ServerRegistration& server, RegistrationScope scope, RegistryView view = RegistryView::Own);

/// The full path of the DLL or program that this code is part of, and its handle.
std::wstring ModulePath();
HINSTANCE ModuleHandle();

}  // namespace windows
