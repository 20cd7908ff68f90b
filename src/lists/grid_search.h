#pragma once

#include <string_view>

#include "base/controls/flex_grid.h"

namespace goods {

/// Type-ahead: sorts the grid generically ascending on `column` unless it is so already, finds the first row whose cell begins
/// with the typed text (as numbers when the typed text is numeric, else without regard to case), makes it current over all
/// columns and scrolls it to the top. Looks at the first 32,767 rows of that order. False, and nothing moves, when none of them
/// matches.
bool SearchInGrid(controls::FlexGrid& grid, long column, std::string_view typed);

}  // namespace goods
