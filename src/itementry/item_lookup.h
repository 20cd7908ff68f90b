#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "src/fetch/item_entry_port.h"
#include "src/module/session.h"

namespace goods {

class CommonDb;

/// Finds the item that a scanned or typed code names: as a packing barcode, as the shop's shortcut number, as an item code; the
/// first that fits. Nothing when none does. A database error is raised.
std::optional<PickedItem> FindItemByCode(basGoodsRequest& session, CommonDb& db, std::string_view code);

/// Whether several items may share one item code: then an item code names no item.
bool MayItemCodesRepeat(CommonDb& db);

}  // namespace goods
