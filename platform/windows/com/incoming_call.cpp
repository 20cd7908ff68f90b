#include "platform/windows/com/incoming_call.h"

#include <string>

#include "base/vb/text.h"
#include "platform/windows/com/incoming_arguments.h"
#include "platform/windows/com/member_names.h"
#include "platform/windows/com/value_enumerator.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr std::string_view kNewEnum = "_NewEnum";

bool IsCollection(const late::Object& object) {
  return object.Has("Count") && object.Has("Item");
}

late::Access AccessOf(WORD flags, std::span<const late::Value> arguments) {
  const bool put = flags & DISPATCH_PROPERTYPUT;
  const bool putRef = flags & DISPATCH_PROPERTYPUTREF;
  if (put && putRef) return !arguments.empty() && arguments.back().IsObject() ? late::Access::PutRef : late::Access::Put;
  if (put) return late::Access::Put;
  if (putRef) return late::Access::PutRef;
  return flags & DISPATCH_METHOD ? late::Access::Call : late::Access::Get;
}

/// The dispatch code for a member that was called in a way it is not made for.
HRESULT CallFailure(const late::MemberError& error) {
  switch (error.Number()) {
    case vb::kWrongArgumentCount:
      return DISP_E_BADPARAMCOUNT;
    case vb::kArgumentNotOptional:
      return DISP_E_PARAMNOTOPTIONAL;
    default:
      return DISP_E_MEMBERNOTFOUND;
  }
}

/// The answer to a call that raised the exception being handled.
HRESULT Failure(const late::Object& object, EXCEPINFO* info) {
  const ComError error = CurrentError(object.TypeName());
  if (!info) return error.result;
  FillExcepInfo(*info, error);
  return DISP_E_EXCEPTION;
}

void Enumerate(const late::ObjectPtr& collection, VARIANT* result) {
  if (!IsCollection(*collection)) vb::Raise(vb::kMemberNotFound);
  if (!result) return;
  VariantInit(result);
  result->punkVal = MakeCom<ValueEnumerator>(collection).Detach();
  result->vt = VT_UNKNOWN;
}

/// Only the value of a property put may come by name.
bool NamesAreSupported(const DISPPARAMS& parameters, bool put) {
  if (parameters.cNamedArgs == 0) return true;
  return put && parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

void Call(late::Object& object, std::string_view member, WORD flags, const DISPPARAMS& parameters, VARIANT* result) {
  const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
  IncomingArguments arguments(parameters, put);
  const late::Value value = object.Invoke(member, AccessOf(flags, arguments.All()), arguments.All());
  arguments.WriteBack();
  if (result && !put) ToVariant(value, *result);
}

}  // namespace

HRESULT FindMembers(const late::Object& object, OLECHAR** names, UINT count, DISPID* ids) noexcept {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  // Names after the first are those of parameters; late-bound members have none.
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  try {
    const std::string name = Utf8(names[0]);
    if (vb::EqualNoCase(name, kNewEnum) && IsCollection(object)) {
      ids[0] = DISPID_NEWENUM;
    } else if (object.Has(name)) {
      ids[0] = MemberIdOf(name);
    }
  } catch (...) {
    return CurrentError("").result;
  }
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT InvokeMember(const late::ObjectPtr& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                     EXCEPINFO* info) noexcept {
  if (id == DISPID_VALUE) return InvokeMemberNamed(*object, "", flags, parameters, result, info);
  if (id == DISPID_NEWENUM) return Guard("", IID_IDispatch, [&] { Enumerate(object, result); });
  const std::string* member = MemberNameOf(id);
  return member ? InvokeMemberNamed(*object, *member, flags, parameters, result, info) : DISP_E_MEMBERNOTFOUND;
}

HRESULT InvokeMemberNamed(late::Object& object, std::string_view member, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* info) noexcept {
  if (result) VariantInit(result);
  if (!parameters) return E_INVALIDARG;
  const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
  if (!NamesAreSupported(*parameters, put)) return DISP_E_NONAMEDARGS;
  try {
    Call(object, member, flags, *parameters, result);
    return S_OK;
  } catch (const late::MemberError& error) {
    // Only when it is this very call; one that failed deeper down is an error of the member.
    if (error.IsAbout(object, member)) return CallFailure(error);
    return Failure(object, info);
  } catch (...) {
    return Failure(object, info);
  }
}

}  // namespace windows
