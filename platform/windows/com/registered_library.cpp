#include "platform/windows/com/registered_library.h"

#include "platform/windows/com/registry_key.h"

namespace windows {
namespace {

constexpr bool kWide = sizeof(void*) == 8;
constexpr SYSKIND kThisSystem = kWide ? SYS_WIN64 : SYS_WIN32;
constexpr SYSKIND kOtherSystem = kWide ? SYS_WIN32 : SYS_WIN64;

/// The calls for one user's type libraries; the toolchain's headers lack them.
template <class Call>
Call PerUserCall(const char* name) {
  return reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"oleaut32"), name)));
}

HRESULT ResultOf(LSTATUS status) {
  return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
}

}  // namespace

RegisteredLibrary::RegisteredLibrary(const std::wstring& modulePath) {
  result_ = LoadTypeLibEx(modulePath.c_str(), REGKIND_NONE, library_.Receive());
  if (SUCCEEDED(result_)) result_ = library_->GetLibAttr(&attributes_);
}

RegisteredLibrary::~RegisteredLibrary() {
  if (attributes_) library_->ReleaseTLibAttr(attributes_);
}

HRESULT RegisteredLibrary::Register(std::wstring path, RegistrationScope scope) const {
  if (scope == RegistrationScope::Machine) return RegisterTypeLib(library_.Get(), path.data(), nullptr);
  using Call = HRESULT(STDAPICALLTYPE*)(ITypeLib*, OLECHAR*, OLECHAR*);
  return PerUserCall<Call>("RegisterTypeLibForUser")(library_.Get(), path.data(), nullptr);
}

std::wstring RegisteredLibrary::PlaceOf(SYSKIND system) const {
  return kClasses + L"TypeLib\\" + GuidText(Id()) + L"\\1.0\\0\\" + (system == SYS_WIN64 ? L"win64" : L"win32");
}

HRESULT RegisteredLibrary::Unregister(RegistrationScope scope) const {
  const HKEY root = RegistryRoot(scope);
  if (!RegistryKey::Exists(root, PlaceOf(kThisSystem))) return S_OK;
  // The system's call takes the interfaces out for both widths. Older systems keep the libraries of the widths apart, too.
  const bool needed =
      RegistryKey::Exists(root, PlaceOf(kOtherSystem)) || RegistryKey::Exists(root, PlaceOf(kOtherSystem), RegistryView::Other);
  if (needed) return ResultOf(RegistryKey::DeleteTree(root, PlaceOf(kThisSystem)));
  using Call = decltype(&UnRegisterTypeLib);
  const Call unregister =
      scope == RegistrationScope::Machine ? &UnRegisterTypeLib : PerUserCall<Call>("UnRegisterTypeLibForUser");
  const HRESULT result = unregister(Id(), attributes_->wMajorVerNum, attributes_->wMinorVerNum, attributes_->lcid, kThisSystem);
  return FAILED(result) ? result : DeleteInterfaces(root);
}

HRESULT RegisteredLibrary::DeleteInterfaces(HKEY root) const {
  HRESULT outcome = S_OK;
  for (UINT i = 0; i < library_->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    TYPEATTR* attributes = nullptr;
    if (FAILED(library_->GetTypeInfo(i, info.Receive())) || FAILED(info->GetTypeAttr(&attributes))) continue;
    const std::wstring path = kClasses + L"Interface\\" + GuidText(attributes->guid);
    info->ReleaseTypeAttr(attributes);
    for (const RegistryView view : {RegistryView::Own, RegistryView::Other}) {
      if (RegistryKey::ReadText(root, path + L"\\TypeLib", {}, view) != GuidText(Id())) continue;
      if (const LSTATUS status = RegistryKey::DeleteTree(root, path, view); status != ERROR_SUCCESS) outcome = ResultOf(status);
    }
  }
  return outcome;
}

}  // namespace windows
