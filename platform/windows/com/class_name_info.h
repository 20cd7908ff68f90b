#pragma once

#include <string>

#include "platform/windows/com/com_object.h"

namespace windows {

/// Type information of a class, or of its interface, of which only the name is known; it lists no members.
class ClassNameInfo final : public ComObject<ClassNameInfo, ITypeInfo> {
 public:
  /// `kind` is TKIND_COCLASS or TKIND_DISPATCH.
  ClassNameInfo(std::string name, TYPEKIND kind) : name_(std::move(name)), kind_(kind) {}

  void* Find(REFIID id);

  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) override;
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) override;
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID member, BSTR* name, BSTR* text, DWORD* helpContext,
                                             BSTR* helpFile) override;

  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT, FUNCDESC**) override { return TYPE_E_ELEMENTNOTFOUND; }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) override { return TYPE_E_ELEMENTNOTFOUND; }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) override { return TYPE_E_ELEMENTNOTFOUND; }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT, HREFTYPE*) override { return TYPE_E_ELEMENTNOTFOUND; }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) override { return TYPE_E_ELEMENTNOTFOUND; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) override { return DISP_E_UNKNOWNNAME; }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) override { return E_NOTIMPL; }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC*) override {}
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) override {}

 private:
  std::string name_;
  TYPEKIND kind_;
};

}  // namespace windows
