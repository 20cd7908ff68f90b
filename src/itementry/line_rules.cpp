#include "src/itementry/line_rules.h"

#include <cmath>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"

namespace goods {
namespace {

/// The first quantity that the column of a request line, decimal(18,3), does not hold.
constexpr double kQuantityBeyondColumn = 1e15;

}  // namespace

double ReadLineLimit(basGoodsRequest& session, CommonDb& db) {
  db.strTableName("ashops");
  session.lineLimit =
      vb::Val(db.fnReturnField("MaxRequestItemsToHQ", " shopid=" + std::to_string(session.gIntShopID)).TextOrEmpty());
  return session.lineLimit;
}

double QuantityTyped(std::string_view text) {
  // Lines may have come with thousands separated; a quantity never ends at a comma.
  return vb::Val(vb::Replace(text, ",", ""));
}

bool IsTooLarge(double quantity) {
  return std::abs(quantity) >= kQuantityBeyondColumn;
}

std::string_view QuantityRefusal(const basGoodsRequest& session, std::string_view text) {
  const double quantity = QuantityTyped(text);
  if (quantity == 0) return "Enter quantity";
  if (session.gBlnIntegerQuantity && vb::InStr(text, ".") > 0) return "Only Integer Quantity is allowed";
  if (IsTooLarge(quantity)) return kQuantityTooLarge;
  return "";
}

}  // namespace goods
