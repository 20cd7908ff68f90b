#include "platform/windows/com/late_dispatch.h"

#include <mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/vb/error.h"
#include "platform/windows/com/class_name_info.h"
#include "platform/windows/com/dispatch_object.h"
#include "platform/windows/com/incoming_call.h"
#include "platform/windows/com/variant.h"

namespace windows {
namespace {

struct Wrapped {
  LateDispatch* wrapper;
  DWORD thread;
};

/// The living wrappers by the object they wrap. An object and its wrapper belong to one apartment; only the list is shared.
struct Wrappers {
  std::mutex lock;
  std::unordered_map<const late::Object*, Wrapped> living;

  static Wrappers& Of() {
    static Wrappers wrappers;
    return wrappers;
  }
};

}  // namespace

const void* ModuleMark() {
  static const char mark = 0;
  return &mark;
}

LateDispatch::LateDispatch(late::ObjectPtr object) : object_(std::move(object)) {}

LateDispatch::~LateDispatch() {
  Wrappers& wrappers = Wrappers::Of();
  const std::scoped_lock hold(wrappers.lock);
  wrappers.living.erase(object_.get());
}

void* LateDispatch::Find(REFIID id) {
  if (id == IID_IUnknown || id == IID_IDispatch) return static_cast<IDispatch*>(this);
  if (id == IID_IProvideClassInfo) return static_cast<IProvideClassInfo*>(this);
  if (id == kOwnObjectId) return static_cast<OwnObject*>(this);
  return nullptr;
}

HRESULT LateDispatch::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT LateDispatch::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
  return index == 0 ? GiveName(info, TKIND_DISPATCH) : DISP_E_BADINDEX;
}

HRESULT LateDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!object_) return RPC_E_DISCONNECTED;
  return FindMembers(*object_, names, count, ids);
}

HRESULT LateDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                             UINT*) {
  if (!object_) return RPC_E_DISCONNECTED;
  const late::ObjectPtr held = object_;
  return InvokeMember(held, id, flags, parameters, result, info);
}

HRESULT LateDispatch::GetClassInfo(ITypeInfo** info) {
  return GiveName(info, TKIND_COCLASS);
}

HRESULT LateDispatch::GiveName(ITypeInfo** info, TYPEKIND kind) {
  if (!info) return E_POINTER;
  *info = nullptr;
  if (!object_) return RPC_E_DISCONNECTED;
  return Guard("", IID_IProvideClassInfo, [&] { *info = MakeCom<ClassNameInfo>(object_->TypeName(), kind).Detach(); });
}

ComPtr<IDispatch> DispatchOf(const late::ObjectPtr& object) {
  if (!object) return {};
  if (const auto* foreign = dynamic_cast<const DispatchObject*>(object.get())) return foreign->Dispatch();
  Wrappers& wrappers = Wrappers::Of();
  const std::scoped_lock hold(wrappers.lock);
  const auto found = wrappers.living.find(object.get());
  if (found != wrappers.living.end()) return ComPtr<IDispatch>(found->second.wrapper);
  auto made = MakeCom<LateDispatch>(object);
  wrappers.living.emplace(object.get(), Wrapped{made.Get(), GetCurrentThreadId()});
  return ComPtr<IDispatch>::Adopt(made.Detach());
}

late::ObjectPtr OwnObjectOf(IUnknown* unknown) {
  const auto own = ComPtr<IUnknown>(unknown).As<OwnObject>(kOwnObjectId);
  if (!own || own->Module() != ModuleMark()) return nullptr;
  const late::ObjectPtr* object = own->Object();
  if (!object) vb::Raise(vb::kObjectNotSet);
  return *object;
}

void DisconnectLateObjects() {
  std::vector<late::ObjectPtr> taken;  // released outside of the lock: destructors may reach other wrappers
  {
    Wrappers& wrappers = Wrappers::Of();
    const std::scoped_lock hold(wrappers.lock);
    const DWORD thread = GetCurrentThreadId();
    std::erase_if(wrappers.living, [&](const auto& entry) {
      if (entry.second.thread != thread) return false;
      taken.push_back(entry.second.wrapper->Disconnect());
      return true;
    });
  }
}

}  // namespace windows
