#include "src/lists/heading_sort.h"

namespace goods {

bool SetHeadingDirection(const controls::FlexGrid& grid, long column, controls::OptionButton& ascend,
                         controls::OptionButton& descend) {
  const bool ascending = grid.SortedCol() != column || !grid.SortedAscending();
  (ascending ? ascend : descend).SetValue(true);
  return ascending;
}

}  // namespace goods
