#include "base/vb/text.h"
#include "src/editor/frm_request.h"
#include "src/lists/register_row.h"
#include "src/records/request_store.h"
#include "src/register/frm_cancel_reason.h"
#include "src/register/frm_master.h"

namespace goods {
namespace {

constexpr long kUserNameLength = 20;  // characters of a name that a cancellation remark keeps
constexpr int kConfirmDelete = controls::kYesNo | controls::kCritical | controls::kDefaultButton2;

std::string CancellationRemark(std::string_view userName, std::string_view reason) {
  return vb::Left(vb::Trim(userName), kUserNameLength) + ":" + vb::Left(vb::Trim(reason), kReasonLength);
}

}  // namespace

bool frmMaster::EditorAllowsSaving() const {
  // The question alone does not load an editor; one that is not loaded would open with OK enabled.
  return !editor_ || !editor_->IsLoaded() || editor_->cmdOK.Enabled();
}

bool frmMaster::RefusesToDelete() {
  if (IsOnRequest()) {
    objCommonDB_.strTableName("mosGoodsRequestHeader");
    const std::string condition =
        "GRHshopID=" + std::to_string(Session().gIntShopID) + " and GRHrequestID=" + CurrentCell(kRegisterId);
    if (objCommonDB_.fnReturnField("grhTransFinished", condition).TrueOrFalse()) {
      Tell("Transaction is confirmed as finished. Can not delete.");
      return true;
    }
    if (objCommonDB_.fnReturnField("GRHIssuenotegenerated", condition).TrueOrFalse() && EditorAllowsSaving()) {
      Tell("Issue Note Generated,Cannot Be Delete");
      return true;
    }
  }
  if (flexMaster.Row() < 1 || flexMaster.Row() >= flexMaster.Rows()) {
    Tell("No Request No Selected ");
    return true;
  }
  if (CurrentCell(kRegisterCancelled) == "Yes") {
    Tell("This record is already Deleted ");
    return true;
  }
  return false;
}

std::string frmMaster::AskReason() {
  if (!reasonDialog_) reasonDialog_ = std::make_shared<frmcancelreason>(Session());
  Session().gStrCancelReason.clear();
  reasonDialog_->Show(this);
  ReturnToList();
  return Session().gStrCancelReason;
}

void frmMaster::CmdDelete_Click() {
  basGoodsRequest& session = Session();
  objCommonDB_.strTableName("loUsers");
  const std::string userName = objCommonDB_
                                   .fnReturnField("UserName", "ShopID=" + std::to_string(session.gIntShopID) +
                                                                  " and Userid=" + std::to_string(session.gIntUserID))
                                   .TextOrEmpty();
  if (RefusesToDelete()) return;
  session.gObjUserAuditing.LoggedTime(session.services.workstation.Now());
  if (!IsOnRequest()) return;

  const std::string requestNo = CurrentCell(kRegisterNo);
  if (Tell("Are you sure you want to Delete " + requestNo + " ?", kConfirmDelete) != controls::Answer::Yes) return;
  session.gLngRequestID = CurrentRequestId();
  const std::string reason = AskReason();
  if (vb::Trim(reason).empty()) return;  // the dialog was torn down, not answered

  MarkRequestCancelled(CancellationRemark(userName, reason));
  session.gObjUserAuditing.SaveUserAuditingInfo(CurrentCell(kRegisterId), requestNo, "D");
  session.gStrEntryMode = "E";
  UpdateEditedRow(session, view_, " GRHrequestID=" + std::to_string(session.gLngRequestID), session.gLngRequestID);
  MarkCancelledRequests();
  SelectWholeRow(flexMaster.Row());
  ApplySelectionColor();
}

// Header and item marks are two steps without a transaction: once the header says cancelled, the request is.
void frmMaster::MarkRequestCancelled(std::string_view remark) {
  if (RequestStore(Session(), objCommonDB_).Cancel(Session().gLngRequestID, remark)) RemoveRequestRaisedFromShopItemDetail();
}

void frmMaster::RemoveRequestRaisedFromShopItemDetail() {
  Trap("RemoveRequestRaisedFromShopItemDetail",
       [&] { RequestStore(Session(), objCommonDB_).RemoveRequestRaised(Session().gLngRequestID); });
}

void frmMaster::mnurefresh_Click() {
  if (IsOnRequest()) RequestStore(Session(), objCommonDB_).Refresh(CurrentRequestId());
}

}  // namespace goods
