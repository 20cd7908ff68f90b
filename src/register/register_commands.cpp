#include "base/vb/number.h"
#include "src/editor/frm_request.h"
#include "src/printing/frm_print.h"
#include "src/register/frm_master.h"

namespace goods {

frmRequest& frmMaster::FreshEditor() {
  if (!editor_) editor_ = std::make_shared<frmRequest>(Session(), view_);
  if (editor_->IsLoaded() && !editor_->IsShown()) editor_->Unload();
  return *editor_;
}

void frmMaster::ReturnToList() {
  if (IsShown() && flexMaster.CanFocus()) flexMaster.SetFocus();
}

void frmMaster::cmdnew_Click() {
  frmRequest& editor = FreshEditor();
  Session().gStrEntryMode = "N";
  Session().gObjUserAuditing.LoggedTime(Session().services.workstation.Now());
  editor.txtrequestDate.SetText(vb::DateText(Session().gDtProcessDate));
  editor.txtRemarks.SetText("");
  editor.Show(this);
  ReturnToList();
  ApplySelectionColor();
}

void frmMaster::CmdEdit_Click() {
  if (!IsOnRequest()) {
    Tell("No Request No. Selected ");
    return;
  }
  frmRequest& editor = FreshEditor();
  Session().gStrEntryMode = "E";
  Session().gObjUserAuditing.LoggedTime(Session().services.workstation.Now());
  editedRequest_ = CurrentRequestId();
  Session().gLngRequestID = editedRequest_;
  editor.ShowOwnLinks(editedRequest_);
  if (CurrentCell(kRegisterCancelled) == "Yes") editor.cmdOK.SetEnabled(false);
  editor.txtRequestNo.SetText(CurrentCell(kRegisterNo));
  editor.txtrequestDate.SetText(CurrentCell(kRegisterDate));
  editor.txtRemarks.SetText(CurrentCell(kRegisterRemarks));
  editor.Show(this);
  ReturnToList();
  ApplySelectionColor();
}

void frmMaster::Cmdprev_Click() {
  if (!printDialog_) printDialog_ = std::make_shared<frmPrint>(Session(), view_);
  printDialog_->Show(this);
  ReturnToList();
}

void frmMaster::CmdClose_Click() {
  Unload();
}

}  // namespace goods
