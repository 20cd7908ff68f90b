#include "platform/windows/products/shophost/registry_memory.h"

#include "platform/windows/com/registry_key.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

const std::wstring kPath = L"Software\\ShopSuite\\Host";

}  // namespace

std::string RegistryMemory::Read(std::string_view name) {
  return Utf8(RegistryKey::ReadText(HKEY_CURRENT_USER, kPath, Wide(name)));
}

void RegistryMemory::Write(std::string_view name, std::string_view text) {
  // What cannot be remembered is asked again next time.
  RegistryKey key;
  if (RegistryKey::Create(HKEY_CURRENT_USER, kPath, key) == ERROR_SUCCESS) key.WriteText(Wide(name), Wide(text));
}

}  // namespace windows
