#include "platform/windows/com/registry_key.h"

namespace windows {

LSTATUS RegistryKey::Create(HKEY root, const std::wstring& path, RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS result = RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &opened, nullptr);
  if (result == ERROR_SUCCESS) key = RegistryKey(opened);
  return result;
}

std::wstring RegistryKey::ReadText(HKEY root, const std::wstring& path, const std::wstring& name) {
  DWORD bytes = 0;
  const wchar_t* value = name.empty() ? nullptr : name.c_str();
  if (RegGetValueW(root, path.c_str(), value, RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS) return {};
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegGetValueW(root, path.c_str(), value, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS) return {};
  text.resize(bytes / sizeof(wchar_t));
  while (!text.empty() && text.back() == L'\0') text.pop_back();
  return text;
}

bool RegistryKey::Exists(HKEY root, const std::wstring& path) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  const RegistryKey key(opened);
  return true;
}

bool RegistryKey::IsRefused(HKEY root, const std::wstring& path) {
  HKEY opened = nullptr;
  const LSTATUS result = RegOpenKeyExW(root, path.c_str(), 0, KEY_WRITE, &opened);
  const RegistryKey key(opened);
  return result == ERROR_ACCESS_DENIED;
}

LSTATUS RegistryKey::DeleteTree(HKEY root, const std::wstring& path) {
  const LSTATUS result = RegDeleteTreeW(root, path.c_str());
  return result == ERROR_FILE_NOT_FOUND || result == ERROR_PATH_NOT_FOUND ? ERROR_SUCCESS : result;
}

LSTATUS RegistryKey::WriteText(const std::wstring& name, const std::wstring& text) const {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(key_, name.empty() ? nullptr : name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                        bytes);
}

}  // namespace windows
