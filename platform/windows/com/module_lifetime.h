#pragma once

#include <atomic>

namespace windows {

/// Counts what keeps this DLL loaded: living COM objects and server locks. One count a module (DLL or program).
class ModuleLifetime {
 public:
  static void Lock() { ++count_; }
  static void Unlock() { --count_; }
  static bool CanUnload() { return count_ == 0; }
  static long Count() { return count_; }

  /// Held by every COM object as long as it lives.
  class Reference {
   public:
    Reference() { Lock(); }
    Reference(const Reference&) = delete;
    Reference& operator=(const Reference&) = delete;
    ~Reference() { Unlock(); }
  };

 private:
  static inline std::atomic<long> count_ = 0;
};

}  // namespace windows
