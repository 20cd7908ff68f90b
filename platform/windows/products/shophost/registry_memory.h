#pragma once

#include "suite/host/host_memory.h"

namespace windows {

/// Remembers in the user's registry.
class RegistryMemory : public suite::HostMemory {
 public:
  std::string Read(std::string_view name) override;
  void Write(std::string_view name, std::string_view text) override;
};

}  // namespace windows
