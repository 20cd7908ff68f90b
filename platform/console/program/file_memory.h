#pragma once

#include <filesystem>
#include <map>

#include "suite/host/host_memory.h"

namespace console {

/// What the host remembers, as lines "name=text" of a file in the user's state folder. Forgets where the folder cannot be
/// written: nobody's work depends on it.
class FileMemory : public suite::HostMemory {
 public:
  explicit FileMemory(std::filesystem::path folder);
  std::string Read(std::string_view name) override;
  void Write(std::string_view name, std::string_view text) override;

 private:
  std::filesystem::path folder_;
  std::map<std::string, std::string, std::less<>> kept_;
};

}  // namespace console
