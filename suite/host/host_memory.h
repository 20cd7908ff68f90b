#pragma once

#include <string>
#include <string_view>

namespace suite {

/// What the host remembers for its user from one run to the next.
class HostMemory {
 public:
  virtual ~HostMemory() = default;
  /// Empty when nothing is remembered under that name.
  virtual std::string Read(std::string_view name) = 0;
  virtual void Write(std::string_view name, std::string_view text) = 0;
};

}  // namespace suite
