#pragma once

#include "src/module/session.h"
#include "src/records/request_lines.h"

namespace goods {

/// Raises the quantities of proposed lines to whole packs of each item's smallest active packing; items without one keep theirs.
/// One statement; database errors are raised, and no quantity is changed then.
void RaiseToWholePacks(basGoodsRequest& session, RequestLines lines);

}  // namespace goods
