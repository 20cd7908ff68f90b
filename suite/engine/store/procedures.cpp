#include "suite/engine/store/procedures.h"

#include <array>

#include "base/vb/text.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

/// The active, saleable items of the shop's item list with stock above 0 in godowns and none in the shop. The text is a
/// condition over a (item) and v (description) that is appended to the procedure's own.
std::string GodownItemsNotInShop(const std::vector<late::Value>& arguments) {
  const std::string shop = std::to_string(arguments[0].ToInt32());
  return "select a.itemid, a.itemcode, v.itemdescription, a.brand, a.modelno, isnull(a.part_code,'') part_code"
         " from aShopItemDetail sd inner join aItem a on a.itemid = sd.itemid"
         " inner join vwItemDescription v on v.itemid = a.itemid"
         " where sd.shopid = " +
         shop +
         " and a.active = 1 and a.forsales = 1"
         " and isnull((select sum(g.gsstock) from vwInquiryGodownStock g where g.gsitemid = a.itemid), 0) > 0"
         " and isnull((select sum(s.stock) from vwInquiryShopStock s where s.shopid = " +
         shop + " and s.itemid = a.itemid), 0) <= 0" + arguments[1].TextOrEmpty();
}

struct Entry {
  std::string_view name;
  Procedure procedure;
};

constexpr std::array kProcedures = {Entry{"spgodownitemnotinshop", GodownItemsNotInShop}};

}  // namespace

Procedure FindProcedure(std::string_view name) {
  for (const Entry& entry : kProcedures) {
    if (vb::EqualNoCase(entry.name, name)) return entry.procedure;
  }
  return nullptr;
}

}  // namespace suite
