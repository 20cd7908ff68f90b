#include <vector>

#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/editor/frm_request.h"
#include "src/faces/user_auditing.h"
#include "src/lists/register_row.h"
#include "src/register/frm_cancel_reason.h"
#include "src/register/frm_master.h"

namespace goods {
namespace {

constexpr long kUserNameLength = 20;  // characters of a name that a cancellation remark keeps
constexpr int kConfirmDelete = controls::kYesNo | controls::kCritical | controls::kDefaultButton2;

std::string HeaderQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from  mosGoodsRequestHeader where GRHrequestID  = " + std::to_string(requestId) +
         " and grhshopid=" + std::to_string(shopId);
}

std::string LinesQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where GRDrequestID=" + std::to_string(requestId) +
         " and grdshopid=" + std::to_string(shopId);
}

/// Rewrites the request's header with its own values, so that whatever the database does on an update runs again.
std::string RefreshHeaderStatement(const std::string& requestId, std::int32_t shopId) {
  return "update mosgoodsrequestheader set GRHcancel=GRHcancel where  GRHrequestID=" + requestId +
         " and GRHshopID=" + std::to_string(shopId);
}

std::string RefreshLinesStatement(const std::string& requestId, std::int32_t shopId) {
  return "update mosgoodsrequestdetail set GRDbadQty=GRDbadQty where GRDrequestID=" + requestId +
         " and GRDshopID=" + std::to_string(shopId);
}

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
  auditing::StampLoggedTime(session);
  if (!IsOnRequest()) return;

  const std::string requestNo = CurrentCell(kRegisterNo);
  if (Tell("Are you sure you want to Delete " + requestNo + " ?", kConfirmDelete) != controls::Answer::Yes) return;
  session.gLngRequestID = CurrentRequestId();
  const std::string reason = AskReason();
  if (vb::Trim(reason).empty()) return;  // the dialog was torn down, not answered

  MarkRequestCancelled(CancellationRemark(userName, reason));
  auditing::SaveAction(session, CurrentCell(kRegisterId), requestNo, "D");
  session.gStrEntryMode = "E";
  UpdateEditedRow(session, view_, " GRHrequestID=" + std::to_string(session.gLngRequestID), session.gLngRequestID);
  MarkCancelledRequests();
  SelectWholeRow(flexMaster.Row());
  ApplySelectionColor();
}

// Header and item marks are two steps without a transaction: once the header says cancelled, the request is.
void frmMaster::MarkRequestCancelled(std::string_view remark) {
  ado::Recordset header = ado::Recordset::Create(Session().services.factory);
  header.SetCursorLocation(ado::kUseServer);  // a host's client-side cursors miss the row when a trigger counts others
  header.Open(HeaderQuery(Session().gLngRequestID, Session().gIntShopID), Session().gAdoCon, ado::kKeyset, ado::kOptimistic);
  const bool found = !header.Eof();
  if (found) {
    header.SetField("grhcancel", std::int32_t{1});
    header.SetField("grhcancelRemarks", remark);
    header.Update();
  }
  header.Close();
  if (found) RemoveRequestRaisedFromShopItemDetail();
}

// The condition names the item alone: its mark goes in every shop.
void frmMaster::RemoveRequestRaisedFromShopItemDetail() {
  Trap("RemoveRequestRaisedFromShopItemDetail", [&] {
    objCommonDB_.strTableName("aShopItemDetail");
    ado::Recordset lines = ado::Recordset::Create(Session().services.factory);
    lines.Open(LinesQuery(Session().gLngRequestID, Session().gIntShopID), Session().gAdoCon);
    std::vector<std::string> items;  // read first: the updates need the connection to themselves
    for (; !lines.Eof(); lines.MoveNext()) items.push_back(lines.Field("GRDitemID").ToText());
    lines.Close();
    for (const std::string& item : items) objCommonDB_.fnUpdateSelectedRecord("Itemid = " + item, "RequestRaised", 0);
  });
}

void frmMaster::mnurefresh_Click() {
  if (!IsOnRequest()) return;
  const std::string requestId = CurrentCell(kRegisterId);
  Session().gAdoCon.ExecuteNoRecords(RefreshHeaderStatement(requestId, Session().gIntShopID));
  Session().gAdoCon.ExecuteNoRecords(RefreshLinesStatement(requestId, Session().gIntShopID));
}

}  // namespace goods
