#include "src/itementry/item_lookup.h"

#include <cmath>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "src/fetch/item_type_filter.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

/// What every look-up is narrowed by.
struct LookupRules {
  std::string itemTypeFilter;
  std::string shopRestriction;  ///< a join; empty where any active saleable item may be requested
};

LookupRules ReadRules(basGoodsRequest& session, CommonDb& db) {
  LookupRules rules;
  rules.itemTypeFilter = IsTypeBShop(db, session.gIntShopID) ? " and a.itemtype ='B'" : " and a.itemtype <>'B'";
  if (!session.gBlnRequestForNonShopItem) {
    rules.shopRestriction =
        " inner join aShopItemDetail si on a.ItemId=si.ItemId and si.ShopId=" + std::to_string(session.gIntShopID);
  }
  return rules;
}

std::string BarcodeQuery(std::string_view code, const LookupRules& rules) {
  return "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join aitempackingdetail pk on a.itemid = pk.itemid"
         " inner join vwItemDescription vw  on a.itemid = vw.itemid" +
         rules.shopRestriction + " where pk.packingbarcode = '" + vb::DoubleApostrophes(code) +
         "' and  pk.active = 1 and a.active=1 and a.forsales=1" + rules.itemTypeFilter;
}

/// The code as a shortcut number, 0 for none. No shortcut has more than ten digits: a longer number, a scanned one say, is none.
/// Nor is a code that only begins with a number or is one by a comma: "12-B", "12-" and "1,2" must find their items, not that of
/// shortcut 12.
std::string ShortcutNumber(std::string_view code) {
  constexpr double kBeyondShortcuts = 1e15;
  if (!vb::IsNumeric(code) || vb::InStr(code, ",") > 0) return "0";
  const double number = vb::CDbl(code);
  return std::abs(number) < kBeyondShortcuts ? vb::NumberText(number) : "0";
}

std::string ShortcutQuery(std::string_view code, std::int32_t shopId, const LookupRules& rules) {
  return "Select a.itemid, a.itemcode,a.part_code,vw.* from aitem a inner join vwitemdescription vw on a.itemid = vw.itemid"
         " inner join ashopitemdetail sd on a.itemid = sd.itemid and sd.shopid=" +
         std::to_string(shopId) + " where  sd.shortcutno = " + ShortcutNumber(code) +
         " and sd.shortcutno <> 0 and a.Active = 1 and a.forsales=1" + rules.itemTypeFilter;
}

std::string ItemCodeQuery(std::string_view code, const LookupRules& rules) {
  return "Select v.itemdescription, v.itemid,a.part_code from aitem a inner join vwitemdescription v on a.itemid = v.itemid" +
         rules.shopRestriction + " where a.itemcode = '" + vb::DoubleApostrophes(code) + "' and a.Active = 1 and a.forsales=1" +
         rules.itemTypeFilter;
}

std::optional<PickedItem> FirstItem(basGoodsRequest& session, const std::string& query, std::string_view code) {
  return ReadQuery(session, query, [&](ado::Recordset& rows) -> std::optional<PickedItem> {
    if (rows.Eof()) return std::nullopt;
    return PickedItem{rows.Field("itemid").ToInt32(), std::string(code), rows.Field("itemdescription").TextOrEmpty(),
                      rows.Field("part_code").TextOrEmpty()};
  });
}

}  // namespace

std::optional<PickedItem> FindItemByCode(basGoodsRequest& session, CommonDb& db, std::string_view code) {
  const LookupRules rules = ReadRules(session, db);
  if (auto found = FirstItem(session, BarcodeQuery(code, rules), code)) return found;
  if (auto found = FirstItem(session, ShortcutQuery(code, session.gIntShopID, rules), code)) return found;
  if (MayItemCodesRepeat(db)) return std::nullopt;
  return FirstItem(session, ItemCodeQuery(code, rules), code);
}

bool MayItemCodesRepeat(CommonDb& db) {
  db.strTableName("apackagesettings");
  return db.fnReturnField("allowitemcodeduplication").TrueOrFalse();
}

}  // namespace goods
