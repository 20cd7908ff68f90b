#include "base/vb/number.h"
#include "src/register/frm_master.h"

namespace goods {

bool frmMaster::IsOnRequest() const {
  return flexMaster.Row() >= 1 && !CurrentCell(kRegisterId).empty();
}

std::string frmMaster::CurrentCell(long column) const {
  const long row = flexMaster.Row();
  const bool inside = row >= 0 && row < flexMaster.Rows() && column < flexMaster.Cols();
  return inside ? flexMaster.TextMatrix(row, column) : std::string();
}

std::int32_t frmMaster::CurrentRequestId() const {
  return vb::CLng(vb::Val(CurrentCell(kRegisterId)));
}

void frmMaster::SelectWholeRow(long row) {
  flexMaster.SetRow(row);
  flexMaster.SetCol(0);
  flexMaster.SetColSel(flexMaster.Cols() - 1);
}

void frmMaster::Form_Activate() {
  if (CurrentCell(kRegisterId).empty()) {
    CmdEdit.SetEnabled(false);
    CmdDelete.SetEnabled(false);
    Cmdprev.SetEnabled(false);
    return;
  }
  // Edit is left as it was on a cancelled request, so that it can be looked at; Delete is not.
  const bool live = CurrentCell(kRegisterCancelled) == "No";
  if (live) CmdEdit.SetEnabled(HasRight("E"));
  CmdDelete.SetEnabled(live && HasRight("D"));
  Cmdprev.SetEnabled(HasRight("P"));
}

void frmMaster::flexMaster_RowColChange() {
  if (flexMaster.Row() == evaluatedRow_) return;  // a change of column
  evaluatedRow_ = flexMaster.Row();
  // As on activation: Edit is left as it was on a cancelled request.
  const bool cancelled = CurrentCell(kRegisterCancelled) == "Yes";
  if (!cancelled) CmdEdit.SetEnabled(HasRight("E"));
  CmdDelete.SetEnabled(!cancelled && HasRight("D"));
  Cmdprev.SetEnabled(HasRight("P"));
  ApplySelectionColor();
}

void frmMaster::flexMaster_SelChange() {
  ApplySelectionColor();
}

// The selection's colour follows the row, so that a red one never stays behind on a request that is not cancelled.
void frmMaster::ApplySelectionColor() {
  using namespace controls;
  if (flexMaster.Row() != flexMaster.RowSel()) {
    flexMaster.SetBackColorSel(kCyan);
    flexMaster.SetForeColorSel(kWindowText);
    return;
  }
  const Color own = flexMaster.CellForeColor(flexMaster.Row(), flexMaster.Col());
  if (own != kDefaultColor && own != kWindowText) {
    flexMaster.SetBackColorSel(own);
    flexMaster.SetForeColorSel(kHighlightText);
    return;
  }
  // This colour is the one selected text usually has; text in the highlight's own colour keeps the selection readable on it.
  flexMaster.SetBackColorSel(kHighlightText);
  flexMaster.SetForeColorSel(kHighlight);
}

void frmMaster::flexMaster_DblClick() {
  if (CmdEdit.Enabled()) CmdEdit.Click.Fire();
}

void frmMaster::flexMaster_KeyDown(int& keyCode, int) {
  if (keyCode == controls::kKeyDelete && CmdDelete.Enabled()) CmdDelete.Click.Fire();
}

void frmMaster::flexMaster_KeyPress(int& character) {
  if (character == controls::kCharReturn && CmdEdit.Enabled()) CmdEdit.Click.Fire();
  if (character == controls::kCharLineFeed && cmdnew.Enabled()) cmdnew.Click.Fire();
}

void frmMaster::flexMaster_MouseMove() {
  const long row = flexMaster.MouseRow();
  const long column = flexMaster.MouseCol();
  const bool onCell = row >= 0 && row < flexMaster.Rows() && column >= 0 && column < flexMaster.Cols();
  flexMaster.SetToolTipText(onCell ? flexMaster.TextMatrix(row, column) : std::string());
}

void frmMaster::flexMaster_MouseUp(controls::MouseButton button, int) {
  if (button == controls::kRightButton) PopupMenu(mnupopup);
}

}  // namespace goods
