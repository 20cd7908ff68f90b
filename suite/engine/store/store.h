#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "suite/engine/functions/server_functions.h"
#include "suite/engine/translation/catalog.h"

struct sqlite3;

namespace suite {

class Session;

/// What the connections to one database share: its location, its clock, its catalog.
struct Store {
  std::string location;  ///< for sqlite3_open_v2
  bool memory = false;
  std::function<vb::Date()> clock;
  Catalog catalog;
  /// The version of the file's definitions that the catalog was read at; -1: read it again.
  std::int32_t catalogOf = -1;
  /// The first session: reads the catalog, runs scripts, and keeps a memory database alive.
  std::shared_ptr<Session> keeper;
};

}  // namespace suite
