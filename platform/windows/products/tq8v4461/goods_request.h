#pragma once

#include <memory>

#include "platform/windows/com/com_object.h"
#include "platform/windows/products/tq8v4461/component.h"
#include "src/entry/cls_goods_request.h"

// clang-format off
#include "platform/windows/windows_gate.h"
#include <tq8v4461_interface.h>
// clang-format on

namespace windows {

/// The COM class around the component's public class: early-bound hosts come through the interface, late-bound ones through
/// IDispatch.
class GoodsRequest final : public ComObject<GoodsRequest, _clsGoodsRequest, IProvideClassInfo, ISupportErrorInfo> {
 public:
  explicit GoodsRequest(std::shared_ptr<Component> component);

  void* Find(REFIID id);

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* info, UINT* wrongArgument) override;

  HRESULT STDMETHODCALLTYPE get_adocon(IDispatch** value) override;
  HRESULT STDMETHODCALLTYPE put_adocon(IDispatch* value) override;
  HRESULT STDMETHODCALLTYPE putref_adocon(IDispatch* value) override;
  HRESULT STDMETHODCALLTYPE get_strMsgboxCaption(BSTR* value) override;
  HRESULT STDMETHODCALLTYPE put_strMsgboxCaption(BSTR value) override;
  HRESULT STDMETHODCALLTYPE get_intCompanyID(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_intCompanyID(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_intUserID(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_intUserID(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_intShopID(LONG* value) override;
  HRESULT STDMETHODCALLTYPE put_intShopID(LONG value) override;
  HRESULT STDMETHODCALLTYPE get_dtProcessDate(DATE* value) override;
  HRESULT STDMETHODCALLTYPE put_dtProcessDate(DATE value) override;
  HRESULT STDMETHODCALLTYPE Show() override;

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;

 private:
  template <class Work>
  HRESULT Do(Work&& work);
  template <class T, class Read>
  HRESULT Give(T* place, Read&& read);

  std::shared_ptr<Component> component_;  // outlives the class object below
  std::shared_ptr<goods::clsGoodsRequest> request_;
};

}  // namespace windows
