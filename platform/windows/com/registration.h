#pragma once

#include <string>
#include <vector>

#include "platform/windows/windows_gate.h"

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

enum class RegistrationScope { Machine, User };

/// Registers for the machine, or for the user where the machine's registry is refused. Nothing is left behind by a failure.
HRESULT RegisterServer(const ServerRegistration& server);
HRESULT RegisterServer(const ServerRegistration& server, RegistrationScope scope);

/// Takes everything out again, for the machine and for the user. What is not there counts as taken out; a ProgID that meanwhile
/// belongs to another class is left alone.
HRESULT UnregisterServer(const ServerRegistration& server);
HRESULT UnregisterServer(const ServerRegistration& server, RegistrationScope scope);

/// The full path of the DLL or program that this code is part of, and its handle.
std::wstring ModulePath();
HINSTANCE ModuleHandle();

std::wstring GuidText(const GUID& id);

}  // namespace windows
