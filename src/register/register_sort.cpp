#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/lists/grid_search.h"
#include "src/lists/heading_sort.h"
#include "src/register/frm_master.h"

namespace goods {

void frmMaster::cboColNames_Click() {
  const int entry = cboColNames.ListIndex();
  if (entry < 0) return;
  const controls::Hourglass busy(*this);
  // Ids grow with the date, so their order is the date's, which the date's text would not give.
  const bool byDate = vb::InStrNoCase(cboColNames.List(entry), "date") > 0;
  SortGrid(byDate ? static_cast<long>(kRegisterId) : cboColNames.ItemData(entry));
}

void frmMaster::SortGrid(long column) {
  using controls::GridSort;
  const bool numeric = vb::IsNumeric(CurrentCell(column));
  const GridSort ascending = numeric ? GridSort::GenericAscending : GridSort::TextAscending;
  const GridSort descending = numeric ? GridSort::GenericDescending : GridSort::TextDescending;
  const std::string current = CurrentCell(kRegisterId);
  const long row = flexMaster.Row();

  flexMaster.SetCol(column);
  flexMaster.SetRowSel(row);  // one row alone stands for all of them
  flexMaster.SetColSel(column);
  flexMaster.Sort(optAscend.Value() ? ascending : descending);
  flexMaster.ShowSortedBy(-1, true);  // the list below says what it is sorted on

  // The request that was current stays current, wherever the sort put it.
  long moved = row;
  for (long line = 1; line < flexMaster.Rows(); ++line) {
    if (flexMaster.TextMatrix(line, kRegisterId) != current) continue;
    moved = line;
    break;
  }
  SelectWholeRow(moved);
  ApplySelectionColor();
}

void frmMaster::SortDirection_Click() {
  cboColNames.SetListIndex(-1);
}

void frmMaster::Form_KeyDown(int& keyCode, int shift) {
  if (keyCode != 'S' || shift != controls::kAlt) return;
  keyCode = 0;
  GoToSearch();
}

void frmMaster::GoToSearch() {
  for (int entry = 0; cboSearch.ListIndex() < 0 && entry < cboSearch.ListCount(); ++entry) {
    if (cboSearch.ItemData(entry) == kRegisterNo) cboSearch.SetListIndex(entry);
  }
  txtsearch.SetFocus();
  txtsearch.SelectAll();
}

void frmMaster::flexMaster_HeadingClick(long column) {
  for (int entry = 0; entry < cboColNames.ListCount(); ++entry) {
    if (cboColNames.ItemData(entry) != column) continue;
    // The list follows the click, and its choice sorts.
    const bool ascending = SetHeadingDirection(flexMaster, column, optAscend, optDescend);
    cboColNames.Pick(entry);
    flexMaster.ShowSortedBy(column, ascending);
    return;
  }
}

void frmMaster::txtsearch_KeyUp(int&, int shift) {
  const int entry = cboSearch.ListIndex();
  if (entry < 0 || vb::Trim(txtsearch.Text()).empty()) return searchAnswer_.Tell(true);
  const bool found = SearchInGrid(flexMaster, cboSearch.ItemData(entry), txtsearch.Text());
  // The key that led here has typed nothing yet.
  if ((shift & controls::kAlt) == 0) searchAnswer_.Tell(found);
  ApplySelectionColor();
}

}  // namespace goods
