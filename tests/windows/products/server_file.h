#pragma once

#include "platform/windows/com/registry_key.h"

namespace counter {

/// A server DLL, loaded in order to register it.
class ServerFile {
 public:
  explicit ServerFile(const wchar_t* path) : module_(LoadLibraryW(path)) {}
  ServerFile(const ServerFile&) = delete;
  ServerFile& operator=(const ServerFile&) = delete;
  ~ServerFile() {
    if (module_) FreeLibrary(module_);
  }

  HRESULT Call(const char* entryPoint) const {
    using EntryPoint = HRESULT(STDAPICALLTYPE*)();
    const auto call = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(module_, entryPoint)));
    return call ? call() : E_NOINTERFACE;
  }

 private:
  HMODULE module_;
};

}  // namespace counter
