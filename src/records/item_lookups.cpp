#include "src/records/item_lookups.h"

#include "src/faces/common_db.h"
#include "src/module/error_routine.h"
#include "src/module/module_name.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string PriceFixedQuery(std::int32_t itemId) {
  return "SELECT PriceFixedAtHq FROM aItem WHERE ItemId = " + std::to_string(itemId);
}

std::string SellingPriceQuery(std::int32_t itemId, std::string_view shopClause) {
  return "SELECT SellingPrice  FROM vwItemRetailPacking irp,  losShopItemShipmentDetail sisd"
         " WHERE irp.ItemId = sisd.ItemId AND irp.PackingTypeId = sisd.PackingTypeId AND sisd.ItemId = " +
         std::to_string(itemId) + std::string(shopClause);
}

}  // namespace

std::string GetItemUnitCode(basGoodsRequest& session, std::int32_t itemId) {
  return UnitCodes(session).Of(itemId);
}

std::string UnitCodes::Of(std::int32_t itemId) {
  try {
    CommonDb db(session_.services.factory, session_.gAdoCon);
    db.strTableName("aItem i, aUnit u");
    return db.fnReturnField("u.UnitCode", "i.UnitsId = u.UnitId AND i.ItemId = " + std::to_string(itemId)).TextOrEmpty();
  } catch (const vb::RunTimeError& error) {
    if (!reported_) ReportError(session_, kModuleName, "GetItemUnitCode", error);
    reported_ = true;
    return {};
  }
}

double GetItemSellingPrice(basGoodsRequest& session, std::int32_t itemId, std::int16_t shopId) {
  double price = 0;
  Trapped(session, kModuleName, "GetItemSellingPrice", [&] {
    const bool fixedAtHeadOffice = FirstValue(session, PriceFixedQuery(itemId)).TrueOrFalse();
    const std::string shopClause =
        fixedAtHeadOffice ? " AND sisd.ShopId IS NULL" : " AND sisd.ShopId = " + std::to_string(shopId);
    const late::Value found = FirstValue(session, SellingPriceQuery(itemId, shopClause));
    if (!found.IsNull() && !found.IsEmpty()) price = found.ToDouble();
  });
  return price;
}

}  // namespace goods
