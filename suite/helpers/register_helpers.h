#pragma once

#include <memory>

#include "base/late/object.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Registers the stand-ins of the suite's seven helper components under their ProgIDs.
void RegisterHelpers(late::ClassRegistry& registry, const std::shared_ptr<Surroundings>& surroundings);

}  // namespace suite
