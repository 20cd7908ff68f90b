#pragma once

#include <utility>

namespace controls {

/// Sets a flag for as long as it lives, then gives it the value that it had before. The flag must outlive it.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~ScopedFlag() { flag_ = before_; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace controls
