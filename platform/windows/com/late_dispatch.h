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

  /// Returns the object; later calls fail with RPC_E_DISCONNECTED.
  late::ObjectPtr Disconnect() { return std::exchange(object_, nullptr); }

 private:
  ~LateDispatch() override;

  /// Type information that knows the class's name and nothing more; enough for a caller that asks for the type's name.
  HRESULT GiveName(ITypeInfo** info, TYPEKIND kind);

  late::ObjectPtr object_;
};

/// The COM face of a late-bound object: null for Nothing, a COM object's own interface where it is one, else a LateDispatch, the
/// same one as long as it is in use.
ComPtr<IDispatch> DispatchOf(const late::ObjectPtr& object);

/// This module's late-bound object that a COM object wraps; null when another module made the COM object.
late::ObjectPtr OwnObjectOf(IUnknown* unknown);

/// Detaches the late-bound objects from all wrappers made on this thread; a client that still holds a wrapper gets
/// RPC_E_DISCONNECTED. Called before what the objects depend on is destroyed.
void DisconnectLateObjects();

}  // namespace windows
