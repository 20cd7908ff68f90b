#include "platform/windows/com/com_error.h"
#include "platform/windows/products/common/server.h"

namespace {

using windows::Guard;
using windows::ServedClass;

windows::ServerRegistration Registration() {
  const windows::Server& server = windows::ThisServer();
  windows::ServerRegistration registration{windows::ModulePath(), {}, server.hasTypeLibrary};
  for (const ServedClass& served : server.classes) registration.classes.push_back(served.entry);
  return registration;
}

}  // namespace

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID id, void** found) {
  if (!found) return E_POINTER;
  *found = nullptr;
  HRESULT outcome = CLASS_E_CLASSNOTAVAILABLE;
  const HRESULT result = Guard("", IID_IClassFactory, [&] {
    for (const ServedClass& served : windows::ThisServer().classes) {
      if (served.entry.id == classId) outcome = windows::MakeCom<windows::ClassFactory>(served.make)->QueryInterface(id, found);
    }
  });
  return FAILED(result) ? result : outcome;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return windows::ModuleLifetime::CanUnload() ? S_OK : S_FALSE;
}

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
  HRESULT outcome = S_OK;
  const HRESULT result = Guard("", IID_NULL, [&] { outcome = windows::RegisterServer(Registration()); });
  return FAILED(result) ? result : outcome;
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
  HRESULT outcome = S_OK;
  const HRESULT result = Guard("", IID_NULL, [&] { outcome = windows::UnregisterServer(Registration()); });
  return FAILED(result) ? result : outcome;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* reserved) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  // When the whole process ends there is nothing to clean up, and no other thread left.
  if (reason == DLL_PROCESS_DETACH && !reserved) windows::ServerUnloading();
  return TRUE;
}
