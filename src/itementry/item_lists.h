#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "src/fetch/item_entry_port.h"
#include "src/module/session.h"

namespace goods {

class CommonDb;
class ItemFetch;

/// "QUERY1" to "QUERY4".
std::string_view FetchModeOf(ItemListMode list);
/// The list of a fetch mode; all items of the shop for any other text.
ItemListMode ListOfFetchMode(std::string_view fetchMode);

/// Shows the list in the suite's item lookup, by reference through the session's gRsFetchItems, and keeps the list's mode as the
/// session's fetch mode. A mode other than the last one makes the lookup read its rows again. True when the user chose a row: it
/// is the current row of gRsFetchItems. Errors are raised.
bool ShowItemList(basGoodsRequest& session, CommonDb& db, ItemFetch& fetch, ItemListMode list);

}  // namespace goods
