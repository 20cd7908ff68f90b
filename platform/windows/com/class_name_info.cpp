#include "platform/windows/com/class_name_info.h"

#include <memory>

#include "platform/windows/com/com_error.h"
#include "platform/windows/com/variant.h"

namespace windows {

void* ClassNameInfo::Find(REFIID id) {
  return id == IID_IUnknown || id == IID_ITypeInfo ? static_cast<ITypeInfo*>(this) : nullptr;
}

HRESULT ClassNameInfo::GetTypeAttr(TYPEATTR** attributes) {
  if (!attributes) return E_POINTER;
  return Guard("", IID_ITypeInfo, [&] {
    auto made = std::make_unique<TYPEATTR>();
    *made = {};
    made->typekind = kind_;
    made->memidConstructor = MEMBERID_NIL;
    made->memidDestructor = MEMBERID_NIL;
    *attributes = made.release();
  });
}

void ClassNameInfo::ReleaseTypeAttr(TYPEATTR* attributes) {
  const std::unique_ptr<TYPEATTR> owner(attributes);
}

HRESULT ClassNameInfo::GetDocumentation(MEMBERID member, BSTR* name, BSTR* text, DWORD* helpContext, BSTR* helpFile) {
  if (text) *text = nullptr;
  if (helpContext) *helpContext = 0;
  if (helpFile) *helpFile = nullptr;
  if (member != MEMBERID_NIL) return TYPE_E_ELEMENTNOTFOUND;
  if (!name) return S_OK;
  return Guard("", IID_ITypeInfo, [&] { *name = Bstr(name_).Detach(); });
}

}  // namespace windows
