#include "platform/windows/com/registration.h"

#include "platform/windows/com/com_ptr.h"
#include "platform/windows/com/registry_key.h"

namespace windows {
namespace {

const std::wstring kClasses = L"Software\\Classes\\";
constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

HKEY RootOf(RegistrationScope scope) {
  return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring ClassPath(const ServerClass& entry) {
  return kClasses + L"CLSID\\" + GuidText(entry.id);
}

struct Entry {
  std::wstring path;
  std::wstring name;
  std::wstring text;
};

LSTATUS Write(HKEY root, const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) {
    RegistryKey key;
    if (const LSTATUS result = RegistryKey::Create(root, entry.path, key); result != ERROR_SUCCESS) return result;
    if (const LSTATUS result = key.WriteText(entry.name, entry.text); result != ERROR_SUCCESS) return result;
  }
  return ERROR_SUCCESS;
}

std::vector<Entry> EntriesOf(const ServerRegistration& server, const ServerClass& entry, const std::wstring& typeLibrary) {
  const std::wstring path = ClassPath(entry);
  const std::wstring unnamed;  // the key's default value
  std::vector<Entry> entries = {
      {path, unnamed, entry.description},
      {path + L"\\InprocServer32", unnamed, server.modulePath},
      {path + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {path + L"\\ProgID", unnamed, entry.progId},
      {path + L"\\Programmable", unnamed, unnamed},
      {kClasses + entry.progId, unnamed, entry.description},
      {kClasses + entry.progId + L"\\CLSID", unnamed, GuidText(entry.id)},
  };
  if (!typeLibrary.empty()) {
    entries.push_back({path + L"\\TypeLib", unnamed, typeLibrary});
    entries.push_back({path + L"\\Version", unnamed, L"1.0"});
  }
  return entries;
}

/// The calls for one user's type libraries; the toolchain's headers lack them.
template <class Call>
Call PerUserCall(const char* name) {
  return reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"oleaut32"), name)));
}

/// The module's type library and what its identifiers are.
class TypeLibrary {
 public:
  explicit TypeLibrary(const std::wstring& modulePath) {
    result_ = LoadTypeLibEx(modulePath.c_str(), REGKIND_NONE, library_.Receive());
    if (SUCCEEDED(result_)) result_ = library_->GetLibAttr(&attributes_);
  }
  TypeLibrary(const TypeLibrary&) = delete;
  TypeLibrary& operator=(const TypeLibrary&) = delete;
  ~TypeLibrary() {
    if (attributes_) library_->ReleaseTLibAttr(attributes_);
  }

  HRESULT Result() const { return result_; }
  const GUID& Id() const { return attributes_->guid; }

  HRESULT Register(std::wstring path, RegistrationScope scope) const {
    if (scope == RegistrationScope::Machine) return RegisterTypeLib(library_.Get(), path.data(), nullptr);
    using Call = HRESULT(STDAPICALLTYPE*)(ITypeLib*, OLECHAR*, OLECHAR*);
    return PerUserCall<Call>("RegisterTypeLibForUser")(library_.Get(), path.data(), nullptr);
  }
  HRESULT Unregister(RegistrationScope scope) const {
    // A server of the other width may have registered its own half of the library.
    const std::wstring place =
        kClasses + L"TypeLib\\" + GuidText(Id()) + L"\\1.0\\0\\" + (kSystem == SYS_WIN64 ? L"win64" : L"win32");
    if (!RegistryKey::Exists(RootOf(scope), place)) return S_OK;
    using Call = decltype(&UnRegisterTypeLib);
    const Call unregister =
        scope == RegistrationScope::Machine ? &UnRegisterTypeLib : PerUserCall<Call>("UnRegisterTypeLibForUser");
    return unregister(Id(), attributes_->wMajorVerNum, attributes_->wMinorVerNum, attributes_->lcid, kSystem);
  }

 private:
  ComPtr<ITypeLib> library_;
  TLIBATTR* attributes_ = nullptr;
  HRESULT result_ = S_OK;
};

bool IsRefused(HRESULT result) {
  return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

}  // namespace

HRESULT RegisterServer(const ServerRegistration& server) {
  // Asked first: half of it written before the refusal could not be told from what stood there.
  if (RegistryKey::IsRefused(HKEY_LOCAL_MACHINE, L"Software\\Classes")) return RegisterServer(server, RegistrationScope::User);
  const HRESULT result = RegisterServer(server, RegistrationScope::Machine);
  return IsRefused(result) ? RegisterServer(server, RegistrationScope::User) : result;
}

HRESULT RegisterServer(const ServerRegistration& server, RegistrationScope scope) {
  std::wstring libraryId;
  HRESULT result = S_OK;
  if (server.hasTypeLibrary) {
    const TypeLibrary library(server.modulePath);
    result = library.Result();
    if (SUCCEEDED(result)) libraryId = GuidText(library.Id());
    if (SUCCEEDED(result)) result = library.Register(server.modulePath, scope);
  }
  for (const ServerClass& entry : server.classes) {
    if (SUCCEEDED(result))
      result = HRESULT_FROM_WIN32(static_cast<unsigned long>(Write(RootOf(scope), EntriesOf(server, entry, libraryId))));
  }
  if (FAILED(result)) UnregisterServer(server, scope);
  return result;
}

HRESULT UnregisterServer(const ServerRegistration& server) {
  const HRESULT machine = UnregisterServer(server, RegistrationScope::Machine);
  const HRESULT user = UnregisterServer(server, RegistrationScope::User);
  // A user who may not touch the machine's registry has registered for himself only.
  return FAILED(machine) && !IsRefused(machine) ? machine : user;
}

HRESULT UnregisterServer(const ServerRegistration& server, RegistrationScope scope) {
  const HKEY root = RootOf(scope);
  HRESULT outcome = S_OK;
  const auto note = [&](LSTATUS status) {
    if (status != ERROR_SUCCESS) outcome = HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
  };
  for (const ServerClass& entry : server.classes) {
    const std::wstring progId = kClasses + entry.progId;
    if (RegistryKey::ReadText(root, progId + L"\\CLSID") == GuidText(entry.id)) note(RegistryKey::DeleteTree(root, progId));
    note(RegistryKey::DeleteTree(root, ClassPath(entry)));
  }
  if (server.hasTypeLibrary) {
    const TypeLibrary library(server.modulePath);
    const HRESULT result = FAILED(library.Result()) ? library.Result() : library.Unregister(scope);
    if (FAILED(result)) outcome = result;
  }
  return outcome;
}

HINSTANCE ModuleHandle() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&kClasses), &module);
  return module;
}

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(ModuleHandle(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

std::wstring GuidText(const GUID& id) {
  constexpr int kLength = 39;
  std::wstring text(kLength, L'\0');
  StringFromGUID2(id, text.data(), kLength);
  text.resize(kLength - 1);
  return text;
}

}  // namespace windows
