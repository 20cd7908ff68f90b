// Many items at once: what was ticked in the fetch dialog.

#include <optional>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/counter/outcome.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/item_lookup.h"
#include "src/itementry/line_rules.h"
#include "src/records/item_lookups.h"

namespace goods {

void frmRequestDetail::TakeManyItems(const std::vector<PickedItem>& items) {
  std::optional<vb::RunTimeError> failure;
  std::vector<std::string> refused;
  double limit = 0;
  try {
    limit = ReadLineLimit(Session(), objCommonDB_);
  } catch (const vb::RunTimeError& error) {
    failure = error;
  }
  for (const PickedItem& item : items) {
    std::string reason;
    try {
      if (!failure) reason = TakeOneOfMany(item, limit);
    } catch (const vb::RunTimeError& error) {
      failure = error;  // the items from here on are refused for it
    }
    if (failure) reason = failure->Description();
    if (!reason.empty()) refused.push_back(item.itemCode + " " + item.itemDescription + ": " + std::string(vb::Trim(reason)));
  }
  if (const std::size_t added = items.size() - refused.size(); added > 0) {
    lngCurrentLine_ = lines_.Count();
    lines_.GoTo(lngCurrentLine_);
    EnableNavigation(lines_.Count() > 1, lines_.Count() > 1);
    lines_.MarkChanged();
    LineEntered.Fire();
    cboItem.Clear();
    ClearEntryFields();
    ShowStatus();
  }
  Tell(OutcomeToTell(items.size() - refused.size(), refused));
  if (failure) throw vb::RunTimeError(*failure);
}

std::string frmRequestDetail::TakeOneOfMany(const PickedItem& item, double limit) {
  const auto found = FindItemByCode(Session(), objCommonDB_, vb::Trim(item.itemCode));
  if (!found && SelectedList() != ItemListMode::StockOut && !MayItemCodesRepeat(objCommonDB_)) return std::string(kUnknownCode);
  // The code may be another item's barcode or shortcut: the row that the user ticked decides.
  const std::string partCode = found && found->itemId == item.itemId ? found->partCode : item.partCode;
  const std::string reorder = ReorderQuantity(item.itemId);
  const double quantity = QuantityTyped(reorder) > 0 ? QuantityTyped(reorder) : 1;
  if (const auto refusal = QuantityRefusal(Session(), vb::NumberText(quantity)); !refusal.empty()) return std::string(refusal);
  if (lines_.LineOf(item.itemId) > 0) return std::string(kAlreadyExists);
  if (limit >= 1 && lines_.Count() + 1 > limit) return std::string(kNoMoreItems);
  lines_.Append({item.itemCode, item.itemDescription, QuantityText(quantity), item.itemId, "",
                 GetItemUnitCode(Session(), item.itemId), std::string(vb::Trim(partCode))});
  return {};
}

}  // namespace goods
