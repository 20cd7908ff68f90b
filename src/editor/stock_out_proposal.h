#pragma once

#include "src/module/session.h"
#include "src/records/request_lines.h"

namespace goods {

class CommonDb;

/// Appends every active item of the shop whose stock is at or below its reorder level, with its reorder quantity, to the editor's
/// item list. An item without a stock row is not proposed. Database errors are raised; the lines appended so far stay.
void ProposeStockOutItems(basGoodsRequest& session, CommonDb& db, RequestLines lines);

}  // namespace goods
