#include "src/fetch/item_type_filter.h"

#include "base/vb/text.h"
#include "src/faces/common_db.h"

namespace goods {

bool IsTypeBShop(CommonDb& db, std::int32_t shopId) {
  db.strTableName("ashops");
  return vb::UCase(db.fnReturnField("substring(futurevarchar,1,1)", "ShopID=" + std::to_string(shopId)).TextOrEmpty()) == "B";
}

std::string ListItemTypeFilter(CommonDb& db, std::int32_t shopId) {
  return IsTypeBShop(db, shopId) ? " and a.itemtype = 'B'" : " and a.itemtype <> 'B'";
}

}  // namespace goods
