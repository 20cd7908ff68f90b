#include "platform/windows/com/registry_key.h"

namespace windows {

namespace {

REGSAM FlagOf(RegistryView view) {
  constexpr REGSAM kOther = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  return view == RegistryView::Own ? 0 : kOther;
}

LSTATUS Open(HKEY root, const std::wstring& path, REGSAM access, RegistryView view, RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS result = RegOpenKeyExW(root, path.c_str(), 0, access | FlagOf(view), &opened);
  if (result == ERROR_SUCCESS) key = RegistryKey(opened);
  return result;
}

}  // namespace

LSTATUS RegistryKey::Create(HKEY root, const std::wstring& path, RegistryKey& key, RegistryView view) {
  HKEY opened = nullptr;
  const LSTATUS result =
      RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE | FlagOf(view), nullptr, &opened, nullptr);
  if (result == ERROR_SUCCESS) key = RegistryKey(opened);
  return result;
}

std::wstring RegistryKey::ReadText(HKEY root, const std::wstring& path, const std::wstring& name, RegistryView view) {
  RegistryKey key;
  DWORD bytes = 0;
  const wchar_t* value = name.empty() ? nullptr : name.c_str();
  if (Open(root, path, KEY_READ, view, key) != ERROR_SUCCESS) return {};
  if (RegGetValueW(key.Get(), nullptr, value, RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS) return {};
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegGetValueW(key.Get(), nullptr, value, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS) return {};
  text.resize(bytes / sizeof(wchar_t));
  while (!text.empty() && text.back() == L'\0') text.pop_back();
  return text;
}

bool RegistryKey::Exists(HKEY root, const std::wstring& path, RegistryView view) {
  RegistryKey key;
  return Open(root, path, KEY_READ, view, key) == ERROR_SUCCESS;
}

bool RegistryKey::IsRefused(HKEY root, const std::wstring& path) {
  HKEY opened = nullptr;
  const LSTATUS result = RegOpenKeyExW(root, path.c_str(), 0, KEY_WRITE, &opened);
  const RegistryKey key(opened);
  return result == ERROR_ACCESS_DENIED;
}

LSTATUS RegistryKey::DeleteTree(HKEY root, const std::wstring& path, RegistryView view) {
  if (!Exists(root, path, view)) return ERROR_SUCCESS;
  const std::size_t split = path.rfind(L'\\');
  const bool nested = split != std::wstring::npos;
  // The key's name below its parent: only opening knows of the two halves.
  RegistryKey parent;
  constexpr REGSAM kDeleting = DELETE | KEY_ENUMERATE_SUB_KEYS | KEY_QUERY_VALUE | KEY_SET_VALUE;
  const LSTATUS opened = Open(root, nested ? path.substr(0, split) : std::wstring(), kDeleting, view, parent);
  return opened != ERROR_SUCCESS ? opened : RegDeleteTreeW(parent.Get(), path.c_str() + (nested ? split + 1 : 0));
}

LSTATUS RegistryKey::WriteText(const std::wstring& name, const std::wstring& text) const {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key_, name.empty() ? nullptr : name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                        bytes);
}

}  // namespace windows
