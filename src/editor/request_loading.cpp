#include "src/editor/request_loading.h"

#include <string>

#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string RowIdentifierQuery() {
  return "select count(*) from syscolumns where colstat=2 and id=object_id('mosgoodsrequestdetail')";
}

std::string RequestLinesQuery(std::int32_t requestId, std::int32_t shopId, std::string_view orderClause) {
  return "select itemcode,a.grditemid,cast(cast(a.grdgoodqty as decimal(18,3)) as varchar(20)) as grdgoodqty, "
         " z.ItemDescription,a.grdshopid, grdreqcomments,isnull(b.part_code,'') part_code "
         " from mosgoodsrequestdetail a,aitem b,vwitemdescription z where a.grditemid=b.itemid "
         "and b.itemid=z.itemid and GRDgoodQty >0 and a.grdrequestid=" +
         std::to_string(requestId) + " and a.grdshopid=" + std::to_string(shopId) + std::string(orderClause);
}

/// Fields of RequestLinesQuery.
enum Field : std::size_t { kItemCode, kItemId, kQuantity, kDescription, kShopId, kComments, kPartCode };

/// Only a database set up for replication knows in which order the lines were entered.
std::string_view OrderClause(basGoodsRequest& session) {
  return ExecuteForValue(session, RowIdentifierQuery()).ToInt32() > 0 ? " order by a.rowguid" : " ";
}

}  // namespace

void LoadRequestLines(basGoodsRequest& session, RequestLines lines) {
  const std::string_view order = OrderClause(session);
  const late::ArrayPtr rows = ReadRows(session, RequestLinesQuery(session.gLngRequestID, session.gIntShopID, order));
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const std::int32_t itemId = rows->At(kItemId, row).ToInt32();
    lines.Append({.itemCode = rows->At(kItemCode, row).TextOrEmpty(),
                  .itemName = rows->At(kDescription, row).TextOrEmpty(),
                  .quantity = rows->At(kQuantity, row).TextOrEmpty(),
                  .itemId = itemId,
                  .remarks = rows->At(kComments, row).TextOrEmpty(),
                  .unit = GetItemUnitCode(session, itemId),
                  .partCode = rows->At(kPartCode, row).TextOrEmpty()});
  }
}

}  // namespace goods
