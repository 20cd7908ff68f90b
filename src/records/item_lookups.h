#pragma once

#include <cstdint>
#include <string>

#include "src/module/session.h"

namespace goods {

/// The item's unit code; "" when item or unit is absent. Errors are reported, not raised.
std::string GetItemUnitCode(basGoodsRequest& session, std::int32_t itemId);

/// The unit codes of many items, as GetItemUnitCode gives them, but only the first error is reported.
class UnitCodes {
 public:
  /// `session` outlives this object.
  explicit UnitCodes(basGoodsRequest& session) : session_(session) {}
  std::string Of(std::int32_t itemId);

 private:
  basGoodsRequest& session_;
  bool reported_ = false;
};

/// The item's selling price in the shop's currency: the head-office price where it is fixed there, else the shop's; 0 when there
/// is none. Errors are reported, not raised.
double GetItemSellingPrice(basGoodsRequest& session, std::int32_t itemId, std::int16_t shopId);

}  // namespace goods
