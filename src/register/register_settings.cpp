#include "src/register/register_settings.h"

#include <string>

#include "src/faces/common_db.h"
#include "src/module/session.h"

namespace goods {
namespace {

std::string ShopCondition(std::string_view before, std::int32_t shopId) {
  return std::string(before) + std::to_string(shopId);
}

bool IsAbsent(const late::Value& value) {
  return value.IsNull() || value.IsEmpty() || (value.IsText() && value.TextOrEmpty().empty());
}

}  // namespace

void ReadUserName(basGoodsRequest& session, CommonDb& db) {
  db.strTableName("lousers where userid=" + std::to_string(session.gIntUserID) +
                  " and ShopID=" + std::to_string(session.gIntShopID));
  session.gStrUserName = db.fnReturnField("username").TextOrEmpty();
}

vb::Date ReadFromDate(basGoodsRequest& session, CommonDb& db) {
  const std::string condition = ShopCondition(" shopid=", session.gIntShopID);
  db.strTableName("LOsSettings");
  const std::int16_t backDays = db.fnReturnField("sNoofBackDays", condition).ToInt16();
  const vb::Date candidate{session.gDtProcessDate.days - backDays};

  db.strTableName("vwshopCloseDate");
  const late::Value closed = db.fnReturnField("closedate", condition);
  const bool closedEarlier = !IsAbsent(closed) && !(closed.ToDate() > candidate);
  return closedEarlier ? closed.ToDate() : candidate;
}

void ReadPackageSettings(basGoodsRequest& session, CommonDb& db) {
  db.strTableName("aPAckageSettings");
  session.gBlnIntegerQuantity = db.fnReturnField("IntegerQuantity").TrueOrFalse();

  db.strTableName("aShops");
  session.gBlnRequestForNonShopItem =
      db.fnReturnField("RequestForNonShopItem", ShopCondition("ShopID=", session.gIntShopID)).TrueOrFalse();
  session.gBlnPreserveItemDetails =
      db.fnReturnField("PreserveItemDetails", ShopCondition("ShopId = ", session.gIntShopID)).TrueOrFalse();

  db.strTableName("aPackageSettings");
  const bool summary = db.fnReturnField("TransactionsSummary").TrueOrFalse();
  session.gStrStockView = summary ? "vwInquiryShopStockSummary" : "vwInquiryShopStock";
}

}  // namespace goods
