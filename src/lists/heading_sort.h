#pragma once

#include "base/controls/buttons.h"
#include "base/controls/flex_grid.h"

namespace goods {

/// Sets the direction that a click on a column's heading asks for: ascending, or the other way round where the heading shows by
/// its arrow that the rows are in that column's order already. Whether it is ascending. Sorts nothing; as with a person's choice,
/// the buttons' handlers run when the direction changes.
bool SetHeadingDirection(const controls::FlexGrid& grid, long column, controls::OptionButton& ascend,
                         controls::OptionButton& descend);

}  // namespace goods
