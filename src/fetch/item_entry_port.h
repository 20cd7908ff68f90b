#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace goods {

/// The item lists that a shop user may pick from; one option of the item entry form each.
enum class ItemListMode { StockOut, InGodownNotInShop, AllInShop, NotInShop };

/// A row that the user picked.
struct PickedItem {
  std::int32_t itemId = 0;
  std::string itemCode;
  std::string itemDescription;
  std::string partCode;
};

/// What the fetch dialog may touch of the item entry form that opened it.
class ItemEntryPort {
 public:
  virtual ~ItemEntryPort() = default;

  /// The list whose option is set.
  virtual ItemListMode SelectedList() const = 0;
  /// Looks the item's code up as if it had been typed. False when it names no item: then the user has been notified, except of an
  /// item of the stock-out list, which is taken as it is.
  virtual bool TakeItemCode(const PickedItem& item) = 0;
  /// Puts an item of the stock-out list into the form unchanged, without a look-up.
  virtual void TakeStockOutItem(const PickedItem& item) = 0;
  /// Adds a line for each of the items with its reorder quantity, and tells the user at the end how many there are and which were
  /// refused.
  virtual void TakeManyItems(const std::vector<PickedItem>& items) = 0;
  /// Shows the item's packing types. Errors are reported, not raised.
  virtual void FillPackTypeinList(std::int32_t itemId) = 0;
};

}  // namespace goods
