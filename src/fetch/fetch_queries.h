#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace goods {

/// The shop's active items without a pending request whose summed stock is strictly below the reorder level. Strictly, although
/// the option's tool tip speaks of "less than or equal to".
std::string StockOutBaseQuery(std::string_view stockView, std::string_view itemTypeFilter, std::int32_t shopId);
/// The active items of the shop's item list.
std::string AllItemsBaseQuery(std::string_view itemTypeFilter, std::int32_t shopId);
/// The active, saleable items that are not in the shop's item list.
std::string NotInShopBaseQuery(std::int32_t shopId);

/// The column of a field of the filter list; the description for any other text. A column name is returned unchanged.
std::string FilterColumn(std::string_view field);

/// The base query with the rows whose column holds the text, which comes with its apostrophes doubled. An "order by" stays last.
/// `isCondition` says that the base is no query but the empty start of a condition.
std::string FilteredQuery(std::string_view base, std::string_view column, std::string_view text, bool isCondition);

/// The items in stock in godowns and out of stock in the shop that meet the condition, which starts with " and ".
std::string GodownItemsCall(std::int32_t shopId, std::string_view condition);

}  // namespace goods
