#pragma once

#include <functional>

#include "platform/windows/com/com_object.h"

namespace windows {

/// Makes the objects of one class.
class ClassFactory final : public ComObject<ClassFactory, IClassFactory> {
 public:
  using Maker = std::function<ComPtr<IUnknown>()>;
  explicit ClassFactory(Maker maker) : maker_(std::move(maker)) {}

  void* Find(REFIID id);

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** made) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  Maker maker_;
};

}  // namespace windows
