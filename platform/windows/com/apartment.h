#pragma once

#include <map>
#include <memory>
#include <mutex>

#include "platform/windows/windows_gate.h"

namespace windows {

/// One T for each thread that uses it, made on first use, shared by the thread's objects and gone with the last of them: an
/// apartment's module-wide state, which holds nothing once no object is left.
template <class T>
class PerApartment {
 public:
  std::shared_ptr<T> Get() {
    const std::scoped_lock hold(lock_);
    std::weak_ptr<T>& place = living_[GetCurrentThreadId()];
    if (auto living = place.lock()) return living;
    auto made = std::make_shared<T>();
    place = made;
    return made;
  }

 private:
  std::mutex lock_;
  std::map<DWORD, std::weak_ptr<T>> living_;
};

}  // namespace windows
