// Many items at once: what was ticked in the fetch dialog.

#include <algorithm>
#include <optional>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/itementry/frm_request_detail.h"
#include "src/itementry/item_lookup.h"
#include "src/itementry/line_rules.h"
#include "src/records/item_lookups.h"

namespace goods {
namespace {

constexpr std::size_t kMaxTold = 20;

std::string LinesText(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " line" : " lines");
}

}  // namespace

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
  std::string text = LinesText(items.size() - refused.size()) + " added.";
  if (!refused.empty()) text += "\r\n" + LinesText(refused.size()) + " refused:\r\n";
  for (std::size_t line = 0; line < std::min(refused.size(), kMaxTold); ++line) text += "\r\n" + refused[line];
  if (refused.size() > kMaxTold) text += "\r\nand " + std::to_string(refused.size() - kMaxTold) + " more";
  Tell(text);
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
  for (int line = 1; line <= lines_.Count(); ++line) {
    if (lines_.ItemId(line) == item.itemId) return std::string(kAlreadyExists);
  }
  if (limit >= 1 && lines_.Count() + 1 > limit) return std::string(kNoMoreItems);
  lines_.Append({item.itemCode, item.itemDescription, QuantityText(quantity), item.itemId, "",
                 GetItemUnitCode(Session(), item.itemId), std::string(vb::Trim(partCode))});
  return {};
}

}  // namespace goods
