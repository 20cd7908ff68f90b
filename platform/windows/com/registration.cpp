#include "platform/windows/com/registration.h"

#include <algorithm>

#include "base/vb/text.h"
#include "platform/windows/com/registered_library.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

std::wstring ClassPath(const ServerClass& entry) {
  return kClasses + L"CLSID\\" + GuidText(entry.id);
}

HRESULT ResultOf(LSTATUS status) {
  return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
}

struct Entry {
  std::wstring path;
  std::wstring name;
  std::wstring text;
};

LSTATUS Write(HKEY root, RegistryView view, const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) {
    RegistryKey key;
    if (const LSTATUS result = RegistryKey::Create(root, entry.path, key, view); result != ERROR_SUCCESS) return result;
    if (const LSTATUS result = key.WriteText(entry.name, entry.text); result != ERROR_SUCCESS) return result;
  }
  return ERROR_SUCCESS;
}

const std::wstring kUnnamed;  // a key's default value

std::vector<Entry> ClassEntries(const ServerRegistration& server, const ServerClass& entry, const std::wstring& typeLibrary) {
  const std::wstring path = ClassPath(entry);
  std::vector<Entry> entries = {
      {path, kUnnamed, entry.description},
      {path + L"\\InprocServer32", kUnnamed, server.modulePath},
      {path + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {path + L"\\ProgID", kUnnamed, entry.progId},
      {path + L"\\Programmable", kUnnamed, kUnnamed},
  };
  if (!typeLibrary.empty()) {
    entries.push_back({path + L"\\TypeLib", kUnnamed, typeLibrary});
    entries.push_back({path + L"\\Version", kUnnamed, L"1.0"});
  }
  return entries;
}

std::vector<Entry> ProgIdEntries(const ServerClass& entry) {
  const std::wstring path = kClasses + entry.progId;
  return {{path, kUnnamed, entry.description}, {path + L"\\CLSID", kUnnamed, GuidText(entry.id)}};
}

/// Whether the ProgID leads to a class that is not the entry's.
bool IsOfAnother(HKEY root, const ServerClass& entry) {
  const std::wstring id = RegistryKey::ReadText(root, kClasses + entry.progId + L"\\CLSID");
  return !id.empty() && !vb::EqualNoCase(Utf8(id), Utf8(GuidText(entry.id)));
}

bool IsRefused(HRESULT result) {
  return result == E_ACCESSDENIED || result == TYPE_E_REGISTRYACCESS;
}

bool MachineIsRefused() {
  return RegistryKey::IsRefused(HKEY_LOCAL_MACHINE, L"Software\\Classes");
}

bool IsRegistered(const ServerRegistration& server, RegistrationScope scope) {
  return std::any_of(server.classes.begin(), server.classes.end(),
                     [&](const ServerClass& entry) { return RegistryKey::Exists(RegistryRoot(scope), ClassPath(entry)); });
}

LSTATUS UnregisterClass(const ServerClass& entry, HKEY root, RegistryView view) {
  const LSTATUS result = RegistryKey::DeleteTree(root, ClassPath(entry), view);
  // The ProgID is one for both widths.
  const bool needed = RegistryKey::Exists(root, ClassPath(entry), Opposite(view));
  if (result != ERROR_SUCCESS || needed || IsOfAnother(root, entry)) return result;
  return RegistryKey::DeleteTree(root, kClasses + entry.progId);
}

}  // namespace

HRESULT RegisterServer(const ServerRegistration& server) {
  // Checked before the first write: a half-written registration could not be distinguished from an earlier one.
  if (MachineIsRefused()) return RegisterServer(server, RegistrationScope::User);
  const HRESULT result = RegisterServer(server, RegistrationScope::Machine);
  if (IsRefused(result)) return RegisterServer(server, RegistrationScope::User);
  // What the user had for himself goes before the machine's and would hide it.
  if (SUCCEEDED(result) || result == kProgIdOfAnother) UnregisterServer(server, RegistrationScope::User);
  return result;
}

HRESULT RegisterServer(const ServerRegistration& server, RegistrationScope scope, RegistryView view) {
  const HKEY root = RegistryRoot(scope);
  std::wstring libraryId;
  HRESULT result = S_OK;
  if (server.hasTypeLibrary) {
    const RegisteredLibrary library(server.modulePath);
    result = library.Result();
    if (SUCCEEDED(result)) libraryId = GuidText(library.Id());
    if (SUCCEEDED(result)) result = library.Register(server.modulePath, scope);
  }
  bool isTaken = false;
  for (const ServerClass& entry : server.classes) {
    // A user's own ProgID would hide the machine's.
    const bool taken = IsOfAnother(root, entry) || (scope == RegistrationScope::User && IsOfAnother(HKEY_LOCAL_MACHINE, entry));
    isTaken = isTaken || taken;
    if (SUCCEEDED(result)) result = ResultOf(Write(root, view, ClassEntries(server, entry, libraryId)));
    if (SUCCEEDED(result) && !taken) result = ResultOf(Write(root, view, ProgIdEntries(entry)));
  }
  if (FAILED(result)) UnregisterServer(server, scope, view);
  return SUCCEEDED(result) && isTaken ? kProgIdOfAnother : result;
}

HRESULT UnregisterServer(const ServerRegistration& server) {
  // Asked first, like above: what cannot go whole stays whole.
  if (MachineIsRefused() && IsRegistered(server, RegistrationScope::Machine)) {
    UnregisterServer(server, RegistrationScope::User);
    return E_ACCESSDENIED;
  }
  const HRESULT machine = UnregisterServer(server, RegistrationScope::Machine);
  const HRESULT user = UnregisterServer(server, RegistrationScope::User);
  return FAILED(machine) ? machine : user;
}

HRESULT UnregisterServer(const ServerRegistration& server, RegistrationScope scope, RegistryView view) {
  const HKEY root = RegistryRoot(scope);
  HRESULT outcome = S_OK;
  for (const ServerClass& entry : server.classes) {
    const LSTATUS status = UnregisterClass(entry, root, view);
    if (SUCCEEDED(outcome) && IsOfAnother(root, entry)) outcome = kProgIdOfAnother;
    if (status != ERROR_SUCCESS) outcome = ResultOf(status);
  }
  if (server.hasTypeLibrary) {
    const RegisteredLibrary library(server.modulePath);
    const HRESULT result = FAILED(library.Result()) ? library.Result() : library.Unregister(scope);
    if (FAILED(result)) outcome = result;
  }
  return outcome;
}

HINSTANCE ModuleHandle() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&kUnnamed), &module);
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

}  // namespace windows
