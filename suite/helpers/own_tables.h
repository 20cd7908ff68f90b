#pragma once

#include <string_view>

#include "base/ado/connection.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// A table of the stand-ins' own in the suite's database.
struct OwnTable {
  std::string_view name;
  std::string_view columns;  ///< as in a create table
};

enum class OwnTableState { Found, Made, Refused };

/// Makes the table where it is missing. Refused: the database user may not create tables, and the stand-in does without this one
/// as long as the program runs; errors.log gets one line about it. No message box: the table may be missed amid a save, which
/// must not wait for a person. Any other error is raised.
OwnTableState FindOrMake(const std::shared_ptr<Surroundings>& surroundings, ado::Connection& connection, const OwnTable& table);

}  // namespace suite
