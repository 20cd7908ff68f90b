#pragma once

#include <string>
#include <vector>

#include "base/late/object.h"
#include "platform/windows/windows_gate.h"

namespace windows {

/// Creates COM classes by ProgID, as late-bound objects. Error 429 when the class is not registered or cannot be made.
class ComFactory : public late::Factory {
 public:
  late::ObjectPtr Create(std::string_view progId) override;

 private:
  struct Known {
    std::string progId;
    CLSID id;
  };

  const CLSID& Find(std::string_view progId);

  std::vector<Known> known_;
};

}  // namespace windows
