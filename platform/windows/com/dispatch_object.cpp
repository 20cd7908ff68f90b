#include "platform/windows/com/dispatch_object.h"

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
#include <unordered_map>

#include "base/vb/error.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/late_dispatch.h"
#include "platform/windows/com/outgoing_arguments.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

/// The living wrappers by the interface they wrap.
struct Wrappers {
  std::mutex lock;
  std::unordered_map<IDispatch*, std::weak_ptr<DispatchObject>> living;

  static Wrappers& Of() {
    static Wrappers wrappers;
    return wrappers;
  }
};

std::string DocumentedName(ITypeInfo& info) {
  BSTR name = nullptr;
  if (FAILED(info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) return {};
  return Bstr(name).Text();
}

[[noreturn]] void RaiseFailed(HRESULT result, const DispatchObject& object, std::string_view member) {
  std::string text = ErrorTextOf(result);
  const std::string named = member.empty() ? "(default)" : std::string(member);
  vb::Raise(ErrorNumberOf(result), text + ": '" + object.TypeName() + "." + named + "'", object.TypeName());
}

WORD FlagsOf(late::Access access) {
  switch (access) {
    case late::Access::Put:
      return DISPATCH_PROPERTYPUT;
    case late::Access::PutRef:
      return DISPATCH_PROPERTYPUTREF;
    // A script, too, asks for either when it uses the result: who reads a member need not know whether it is a method.
    default:
      return DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  }
}

}  // namespace

DispatchObject::~DispatchObject() {
  Wrappers& wrappers = Wrappers::Of();
  const std::scoped_lock hold(wrappers.lock);
  const auto found = wrappers.living.find(dispatch_.Get());
  // A new wrapper of the same interface may have taken the place already.
  if (found != wrappers.living.end() && found->second.expired()) wrappers.living.erase(found);
}

DISPID DispatchObject::Find(std::string_view member) const {
  if (member.empty()) return DISPID_VALUE;
  const auto known = std::ranges::find(known_, member, &Known::name);
  if (known != known_.end()) return known->id;
  std::wstring wide = Wide(member);
  OLECHAR* name = wide.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
  if (result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND) return DISPID_UNKNOWN;
  if (FAILED(result)) RaiseFailed(result, *this, member);
  known_.push_back({std::string(member), id});
  return id;
}

bool DispatchObject::Has(std::string_view member) const {
  return Find(member) != DISPID_UNKNOWN;
}

std::string DispatchObject::TypeName() const {
  ComPtr<ITypeInfo> info;
  if (const auto provider = dispatch_.As<IProvideClassInfo>(IID_IProvideClassInfo)) provider->GetClassInfo(info.Receive());
  if (!info && FAILED(dispatch_->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Receive()))) return "Object";
  std::string name = info ? DocumentedName(*info.Get()) : std::string();
  // A class's default interface is named after it with a leading underscore.
  if (name.starts_with('_')) name.erase(0, 1);
  return name.empty() ? "Object" : name;
}

late::Value DispatchObject::Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) {
  // The object stays alive through a call that lets go of it.
  const ComPtr<IDispatch> held = dispatch_;
  const DISPID id = Find(member);
  if (id == DISPID_UNKNOWN) RaiseFailed(DISP_E_UNKNOWNNAME, *this, member);
  OutgoingArguments outgoing(arguments);
  WORD flags = FlagsOf(access);
  const bool put = access == late::Access::Put || access == late::Access::PutRef;
  Variant result;
  EXCEPINFO info{};
  const auto call = [&] {
    return held->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, outgoing.Parameters(put), put ? nullptr : &result.Get(), &info,
                        nullptr);
  };
  HRESULT outcome = call();
  const bool object = put && !arguments.empty() && arguments.back().IsObject();
  if (object && (outcome == DISP_E_MEMBERNOTFOUND || outcome == DISP_E_TYPEMISMATCH)) {
    // Many classes have the object property in one of the two forms only.
    flags = access == late::Access::Put ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    outcome = call();
  }
  if (outcome == DISP_E_EXCEPTION) RaiseExcepInfo(info);
  if (FAILED(outcome)) RaiseFailed(outcome, *this, member);
  outgoing.WriteBack();
  return result.Value();
}

late::ObjectPtr ObjectOf(IUnknown* unknown) {
  if (!unknown) return nullptr;
  if (late::ObjectPtr own = OwnObjectOf(unknown)) return own;
  auto dispatch = ComPtr<IUnknown>(unknown).As<IDispatch>(IID_IDispatch);
  if (!dispatch) vb::Raise(430, "Class does not support Automation or does not support expected interface");
  Wrappers& wrappers = Wrappers::Of();
  const std::scoped_lock hold(wrappers.lock);
  std::weak_ptr<DispatchObject>& place = wrappers.living[dispatch.Get()];
  if (auto living = place.lock()) return living;
  auto made = std::make_shared<DispatchObject>(std::move(dispatch));
  place = made;
  return made;
}

}  // namespace windows
