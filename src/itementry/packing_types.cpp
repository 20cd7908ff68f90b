#include "src/itementry/packing_types.h"

#include <cmath>
#include <string>

#include "base/vb/error.h"
#include "base/vb/format.h"
#include "base/vb/number.h"
#include "src/faces/common_db.h"

namespace goods {
namespace {

/// A count that is not whole is red; its tip tells the quantities below and above that fill their packs, "24 or 36".
void MarkBrokenPacks(controls::ListItem& packing, double quantity, double capacity) {
  constexpr double kRest = 1e-6;  // of a pack: what a division leaves
  const double packs = quantity / capacity;
  const bool isWhole = std::abs(packs - std::round(packs)) < kRest;
  std::string whole;
  if (!isWhole) {
    if (packs > 1) whole = vb::NumberText(std::floor(packs) * capacity) + " or ";
    whole += vb::NumberText(std::ceil(packs) * capacity);
  }
  packing.SetCellForeColor(kPackingCount, isWhole ? controls::kDefaultColor : controls::kRed);
  packing.SetSubItemToolTip(kPackingCount, whole);
}

}  // namespace

void FillPackingTypes(CommonDb& db, controls::ListView& list, std::int32_t itemId) {
  list.Clear();
  db.PopulateListview(list, " aitempackingdetail ad,apackingtype ap, apackingtypecapacitydetail ac,aitem ai ",
                      " ad.itemid = " + std::to_string(itemId) +
                          " and ad.packingtypeid=ap.packingtypeid and ad.itemid=ai.itemid and "
                          " ac.unitsid=ai.unitsid and ac.packingtypeid=ad.packingtypeid and ad.active=1 ",
                      " ad.packingtypeid ", " PackingTypeName ", "skip");
}

void CountPacks(CommonDb& db, controls::ListView& list, std::int32_t itemId, double quantity) {
  for (int line = 1; line <= list.Count(); ++line) {
    controls::ListItem& packing = list.Item(line);
    db.strTableName(" apackingtypecapacitydetail pk, aitem a");
    const double capacity =
        db.fnReturnField("pk.quantity", " a.itemid =" + std::to_string(itemId) + " and pk.packingtypeid=" + packing.Text() +
                                            " and a.unitsid=pk.unitsid")
            .ToDouble();
    if (capacity == 0) vb::Raise(vb::kDivisionByZero);
    packing.SetSubItem(kPackingCount, vb::Format(quantity / capacity, "#0.00"));
    MarkBrokenPacks(packing, quantity, capacity);
  }
}

}  // namespace goods
