#pragma once

#include <string>

#include "base/controls/flex_grid.h"

namespace goods {

/// What the forms below the register may touch of it: its grid, and the query that last filled it.
struct RegisterView {
  controls::FlexGrid& flexMaster;
  std::string gridQuery;
};

/// Grid columns of the register.
enum RegisterColumn : long {
  kRegisterId = 0,
  kRegisterNo = 1,
  kRegisterDate = 2,
  kRegisterRemarks = 3,
  kRegisterCancelled = 4,
  kRegisterFinished = 5,
};

}  // namespace goods
