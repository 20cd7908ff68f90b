#pragma once

#include <utility>

#include "platform/windows/windows_gate.h"

namespace windows {

/// Owns one reference to a COM interface.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  /// Adds a reference of its own.
  explicit ComPtr(T* pointer) : pointer_(pointer) {
    if (pointer_) pointer_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.pointer_) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ~ComPtr() { Reset(); }
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }

  /// Takes over a reference that the caller owns.
  static ComPtr Adopt(T* pointer) {
    ComPtr owner;
    owner.pointer_ = pointer;
    return owner;
  }

  T* Get() const { return pointer_; }
  T* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  /// Gives the reference to the caller.
  T* Detach() { return std::exchange(pointer_, nullptr); }
  /// For calls that hand out a reference.
  T** Receive() {
    Reset();
    return &pointer_;
  }
  void Reset() {
    if (T* pointer = std::exchange(pointer_, nullptr)) pointer->Release();
  }

  /// Another interface of the same object; empty when it has none.
  template <class Other>
  ComPtr<Other> As(REFIID id) const {
    void* found = nullptr;
    if (!pointer_ || FAILED(pointer_->QueryInterface(id, &found))) return {};
    return ComPtr<Other>::Adopt(static_cast<Other*>(found));
  }

 private:
  T* pointer_ = nullptr;
};

}  // namespace windows
