#pragma once

#include "base/controls/list_view.h"

namespace goods {

/// Numbers the lines of a list 1, 2, 3 ... in their own text.
void RenumberLines(controls::ListView& lines);

}  // namespace goods
