#include "src/register/frm_cancel_reason.h"

#include "base/vb/text.h"
#include "src/lists/list_views.h"

namespace goods {
frmcancelreason::frmcancelreason(basGoodsRequest& session) : ModuleForm(session, "frmcancelreason") {
  On(Loading, "Form_Load", &frmcancelreason::Form_Load);
  On(Activated, "Form_Activate", &frmcancelreason::Form_Activate);
  On(QueryUnload, "Form_QueryUnload", &frmcancelreason::Form_QueryUnload);
  On(txtcanreason.Change, "txtcanreason_Change", &frmcancelreason::txtcanreason_Change);
  On(txtcanreason.KeyUp, "txtcanreason_KeyUp", &frmcancelreason::txtcanreason_KeyUp);
  On(txtcanreason.KeyPress, "txtcanreason_KeyPress", &frmcancelreason::txtcanreason_KeyPress);
  On(cmdok.Click, "cmdok_Click", &frmcancelreason::cmdok_Click);
}

void frmcancelreason::Design() {
  SetCaption("Reason For Deletion");
  SetSize(5400, 1320);
  Label1.SetCaption("&Reason :");
  Label1.Move(120, 225, 840, 240);
  txtcanreason.Move(1020, 180, 4260, 330);
  txtcanreason.SetMaxLength(kReasonLength);
  cmdok.SetCaption("&OK");
  cmdok.Move(3960, 720, 1320, 420);
}

void frmcancelreason::Form_Load() {
  Session().gObjFormColor.Applyformcolor(*this);
}

void frmcancelreason::Form_Activate() {
  Session().gStrCancelReason.clear();
  SetCaption("Reason for deletion");
}

bool frmcancelreason::HasReason() const {
  return !vb::Trim(txtcanreason.Text()).empty();
}

// A reason pasted with the mouse comes without a key.
void frmcancelreason::txtcanreason_Change() {
  cmdok.SetEnabled(HasReason());
}

void frmcancelreason::txtcanreason_KeyUp(int&, int) {
  cmdok.SetEnabled(HasReason());
}

void frmcancelreason::txtcanreason_KeyPress(int& character) {
  SendTabOnEnter(*this, character);
  if (character == controls::kCharApostrophe) character = 0;
}

bool frmcancelreason::TakeReason() {
  if (!HasReason()) {
    Tell("Enter reason for deletion");
    txtcanreason.SetFocus();
    return false;
  }
  Session().gStrCancelReason = txtcanreason.Text();
  cmdok.SetEnabled(false);
  return true;
}

void frmcancelreason::cmdok_Click() {
  if (TakeReason()) Unload();
}

// The title bar does what OK does: it closes the dialog only with a reason.
void frmcancelreason::Form_QueryUnload(bool& cancel, controls::UnloadMode mode) {
  if (mode != controls::kClosedByUser) return;
  cancel = true;
  cancel = !TakeReason();
}

}  // namespace goods
