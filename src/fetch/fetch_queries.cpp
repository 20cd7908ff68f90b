#include "src/fetch/fetch_queries.h"

#include <array>

#include "base/vb/text.h"

namespace goods {
namespace {

struct FilterField {
  std::string_view name;
  std::string_view column;
};

constexpr std::string_view kDescriptionColumn = "v.itemdescription";

constexpr std::array<FilterField, 5> kFilterFields{{
    {"ItemDescription", kDescriptionColumn},
    {"ItemCode", "a.itemcode"},
    {"Brand", "a.brand"},
    {"ModelNo", "a.modelno"},
    {"Part_Code", "a.Part_Code"},
}};

}  // namespace

std::string StockOutBaseQuery(std::string_view stockView, std::string_view itemTypeFilter, std::int32_t shopId) {
  std::string query = "select a.itemid ,a.itemcode, v.itemdescription,a.brand,a.modelno,isnull(a.part_code,'')part_code  from ";
  query.append(stockView).append(
      " ms, aitem a, vwitemdescription v, ashopitemdetail sd  Where a.active = 1 and a.itemID = ms.itemID");
  query.append(" and a.itemID = v.itemID ").append(itemTypeFilter);
  query.append(" and sd.itemid=a.itemid and sd.shopid=ms.shopid and sd.shopid=").append(std::to_string(shopId));
  query.append(
      " and sd.requestraised=0 group by sd.shopid,a.itemid ,a.itemcode, sd.itemReorderLevel,a.brand,a.modelno,v.itemdescription,"
      "a.part_code having sum(stock)< sd.itemReorderLevel");
  return query;
}

std::string AllItemsBaseQuery(std::string_view itemTypeFilter, std::int32_t shopId) {
  std::string query =
      "select a.itemid,a.itemcode,v.itemdescription ,a.brand,a.modelno,isnull(a.part_code,'')part_code "
      " from ashopitemdetail s,vwitemdescription v, aitem a where a.itemid = v.itemid ";
  query.append(itemTypeFilter).append(" and s.itemid = v.itemid and s.shopid = ").append(std::to_string(shopId));
  query.append(" and a.Active = 1");
  return query;
}

std::string NotInShopBaseQuery(std::int32_t shopId) {
  return "select a.ItemId, a.ItemCode, v.ItemDescription, a.Brand, a.ModelNo,  isnull(a.part_code,'')part_code from aItem a"
         " inner join vwitemdescription v on a.ItemId=v.ItemId"
         " left outer join aShopItemDetail si on a.ItemId=si.ItemId and si.ShopId=" +
         std::to_string(shopId) + " where si.ItemId is null and Active=1 and forsales=1";
}

std::string FilterColumn(std::string_view field) {
  // The chosen field is rewritten to its column by the first filter; the next filter must still find that column.
  for (const FilterField& known : kFilterFields) {
    if (field == known.name || field == known.column) return std::string(known.column);
  }
  return std::string(kDescriptionColumn);
}

std::string FilteredQuery(std::string_view base, std::string_view column, std::string_view text, bool isCondition) {
  const std::size_t order = vb::InStrNoCase(base, "order by");
  const std::string head = order == 0 ? std::string(base) : vb::Left(base, static_cast<long>(order) - 1);
  const std::string tail = order == 0 ? std::string() : vb::Mid(base, static_cast<long>(order));
  const bool hasWhere = vb::InStr(vb::UCase(vb::Trim(head)), "WHERE") > 0;
  std::string query = head + (hasWhere || isCondition ? " and " : " where ");
  query.append(column).append(" like '%").append(text).append("%' ").append(tail);
  return query;
}

std::string GodownItemsCall(std::int32_t shopId, std::string_view condition) {
  return "spgodownitemnotinshop " + std::to_string(shopId) + ",'" + vb::DoubleApostrophes(condition) + "'";
}

}  // namespace goods
