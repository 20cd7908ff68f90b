#include "src/register/register_grid.h"

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/lists/register_view.h"

namespace goods {

bool RegisterGrid::IsOnRequest() const {
  return flexMaster_.Row() >= 1 && !CurrentCell(kRegisterId).empty();
}

std::string RegisterGrid::CurrentCell(long column) const {
  const long row = flexMaster_.Row();
  const bool inside = row >= 0 && row < flexMaster_.Rows() && column < flexMaster_.Cols();
  return inside ? flexMaster_.TextMatrix(row, column) : std::string();
}

std::int32_t RegisterGrid::CurrentRequestId() const {
  return vb::CLng(vb::Val(CurrentCell(kRegisterId)));
}

std::int32_t RegisterGrid::RequestIdAt(long row) const {
  return vb::CLng(vb::Val(flexMaster_.TextMatrix(row, kRegisterId)));
}

bool RegisterGrid::IsCancelled(long row) const {
  return row >= 1 && row < flexMaster_.Rows() && flexMaster_.Cols() > kRegisterCancelled &&
         flexMaster_.TextMatrix(row, kRegisterCancelled) == "Yes";
}

std::string RegisterGrid::Summary(vb::Date since) const {
  long requests = 0;
  long cancelled = 0;
  long finished = 0;
  for (long row = 1; row < flexMaster_.Rows() && flexMaster_.Cols() > kRegisterFinished; ++row) {
    if (flexMaster_.TextMatrix(row, kRegisterId).empty()) continue;  // the placeholder
    ++requests;
    if (flexMaster_.TextMatrix(row, kRegisterCancelled) == "Yes") ++cancelled;
    if (flexMaster_.TextMatrix(row, kRegisterFinished) == "Yes") ++finished;
  }
  return std::to_string(requests) + (requests == 1 ? " request, " : " requests, ") + std::to_string(cancelled) + " cancelled, " +
         std::to_string(finished) + " finished, since " + vb::DateText(since);
}

void RegisterGrid::SelectWholeRow(long row) {
  flexMaster_.SetRow(row);
  flexMaster_.SetCol(0);
  flexMaster_.SetColSel(flexMaster_.Cols() - 1);
}

void RegisterGrid::ApplySelectionColor() {
  using namespace controls;
  if (flexMaster_.Row() != flexMaster_.RowSel()) {
    flexMaster_.SetBackColorSel(kCyan);
    flexMaster_.SetForeColorSel(kWindowText);
    return;
  }
  const Color own = flexMaster_.CellForeColor(flexMaster_.Row(), flexMaster_.Col());
  if (own != kDefaultColor && own != kWindowText) {
    flexMaster_.SetBackColorSel(own);
    flexMaster_.SetForeColorSel(kHighlightText);
    return;
  }
  // This colour is the one selected text usually has; text in the highlight's own colour keeps the selection readable on it.
  flexMaster_.SetBackColorSel(kHighlightText);
  flexMaster_.SetForeColorSel(kHighlight);
}

void RegisterGrid::MarkCancelledRequests() {
  for (long row = 1; row < flexMaster_.Rows(); ++row) {
    if (IsCancelled(row)) flexMaster_.SetRowForeColor(row, controls::kRed);
  }
}

void RegisterGrid::Sort(long column, bool ascending) {
  using controls::GridSort;
  const bool numeric = vb::IsNumeric(CurrentCell(column));
  const GridSort upward = numeric ? GridSort::GenericAscending : GridSort::TextAscending;
  const GridSort downward = numeric ? GridSort::GenericDescending : GridSort::TextDescending;
  const std::string current = CurrentCell(kRegisterId);
  const long row = flexMaster_.Row();

  flexMaster_.SetCol(column);
  flexMaster_.SetRowSel(row);  // a selection of one row sorts all of them
  flexMaster_.SetColSel(column);
  flexMaster_.Sort(ascending ? upward : downward);
  flexMaster_.ShowSortedBy(-1, true);  // the list below says what it is sorted on

  long moved = row;
  for (long line = 1; line < flexMaster_.Rows(); ++line) {
    if (flexMaster_.TextMatrix(line, kRegisterId) != current) continue;
    moved = line;
    break;
  }
  SelectWholeRow(moved);
  ApplySelectionColor();
}

}  // namespace goods
