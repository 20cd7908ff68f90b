#include "src/itementry/scans.h"

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/itementry/item_lookup.h"
#include "src/itementry/line_rules.h"
#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

/// In base units: a scan adds and takes off at least a thousandth.
constexpr double kNothing = 0.0005;

std::string CapacityQuery(std::string_view barcode, std::int32_t itemId) {
  return "select ac.quantity from aitempackingdetail pk,apackingtypecapacitydetail ac,aitem a where pk.packingbarcode='" +
         vb::DoubleApostrophes(barcode) + "' and pk.itemid=" + std::to_string(itemId) +
         " and pk.active=1 and a.itemid=pk.itemid and ac.unitsid=a.unitsid and ac.packingtypeid=pk.packingtypeid";
}

}  // namespace

void Scans::Start() {
  scans_.clear();
  limit_ = ReadLineLimit(session_, db_);
}

std::string Scans::Take(std::string_view code) {
  const auto item = FindItemByCode(session_, db_, code);
  if (!item) return std::string(kUnknownCode);
  const double amount = AmountOf(code, item->itemId);
  const int line = lines_.LineOf(item->itemId);
  const double total = (line > 0 ? lines_.Quantity(line) : 0) + amount;
  if (const std::string_view refusal = QuantityRefusal(session_, vb::NumberText(amount)); !refusal.empty())
    return std::string(refusal);
  if (IsTooLarge(total)) return std::string(kQuantityTooLarge);
  if (line > 0) {
    lines_.SetQuantity(line, total);
    lines_.GoTo(line);
  } else {
    if (limit_ >= 1 && lines_.Count() + 1 > limit_) return std::string(kNoMoreItems);
    lines_.Append({item->itemCode, item->itemDescription, QuantityText(total), item->itemId, "",
                   GetItemUnitCode(session_, item->itemId), std::string(vb::Trim(item->partCode))});
    lines_.GoTo(lines_.Count());
  }
  scans_.push_back({std::string(code), item->itemDescription, item->itemId, amount, total});
  return {};
}

bool Scans::TakeBackLast() {
  if (scans_.empty()) return false;
  const Scan scan = std::move(scans_.back());
  scans_.pop_back();
  const int line = lines_.LineOf(scan.itemId);
  if (line == 0) return true;  // it was removed meanwhile
  const double rest = lines_.Quantity(line) - scan.amount;
  if (rest >= kNothing) {
    lines_.SetQuantity(line, rest);
    lines_.GoTo(line);
  } else {
    lines_.Remove(line);
    lines_.Renumber();
  }
  return true;
}

// A packing without a capacity for the item's unit counts as one, as a code that is no packing's does.
double Scans::AmountOf(std::string_view code, std::int32_t itemId) {
  const late::Value capacity = FirstValue(session_, CapacityQuery(code, itemId));
  return capacity.IsNull() ? 1 : capacity.ToDouble();
}

}  // namespace goods
