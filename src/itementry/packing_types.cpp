#include "src/itementry/packing_types.h"

#include <string>

#include "base/vb/error.h"
#include "base/vb/format.h"
#include "src/faces/common_db.h"

namespace goods {

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
  }
}

}  // namespace goods
