#include "src/counter/item_answers.h"

#include <cmath>
#include <numeric>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/counter/open_requests.h"
#include "src/records/query_rows.h"
#include "src/records/request_lines.h"

namespace goods {
namespace {

std::string InShopQuery(std::string_view stockView, std::int32_t shopId, std::int32_t itemId) {
  return "select sd.ItemReorderLevel,(select isnull(sum(s.stock),0) from " + std::string(stockView) +
         " s where s.shopid=sd.shopid and s.itemid=sd.itemid) from aShopItemDetail sd where sd.shopid=" + std::to_string(shopId) +
         " and sd.itemid=" + std::to_string(itemId);
}

double NumberOrZero(const late::Value& value) {
  return value.IsNull() ? 0 : value.ToDouble();
}

/// The packs as "1 carton": of the packings that the quantity fills without a rest the one that takes the fewest; empty where
/// none holds more than one unit.
std::string WholePacks(double quantity, const std::vector<PackCount>& packs) {
  double fewest = quantity;
  std::string text;
  for (const PackCount& pack : packs) {
    const double count = vb::Val(pack.count);
    if (count < 1 || count >= fewest || count != std::floor(count)) continue;
    fewest = count;
    text = vb::NumberText(count) + " " + pack.name;
  }
  return text;
}

}  // namespace

void ItemAnswers::Ask(std::int32_t itemId) {
  Forget();
  if (settings_.showRequested) {
    const std::int32_t ownId = session_.gStrEntryMode == "N" ? 0 : session_.gLngRequestID;
    const std::vector<OpenLine> lines = OpenLines(session_, ownId, itemId);
    requested_ = OpenLinesToTell(lines);
    onItsWay_ =
        std::accumulate(lines.begin(), lines.end(), 0.0, [](double sum, const OpenLine& line) { return sum + line.quantity; });
  }
  if (!settings_.showStock) return;
  const std::vector<late::Value> row = FirstRow(session_, InShopQuery(session_.gStrStockView, session_.gIntShopID, itemId));
  if (row.size() == 2) inShop_ = InShop{NumberOrZero(row[1]), NumberOrZero(row[0])};
}

void ItemAnswers::Forget() {
  onItsWay_.reset();
  requested_.clear();
  inShop_.reset();
}

std::string ItemAnswers::Requested() const {
  return requested_.empty() ? "" : "Already requested: " + requested_;
}

std::string ItemAnswers::Stock() const {
  if (!inShop_) return "";
  return "In the shop " + QuantityText(inShop_->stock) + ", reorder level " + QuantityText(inShop_->reorderLevel);
}

std::string ItemAnswers::Explain(double quantity, const std::string& available, const std::vector<PackCount>& packs) const {
  if (!inShop_ && !onItsWay_) return "";
  std::string text;
  const auto tell = [&](std::string_view what, const std::string& number) {
    text.append(text.empty() ? "" : ", ").append(what).append(number);
  };
  if (inShop_) {
    tell("shop ", vb::NumberText(inShop_->stock));
    tell("level ", vb::NumberText(inShop_->reorderLevel));
  }
  if (onItsWay_) tell("on its way ", vb::NumberText(*onItsWay_));
  if (!vb::Trim(available).empty()) tell("free in godowns ", available);
  text += ": " + vb::NumberText(quantity);
  if (const std::string whole = WholePacks(quantity, packs); !whole.empty()) text += " = " + whole;
  return text;
}

}  // namespace goods
