#include "src/counter/proposal_packs.h"

#include <cmath>
#include <map>

#include "src/records/query_rows.h"

namespace goods {
namespace {

constexpr double kRest = 1e-6;  // of a pack: what a division leaves

constexpr std::string_view kSmallestPackingsQuery =
    "select ad.itemid,min(ac.quantity) from aitempackingdetail ad,apackingtypecapacitydetail ac,aitem a"
    " where ad.itemid=a.itemid and ac.unitsid=a.unitsid and ac.packingtypeid=ad.packingtypeid and ad.active=1 and ac.quantity>0"
    " group by ad.itemid";

}  // namespace

void RaiseToWholePacks(basGoodsRequest& session, RequestLines lines) {
  std::map<std::int32_t, double> smallest;
  const late::ArrayPtr rows = ReadRows(session, kSmallestPackingsQuery);
  for (std::size_t row = 0; row < rows->columns; ++row) smallest[rows->At(0, row).ToInt32()] = rows->At(1, row).ToDouble();
  for (int line = 1; line <= lines.Count(); ++line) {
    const auto packing = smallest.find(lines.ItemId(line));
    if (packing == smallest.end()) continue;
    const double quantity = lines.Quantity(line);
    const double raised = std::ceil(quantity / packing->second - kRest) * packing->second;
    if (raised > quantity) lines.SetQuantity(line, raised);
  }
}

}  // namespace goods
