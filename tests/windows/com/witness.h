#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/windows/com/com_object.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"

/// A COM object of somebody else's: answers every member name, writes down how it was called and answers as it is told.
class Witness final : public windows::ComObject<Witness, IDispatch> {
 public:
  struct Call {
    DISPID id;
    WORD flags;
    std::vector<VARTYPE> types;  ///< in the order written
    std::vector<DISPID> named;
  };
  using Answer = std::function<HRESULT(DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* info)>;

  void* Find(REFIID id) { return id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    asked.push_back(windows::Utf8(names[0]));
    if (asked.back() == "Nowhere") return *ids = DISPID_UNKNOWN, DISP_E_UNKNOWNNAME;
    return *ids = 100 + static_cast<DISPID>(asked.size()), S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                                   UINT*) override {
    Call call{id, flags, {}, {}};
    for (UINT i = parameters->cArgs; i-- > 0;) call.types.push_back(parameters->rgvarg[i].vt);
    for (UINT i = 0; i < parameters->cNamedArgs; ++i) call.named.push_back(parameters->rgdispidNamedArgs[i]);
    calls.push_back(call);
    return answer ? answer(*parameters, result, info) : S_OK;
  }

  std::vector<std::string> asked;
  std::vector<Call> calls;
  Answer answer;
};
