#pragma once

#include <utility>

#include "base/late/object.h"
#include "platform/windows/com/com_object.h"
#include "platform/windows/com/own_object.h"

namespace windows {

/// A late-bound object as a COM object: its members by name for scripts and other components.
class LateDispatch final : public ComObject<LateDispatch, IDispatch, IProvideClassInfo, OwnObject> {
 public:
  explicit LateDispatch(late::ObjectPtr object);

  void* Find(REFIID id);

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                   EXCEPINFO* info, UINT* wrongArgument) override;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;

  const void* STDMETHODCALLTYPE Module() override { return ModuleMark(); }
  const late::ObjectPtr* STDMETHODCALLTYPE Object() override { return object_ ? &object_ : nullptr; }

  /// Gives the object back; calls find nobody from then on.
  late::ObjectPtr Disconnect() { return std::exchange(object_, nullptr); }

 private:
  ~LateDispatch() override;

  /// Type information that knows the class's name and nothing more; who asks for the type's name is answered.
  HRESULT GiveName(ITypeInfo** info, TYPEKIND kind);

  late::ObjectPtr object_;
};

/// The COM face of a late-bound object: null for Nothing, a COM object's own interface where it is one, else a LateDispatch, the
/// same one as long as it is in use.
ComPtr<IDispatch> DispatchOf(const late::ObjectPtr& object);

/// This module's late-bound object behind a COM object; null when the COM object is anybody else's.
late::ObjectPtr OwnObjectOf(IUnknown* unknown);

/// Takes the late-bound objects out of all wrappers made on this thread: whoever still holds one finds it disconnected. For the
/// end of what the objects live on.
void DisconnectLateObjects();

}  // namespace windows
