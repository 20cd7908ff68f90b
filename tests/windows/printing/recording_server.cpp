#include "tests/windows/printing/recording_server.h"

#include <algorithm>
#include <stdexcept>

#include "base/vb/text.h"
#include "platform/windows/com/class_factory.h"
#include "platform/windows/com/registry_key.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"

namespace {

using Kind = RecordedObject::Kind;
using windows::ComPtr;

// {5B0C7C52-6D0E-4E2B-9C55-3F1D2A7E9B64}
constexpr CLSID kServerClass{0x5b0c7c52, 0x6d0e, 0x4e2b, {0x9c, 0x55, 0x3f, 0x1d, 0x2a, 0x7e, 0x9b, 0x64}};
constexpr std::wstring_view kServerClassText = L"{5B0C7C52-6D0E-4E2B-9C55-3F1D2A7E9B64}";

// The machine's classes: Wine's look-up of ProgIDs does not know those of a single user.
const HKEY kRoot = HKEY_LOCAL_MACHINE;

enum class Use { Method, Read, Put };

struct Member {
  Kind kind;
  const char* name;
  Use use;
  UINT fewest;
  UINT most;
  int gives = -1;  ///< the kind of object it answers with
};

const Member kMembers[] = {
    {Kind::Application, "LogOnServer", Use::Method, 5, 5},
    {Kind::Application, "OpenReport", Use::Method, 1, 2, static_cast<int>(Kind::Report)},
    {Kind::Report, "ParameterFields", Use::Read, 0, 0, static_cast<int>(Kind::Fields)},
    {Kind::Report, "PrintWindowOptions", Use::Read, 0, 0, static_cast<int>(Kind::Options)},
    {Kind::Report, "Preview", Use::Method, 0, 7},
    {Kind::Fields, "Item", Use::Read, 1, 1, static_cast<int>(Kind::Field)},
    {Kind::Field, "SetCurrentValue", Use::Method, 1, 2},
    {Kind::Options, "HasPrintButton", Use::Put, 1, 1},
    {Kind::Options, "HasPrintSetupButton", Use::Put, 1, 1},
    {Kind::Options, "HasNavigationControls", Use::Put, 1, 1},
    {Kind::Options, "HasZoomControl", Use::Put, 1, 1},
};

const char* NameOf(int kind) {
  constexpr const char* names[] = {"Application", "Report", "Fields", "Field", "Options"};
  return names[kind];
}

std::string Written(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_BSTR:
      return "'" + windows::FromVariant(variant).ToText() + "'";
    case VT_I4:
    case VT_BOOL:
      return windows::FromVariant(variant).ToText();
    default:
      return windows::FromVariant(variant).TextOrEmpty() + " of type " + std::to_string(variant.vt);
  }
}

HWND ShowPreview(const VARIANT& title) {
  const HWND window = CreateWindowExW(0, L"STATIC", title.bstrVal, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 500, 400, nullptr,
                                      nullptr, GetModuleHandleW(nullptr), nullptr);
  SetActiveWindow(window);
  return window;
}

bool Fits(const Member& member, WORD flags, const DISPPARAMS& parameters) {
  if (member.use == Use::Put)
    return flags == DISPATCH_PROPERTYPUT && parameters.cNamedArgs == 1 && *parameters.rgdispidNamedArgs == DISPID_PROPERTYPUT;
  return (flags & (member.use == Use::Method ? DISPATCH_METHOD : DISPATCH_PROPERTYGET)) != 0 && parameters.cNamedArgs == 0;
}

}  // namespace

RecordedObject::RecordedObject(Recording& recording, Kind kind, std::string name)
    : recording_(recording), kind_(kind), name_(std::move(name)) {
  ++recording_.living;
}

RecordedObject::~RecordedObject() {
  --recording_.living;
}

HRESULT RecordedObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  const std::string wanted = windows::Utf8(names[0]);
  const auto* found = std::ranges::find_if(
      kMembers, [&](const Member& member) { return member.kind == kind_ && vb::EqualNoCase(member.name, wanted); });
  std::fill_n(ids, count, DISPID_UNKNOWN);
  if (found == std::end(kMembers) || count != 1) return DISP_E_UNKNOWNNAME;
  *ids = static_cast<DISPID>(found - kMembers) + 1;
  return S_OK;
}

HRESULT RecordedObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                               UINT*) {
  if (id < 1 || id > static_cast<DISPID>(std::size(kMembers))) return DISP_E_MEMBERNOTFOUND;
  const Member& member = kMembers[id - 1];
  if (member.kind != kind_ || !Fits(member, flags, *parameters)) return DISP_E_MEMBERNOTFOUND;
  if (parameters->cArgs < member.fewest || parameters->cArgs > member.most) return DISP_E_BADPARAMCOUNT;
  std::string arguments;
  for (UINT i = parameters->cArgs; i-- > 0;) arguments += (arguments.empty() ? "" : ", ") + Written(parameters->rgvarg[i]);
  const std::string call = name_ + "." + member.name;
  // Reading the way down to a field is told by the field's own name.
  if (member.use == Use::Put) recording_.calls.push_back(call + " = " + arguments);
  if (member.use == Use::Method) recording_.calls.push_back(call + "(" + arguments + ")");
  if (call == recording_.failing) {
    info->scode = recording_.failure;
    info->bstrDescription = windows::Bstr(std::string_view("The server says no")).Detach();
    return DISP_E_EXCEPTION;
  }
  if (call == "Report.Preview" && recording_.shows) recording_.preview = ShowPreview(parameters->rgvarg[parameters->cArgs - 1]);
  if (member.gives < 0 || !result) return S_OK;
  const bool indexed = member.use == Use::Read && parameters->cArgs == 1;
  const std::string name = std::string(NameOf(member.gives)) + (indexed ? "(" + arguments + ")" : "");
  result->vt = VT_DISPATCH;
  result->pdispVal = windows::MakeCom<RecordedObject>(recording_, static_cast<Kind>(member.gives), name).Detach();
  return S_OK;
}

ServerOnDuty::ServerOnDuty(std::string_view progId, Recording& recording) : key_(L"Software\\Classes\\" + windows::Wide(progId)) {
  // A real server of that name, should the machine have one, keeps its registration.
  if (windows::RegistryKey::Exists(kRoot, key_)) throw std::runtime_error("there is a server of that name already");
  const auto factory = windows::MakeCom<windows::ClassFactory>([&recording] {
    auto made = windows::MakeCom<RecordedObject>(recording, Kind::Application, "Application");
    return ComPtr<IUnknown>::Adopt(made.Detach());
  });
  const HRESULT result =
      CoRegisterClassObject(kServerClass, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registered_);
  windows::RegistryKey key;
  if (FAILED(result) || windows::RegistryKey::Create(kRoot, key_ + L"\\CLSID", key) != ERROR_SUCCESS ||
      key.WriteText(std::wstring(), std::wstring(kServerClassText)) != ERROR_SUCCESS) {
    throw std::runtime_error("the recording server cannot be registered");
  }
}

ServerOnDuty::~ServerOnDuty() {
  CoRevokeClassObject(registered_);
  windows::RegistryKey::DeleteTree(kRoot, key_);
}
