#include "src/editor/stock_out_proposal.h"

#include <string>

#include "base/vb/error.h"
#include "src/faces/common_db.h"
#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string StockOutItemsQuery(std::string_view stockView, std::int32_t shopId) {
  const std::string shop = std::to_string(shopId);
  return "select itemcode,a.itemid,a.ItemReorderLevel,cast(cast(a.ReorderQuantity as decimal(18,3)) "
         " as varchar(20)) as reorderquantity,  z.ItemDescription"
         " from ashopitemdetail a,aitem b,"
         " vwitemdescription z, (select shopid, itemid, isnull(sum(stock),0) stock from " +
         std::string(stockView) + " s where shopid = " + shop +
         " group by shopid, itemid) istock "
         " where a.itemid = istock.itemid and a.shopid = istock.shopid and "
         " a.itemid=b.itemid and b.itemid=z.itemid  and a.shopid= " +
         shop + " and ItemReorderLevel >= istock.stock and b.itemtype <> 'B' and b.active = 1";
}

/// Fields of StockOutItemsQuery.
enum Field : std::size_t { kItemCode, kItemId, kReorderLevel, kReorderQuantity, kDescription };

/// Lets a statement run as long as it takes. The connection is the host's: it gets its own time-out back.
class NoTimeout {
 public:
  explicit NoTimeout(ado::Connection& connection) : connection_(connection), before_(connection.CommandTimeout()) {
    connection_.SetCommandTimeout(0);
  }
  ~NoTimeout() {
    try {
      connection_.SetCommandTimeout(before_);
    } catch (const vb::RunTimeError&) {
      // A connection that fails even here has failed the statement before: that error is the one to report.
    }
  }
  NoTimeout(const NoTimeout&) = delete;
  NoTimeout& operator=(const NoTimeout&) = delete;

 private:
  ado::Connection& connection_;
  int before_;
};

}  // namespace

void ProposeStockOutItems(basGoodsRequest& session, CommonDb& db, RequestLines lines) {
  // The shop's limit is read and does not limit the proposal: leaving out items that have run out is the user's decision.
  db.strTableName("ashops");
  db.fnReturnField("MaxRequestItemsToHQ", " shopid=" + std::to_string(session.gIntShopID));

  const NoTimeout asLongAsItTakes(session.gAdoCon);
  const late::ArrayPtr rows = ReadRows(session, StockOutItemsQuery(session.gStrStockView, session.gIntShopID));
  UnitCodes unitCodes(session);
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const std::int32_t itemId = rows->At(kItemId, row).ToInt32();
    lines.Append({.itemCode = rows->At(kItemCode, row).TextOrEmpty(),
                  .itemName = rows->At(kDescription, row).TextOrEmpty(),
                  .quantity = rows->At(kReorderQuantity, row).TextOrEmpty(),
                  .itemId = itemId,
                  .remarks = "",
                  .unit = unitCodes.Of(itemId),
                  .partCode = ""});
  }
}

}  // namespace goods
