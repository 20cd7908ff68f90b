#include "platform/windows/products/tq8v4461/goods_request.h"

#include <array>
#include <string_view>

#include "base/vb/text.h"
#include "platform/windows/com/com_error.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/incoming_call.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/products/tq8v4461/type_library.h"
#include "platform/windows/wide_text.h"

namespace windows {
namespace {

constexpr std::string_view kSource = "tq8v4461";

/// The members by their identifiers in the type library, which count from 1.
constexpr std::array<std::string_view, 7> kMembers = {"adocon",    "strMsgboxCaption", "intCompanyID", "intUserID",
                                                      "intShopID", "dtProcessDate",    "Show"};

DISPID IdOf(std::string_view name) {
  for (std::size_t i = 0; i < kMembers.size(); ++i) {
    if (vb::EqualNoCase(kMembers[i], name)) return static_cast<DISPID>(i) + 1;
  }
  return DISPID_UNKNOWN;
}

}  // namespace

GoodsRequest::GoodsRequest(std::shared_ptr<Component> component)
    : component_(std::move(component)), request_(std::make_shared<goods::clsGoodsRequest>(component_->Module())) {}

void* GoodsRequest::Find(REFIID id) {
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID__clsGoodsRequest) return static_cast<_clsGoodsRequest*>(this);
  if (id == IID_IProvideClassInfo) return static_cast<IProvideClassInfo*>(this);
  if (id == IID_ISupportErrorInfo) return static_cast<ISupportErrorInfo*>(this);
  return nullptr;
}

template <class Work>
HRESULT GoodsRequest::Do(Work&& work) {
  // The host may release the object while a call is under way.
  const ComPtr<_clsGoodsRequest> held(this);
  return Guard(kSource, IID__clsGoodsRequest, std::forward<Work>(work));
}

template <class T, class Read>
HRESULT GoodsRequest::Give(T* place, Read&& read) {
  if (!place) return E_POINTER;
  *place = T{};
  return Do([&] { *place = read(); });
}

HRESULT GoodsRequest::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT GoodsRequest::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  if (index != 0) return DISP_E_BADINDEX;
  return Give(info, [] { return TypeInfoOf(IID__clsGoodsRequest).Detach(); });
}

HRESULT GoodsRequest::GetClassInfo(ITypeInfo** info) {
  return Give(info, [] { return TypeInfoOf(CLSID_clsGoodsRequest).Detach(); });
}

HRESULT GoodsRequest::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (!names || !ids || count == 0) return E_INVALIDARG;
  for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;  // no member has parameters that could be named
  const HRESULT result = Do([&] { ids[0] = IdOf(Utf8(names[0])); });
  if (FAILED(result)) return result;
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT GoodsRequest::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* info, UINT*) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (id < 1 || id > static_cast<DISPID>(kMembers.size())) return DISP_E_MEMBERNOTFOUND;
  const ComPtr<_clsGoodsRequest> held(this);
  return InvokeMemberNamed(*request_, kMembers[static_cast<std::size_t>(id) - 1], flags, parameters, result, info);
}

HRESULT GoodsRequest::get_adocon(IDispatch** value) {
  return Give(value, [&] { return DispatchOf(request_->adocon()).Detach(); });
}

HRESULT GoodsRequest::put_adocon(IDispatch* value) {
  return Do([&] { request_->adocon(ObjectOf(value)); });
}

HRESULT GoodsRequest::putref_adocon(IDispatch* value) {
  return put_adocon(value);
}

HRESULT GoodsRequest::get_strMsgboxCaption(BSTR* value) {
  return Give(value, [&] { return Bstr(request_->strMsgboxCaption).Detach(); });
}

HRESULT GoodsRequest::put_strMsgboxCaption(BSTR value) {
  return Do([&] { request_->strMsgboxCaption = Utf8(std::wstring_view(value, SysStringLen(value))); });
}

HRESULT GoodsRequest::get_intCompanyID(LONG* value) {
  return Give(value, [&] { return LONG{request_->intCompanyID}; });
}

HRESULT GoodsRequest::put_intCompanyID(LONG value) {
  return Do([&] { request_->intCompanyID = value; });
}

HRESULT GoodsRequest::get_intUserID(LONG* value) {
  return Give(value, [&] { return LONG{request_->intUserID}; });
}

HRESULT GoodsRequest::put_intUserID(LONG value) {
  return Do([&] { request_->intUserID = value; });
}

HRESULT GoodsRequest::get_intShopID(LONG* value) {
  return Give(value, [&] { return LONG{request_->intShopID}; });
}

HRESULT GoodsRequest::put_intShopID(LONG value) {
  return Do([&] { request_->intShopID = value; });
}

HRESULT GoodsRequest::get_dtProcessDate(DATE* value) {
  return Give(value, [&] { return request_->dtProcessDate.days; });
}

HRESULT GoodsRequest::put_dtProcessDate(DATE value) {
  return Do([&] { request_->dtProcessDate = vb::Date{value}; });
}

HRESULT GoodsRequest::Show() {
  return Do([&] { request_->Show(); });
}

HRESULT GoodsRequest::InterfaceSupportsErrorInfo(REFIID id) {
  return id == IID__clsGoodsRequest ? S_OK : S_FALSE;
}

}  // namespace windows
