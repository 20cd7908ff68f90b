#pragma once

#include <memory>
#include <set>
#include <string>

#include "base/controls/desktop.h"
#include "base/late/object.h"
#include "base/workstation/workstation.h"

namespace suite {

/// What the stand-ins share: the desktop they show their windows on, the machine, what makes data objects, and the connection
/// last given to one of them (grid settings are asked for without one).
struct Surroundings {
  controls::Desktop& desktop;
  workstation::Workstation& workstation;
  late::Factory& factory;  ///< makes recordsets
  std::weak_ptr<late::Object> lastConnection;
  std::set<std::string> refusedTables = {};  ///< own tables that the database user may not create
};

}  // namespace suite
