#include "platform/windows/com/registration_place.h"

namespace windows {

HKEY RegistryRoot(RegistrationScope scope) {
  return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring GuidText(const GUID& id) {
  constexpr int kLength = 39;
  std::wstring text(kLength, L'\0');
  StringFromGUID2(id, text.data(), kLength);
  text.resize(kLength - 1);
  return text;
}

}  // namespace windows
