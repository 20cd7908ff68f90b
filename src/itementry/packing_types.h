#pragma once

#include <cstdint>

#include "base/controls/list_view.h"

namespace goods {

class CommonDb;

/// Columns of the packing-type list; the line's own text is the packing type's id.
enum PackingTypeColumn : int { kPackingName = 1, kPackingCount = 2 };

/// Fills the list with the item's active packing types that have a capacity for the item's unit. Empties it first, so that after
/// an error no other item's packings stand there. Database errors are raised.
void FillPackingTypes(CommonDb& db, controls::ListView& list, std::int32_t itemId);

/// Shows how many packs of each listed type the quantity makes, one that is not whole in red. A capacity of 0 (error 11) or a
/// missing one (error 94) is raised at its line; the lines below keep their counts.
void CountPacks(CommonDb& db, controls::ListView& list, std::int32_t itemId, double quantity);

}  // namespace goods
