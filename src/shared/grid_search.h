#pragma once

#include <string_view>

#include "base/controls/flex_grid.h"

namespace goods {

/// Type-ahead: sorts the grid generically ascending on `column` unless it is so already, finds the first row whose cell begins
/// with the typed text (as numbers when the typed text is numeric, else without regard to case), makes it current over all
/// columns and scrolls it to the top. Row indexes are 16-bit: more than 32,767 rows raise error 6. False, and nothing moves, when
/// no row matches.
bool SearchInGrid(controls::FlexGrid& grid, long column, std::string_view typed);

}  // namespace goods
