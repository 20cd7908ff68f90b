#include "src/counter/open_requests.h"

#include <algorithm>

#include "src/records/query_rows.h"
#include "src/records/request_lines.h"

namespace goods {
namespace {

constexpr std::size_t kMaxTold = 3;

std::string OpenLinesQuery(std::int32_t shopId, std::int32_t ownId, std::optional<std::int32_t> itemId) {
  return "select d.GRDitemID,h.grhrequestno,h.grhrequestdate,d.GRDgoodQty from mosGoodsRequestHeader h,mosGoodsRequestDetail d"
         " where d.GRDshopID=h.grhshopid and d.GRDrequestID=h.GRHrequestID and h.grhshopid=" +
         std::to_string(shopId) + " and isnull(h.GRHcancel,0)=0 and isnull(h.grhIssuenotegenerated,0)=0 and d.GRDgoodQty>0" +
         " and h.GRHrequestID<>" + std::to_string(ownId) + (itemId ? " and d.GRDitemID=" + std::to_string(*itemId) : "") +
         " order by h.GRHrequestID desc";
}

/// Fields of OpenLinesQuery.
enum Field : std::size_t { kItemId, kRequestNo, kDate, kQuantity };

}  // namespace

std::vector<OpenLine> OpenLines(basGoodsRequest& session, std::int32_t ownId, std::optional<std::int32_t> itemId) {
  const late::ArrayPtr rows = ReadRows(session, OpenLinesQuery(session.gIntShopID, ownId, itemId));
  std::vector<OpenLine> lines;
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const late::Value& date = rows->At(kDate, row);
    lines.push_back({rows->At(kItemId, row).ToInt32(), rows->At(kRequestNo, row).TextOrEmpty(),
                     date.IsNull() ? vb::Date() : date.ToDate(), rows->At(kQuantity, row).ToDouble()});
  }
  return lines;
}

std::string OpenLinesToTell(const std::vector<OpenLine>& lines) {
  std::string text;
  const std::size_t told = std::min(lines.size(), kMaxTold);
  for (std::size_t line = 0; line < told; ++line) {
    text += (line > 0 ? ", " : "") + QuantityText(lines[line].quantity) + " in " + lines[line].requestNo + " of " +
            vb::DateText(lines[line].date);
  }
  if (lines.size() > told) text += " and " + std::to_string(lines.size() - told) + " more";
  return text;
}

}  // namespace goods
