#pragma once

#include <cstdint>
#include <string>

namespace goods {

class CommonDb;

/// Whether the shop deals in items of type B: the first letter of its futurevarchar is a B, small or capital. Such a shop finds
/// those items only, every other shop all but those.
bool IsTypeBShop(CommonDb& db, std::int32_t shopId);

/// The condition that a list of items gets for it.
std::string ListItemTypeFilter(CommonDb& db, std::int32_t shopId);

}  // namespace goods
