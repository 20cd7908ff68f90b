#include "tests/windows/hosts/bad_helper.h"

#include <stdexcept>

#include "platform/windows/com/com_object.h"
#include "platform/windows/com/variant.h"
#include "platform/windows/wide_text.h"

namespace hosts {
namespace {

constexpr DISPID kSomeMember = 7;

class Helper final : public windows::ComObject<Helper, IDispatch> {
 public:
  explicit Helper(Mischief mischief) : mischief_(mischief) {}

  void* Find(REFIID id) { return id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) override {
    for (UINT i = 0; i < count; ++i) ids[i] = mischief_ == Mischief::Nameless ? DISPID_UNKNOWN : kSomeMember;
    return mischief_ == Mischief::Nameless ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO* info, UINT*) override {
    if (mischief_ == Mischief::Throwing) {
      if (!info) return DISP_E_EXCEPTION;
      info->scode = static_cast<HRESULT>(0x800A1234);
      info->bstrDescription = windows::Bstr(std::string_view("The helper says no")).Detach();
      return DISP_E_EXCEPTION;
    }
    if (result) Answer(*result);
    return S_OK;
  }

 private:
  void Answer(VARIANT& result) {
    if (mischief_ == Mischief::Nothing) {
      result.vt = VT_DISPATCH;
      result.pdispVal = nullptr;
    } else if (mischief_ == Mischief::Endless) {
      AddRef();
      result.vt = VT_DISPATCH;
      result.pdispVal = this;
    } else if (++calls_ % 3 == 0) {
      result.vt = VT_ERROR;
      result.scode = E_FAIL;
    } else if (calls_ % 3 == 1) {
      result.vt = VT_ARRAY | VT_VARIANT;
      result.parray = SafeArrayCreateVector(VT_VARIANT, 5, 2);
    } else {
      result.vt = VT_UNKNOWN;
      windows::ComPtr<Helper> other = windows::MakeCom<Helper>(mischief_);
      result.punkVal = static_cast<IUnknown*>(other.Detach());
    }
  }

  Mischief mischief_;
  int calls_ = 0;
};

class Factory final : public windows::ComObject<Factory, IClassFactory> {
 public:
  explicit Factory(Mischief mischief) : mischief_(mischief) {}

  void* Find(REFIID id) { return id == IID_IUnknown || id == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr; }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** made) override {
    *made = nullptr;
    if (mischief_ == Mischief::Missing) return CLASS_E_CLASSNOTAVAILABLE;
    return windows::MakeCom<Helper>(mischief_)->QueryInterface(id, made);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Mischief mischief_;
};

}  // namespace

BadHelper::BadHelper(const std::string& progId, Mischief mischief) {
  CLSID id{};
  if (FAILED(CLSIDFromProgID(windows::Wide(progId).c_str(), &id))) throw std::runtime_error("not registered: " + progId);
  const auto factory = windows::MakeCom<Factory>(mischief);
  if (FAILED(CoRegisterClassObject(id, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registered_))) {
    throw std::runtime_error("cannot stand in for " + progId);
  }
}

BadHelper::~BadHelper() {
  CoRevokeClassObject(registered_);
}

}  // namespace hosts
