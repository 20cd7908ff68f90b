#include "src/editor/frm_request.h"

#include <utility>

#include "base/vb/text.h"
#include "src/counter/same_again.h"
#include "src/editor/request_saving.h"
#include "src/editor/stock_out_proposal.h"
#include "src/itementry/frm_request_detail.h"
#include "src/lists/cell_text.h"
#include "src/lists/list_views.h"
#include "src/lists/register_row.h"

namespace goods {

frmRequest::frmRequest(basGoodsRequest& session, RegisterView& view)
    : ModuleForm(session, "frmRequest"), view_(view), customerRequests_(session, objCommonDB_, lvwCustomerReq, lines_) {
  PublishField("lngCurrentLine", [this] { return late::Value(lngCurrentLine); });
  WireEvents();
}

frmRequest::~frmRequest() = default;

void frmRequest::WireEvents() {
  On(Loading, "Form_Load", &frmRequest::Form_Load);
  On(Activated, "Form_Activate", &frmRequest::Form_Activate);
  On(QueryUnload, "Form_QueryUnload", &frmRequest::Form_QueryUnload);
  On(Unloading, "Form_Unload", &frmRequest::Form_Unload);
  On(cmdOK.Click, "cmdOK_Click", &frmRequest::cmdOK_Click);
  On(cmdCancel.Click, "cmdCancel_Click", [this] { Unload(); });
  On(chkcutomerrequest.Click, "chkcutomerrequest_Click", &frmRequest::chkcutomerrequest_Click);
  On(lvwCustomerReq.ItemCheck, "lvwCustomerReq_ItemCheck", &frmRequest::lvwCustomerReq_ItemCheck);
  On(lvwrequest.DblClick, "lvwrequest_DblClick", &frmRequest::lvwrequest_DblClick);
  On(lvwrequest.KeyDown, "lvwrequest_KeyDown", &frmRequest::lvwrequest_KeyDown);
  On(lvwrequest.KeyPress, "lvwrequest_KeyPress", &frmRequest::lvwrequest_KeyPress);
  On(lvwrequest.MouseUp, "lvwrequest_MouseUp", &frmRequest::lvwrequest_MouseUp);
  On(lvwrequest.Pasted, "lvwrequest_Pasted", &frmRequest::lvwrequest_Pasted);
  On(lvwrequest.ItemClick, "lvwrequest_ItemClick", &frmRequest::lvwrequest_ItemClick);
  On(mnuAdd.Click, "mnuAdd_Click", &frmRequest::mnuAdd_Click);
  On(mnuEdit.Click, "mnuEdit_Click", &frmRequest::mnuEdit_Click);
  On(mnudel.Click, "mnudel_Click", &frmRequest::mnudel_Click);
  On(txtRequestNo.KeyPress, "txtRequestNo_KeyPress", &frmRequest::txtRequestNo_KeyPress);
  for (controls::TextBox* box : {&txtrequestDate, &txtRemarks}) {
    On(box->KeyPress, box->Name() + "_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  }
  WireDraft();
}

void frmRequest::Form_Load() {
  keepOpen_ = true;
  firstActivation_ = true;
  isClosed_ = false;
  loaded_.reset();
  takenUp_.reset();
  draft_.LeaveBehind();  // of a window that was torn down
  updateTime_.clear();
  const bool isNew = IsNew();
  if (isNew) optgoodreq.SetValue(true);  // before anything can fail: without a type, it would be saved as a purchase order
  try {
    objCommonDB_ = CommonDb(Session().services.factory, Session().gAdoCon);
    Session().gObjFormColor.Applyformcolor(*this);
    Session().gObjFormColor.Applytabcolor(sstabGoodsReq);
    ApplyListviewLayout(Session(), lvwrequest, "GoodsRequest", "GoodsRequest");
    if (isNew) {
      LoadNewRequest();
    } else {
      LoadExistingRequest();
    }
  } catch (const vb::RunTimeError&) {
    // Saved, a request that was not read to its end would lose the rest.
    if (!isNew) MakeReadOnly();
    throw;
  }
}

void frmRequest::LoadNewRequest() {
  Session().gLngRequestID = 0;
  objCommonDB_.strTableName("mosGoodsRequestHeader");
  Session().gLngRequestID = objCommonDB_.fnGetNextMaxNo("grhrequestid");
  // A draft waits for the next New: who repeats a request wants that one.
  if (repeated_ != 0) {
    Trap("RepeatLines", [this] { RepeatLines(repeated_); });
    return;
  }
  OfferDraft();
  if (!takenUp_ &&
      Tell("Do you want to add stock out items?", controls::kYesNo + controls::kInformation) == controls::Answer::Yes) {
    Trap("ProposeStockOutItems", [this] { ProposeStockOutItems(Session(), objCommonDB_, lines_); });
    ReviewProposal();
  }
}

void frmRequest::RepeatLines(std::int32_t requestId) {
  const SameAgain again = LinesToRepeat(Session(), objCommonDB_, requestId);
  for (const RequestLine& line : again.lines) lines_.Append(line);
  lines_.MarkChanged();
  if (!again.leftOut.empty()) {
    Tell("These are no longer active or not for sale and were left out:" + LinesToTell(again.leftOut));
  }
}

void frmRequest::LoadExistingRequest() {
  optgoodreq.SetEnabled(false);
  optporeq.SetEnabled(false);
  const std::string condition =
      " grhRequestid=" + std::to_string(Session().gLngRequestID) + " and grhShopid=" + std::to_string(Session().gIntShopID);
  objCommonDB_.strTableName("mosGoodsRequestHeader");
  if (objCommonDB_.fnReturnField("grhIssuenotegenerated", condition).TrueOrFalse()) {
    ForbidSaving(kIssueNoteGenerated);
  }
  if (objCommonDB_.fnReturnField("grhTransfinished", condition).TrueOrFalse()) {
    ForbidSaving(kConfirmedFinished);
    chkTransFinished.SetValue(1);
    chkTransFinished.SetEnabled(false);
  }
  const std::string type = objCommonDB_.fnReturnField("grhrequesttype", condition).TextOrEmpty();
  (vb::UCase(type) == "G" ? optgoodreq : optporeq).SetValue(true);
  // Before the lines, so that a save by another workstation while they are read is noticed at OK.
  updateTime_ = UpdateTimeText(objCommonDB_.fnReturnField("updatetime", condition));
  txtRemarks.SetText(CellText(objCommonDB_.fnReturnField("grhremarks", condition)));
  txtRemarks.SetTag(txtRemarks.Text());
  ShowRemarksInRow(view_, Session().gLngRequestID, txtRemarks.Text());
  const bool isComplete = Trap("LoadRequestLines", [this] {
    for (const RequestLine& line : RequestStore(Session(), objCommonDB_).LinesOf(Session().gLngRequestID)) lines_.Append(line);
  });
  if (!isComplete) MakeReadOnly();  // saved, the request would lose the lines that could not be read
}

void frmRequest::Form_Activate() {
  const bool isFirst = firstActivation_;
  firstActivation_ = false;
  if (isFirst) {
    txtRemarks.SetTag(txtRemarks.Text());
    loaded_ = Entered();
    if (IsNew()) loaded_->lines.clear();  // an accepted proposal is the user's
  }
  objCommonDB_.strTableName("apackagesettings");
  Session().gBlnAliasEnabled = objCommonDB_.fnReturnField("alias").TrueOrFalse();
  if (Session().gBlnAliasEnabled) {
    objCommonDB_.strTableName("aalias");
    optgoodreq.SetCaption("To " + objCommonDB_.fnReturnField("Alias", "aliasid =2").TextOrEmpty());
  }
  if (!isFirst) return;
  Session().gObjUserAuditing.SaveInToTag(*this);
  if (!IsNew() && (isClosed_ || cmdOK.Enabled())) OfferDraft();
  if (takenUp_) {
    updateTime_ = takenUp_->basedOn;  // a save since then is noticed at OK
    TakeUpDraft(takenUp_->request);
  }
  takenUp_.reset();
  history_.Start(lines_.All());
  ShowStatus();
  KeepDraft();
  GoToStart();
}

void frmRequest::GoToStart() {
  if (IsNew() && txtRemarks.CanFocus()) {
    txtRemarks.SetFocus();
  } else if (lvwrequest.CanFocus()) {
    lvwrequest.SetFocus();
  }
}

void frmRequest::Form_QueryUnload(bool& cancel, controls::UnloadMode) {
  if (!cmdOK.Enabled() || !IsChanged()) return;
  const controls::Answer answer = Tell("Save Changes?", controls::kYesNoCancel + controls::kQuestion);
  if (answer == controls::Answer::Cancel) {
    cancel = keepOpen_;
  } else if (answer == controls::Answer::Yes) {
    cmdOK.Click.Fire();
    cancel = keepOpen_;
  }
}

bool frmRequest::IsChanged() const {
  if (lines_.IsChanged() || vb::Trim(txtRemarks.Text()) != vb::Trim(txtRemarks.Tag())) return true;
  if (!loaded_) return false;
  const Request entered = Entered();
  if (entered.lines != loaded_->lines || entered.links != loaded_->links || entered.finished != loaded_->finished) return true;
  // The date and the type of a stored request never change.
  return IsNew() && (entered.date != loaded_->date || entered.type != loaded_->type);
}

void frmRequest::Form_Unload() {
  if (loaded_ && !takenUp_) {
    draft_.Discard();  // saved, unchanged, or answered with No
  } else {
    draft_.LeaveBehind();  // an opening that failed on its way never showed it
  }
}

void frmRequest::cmdOK_Click() {
  if (!RequestSaving(Session(), Entered(), *this, objCommonDB_, view_).Save()) return;
  keepOpen_ = false;
  cmdOK.SetEnabled(false);
  Unload();
}

Request frmRequest::Entered() const {
  return {.id = Session().gLngRequestID,
          .number = txtRequestNo.Text(),
          .date = txtrequestDate.Text(),
          .type = optgoodreq.Value() ? RequestType::ToGodown : RequestType::PurchaseOrder,
          .remarks = txtRemarks.Text(),
          .finished = chkTransFinished.IsChecked(),
          .lines = lines_.All(),
          .links = customerRequests_.Checked(),
          .updateTime = updateTime_};
}

void frmRequest::ForbidSaving(std::string_view reason) {
  isClosed_ = true;
  if (!cmdOK.Enabled()) return;
  Tell(reason);
  MakeReadOnly();
}

void frmRequest::MakeReadOnly() {
  cmdOK.SetEnabled(false);
  for (controls::TextBox* box : {&txtRequestNo, &txtrequestDate, &txtRemarks}) box->SetLocked(true);
}

void frmRequest::GoTo(SaveField field) {
  switch (field) {
    case SaveField::Date:
      return txtrequestDate.SetFocus();
    case SaveField::CustomerRequests:
      sstabGoodsReq.SetTab(kCustomerPage);
      return lvwCustomerReq.SetFocus();
    case SaveField::Finished:
      return chkTransFinished.SetFocus();
    case SaveField::Ok:
      return cmdOK.SetFocus();
  }
}

void frmRequest::txtRequestNo_KeyPress(int& character) {
  SendTabOnEnter(*this, character);
  if (character == controls::kCharApostrophe) character = 0;
}

void frmRequest::ShowOwnLinks(std::int32_t requestId) {
  const bool hasLinks = customerRequests_.ShowOwn(requestId);
  SetBoxQuietly(hasLinks);
  chkcutomerrequest.SetEnabled(!hasLinks);
}

void frmRequest::chkcutomerrequest_Click() {
  if (settingBox_) return;
  const bool ticked = chkcutomerrequest.IsChecked();
  try {
    if (ticked) {
      customerRequests_.ShowOnOffer();
    } else {
      customerRequests_.UncheckAll();
      customerRequests_.Clear();
    }
  } catch (const vb::RunTimeError&) {
    SetBoxQuietly(!ticked);
    throw;
  }
  sstabGoodsReq.SetTabVisible(kCustomerPage, ticked);
  DocumentsChanged();
}

void frmRequest::SetBoxQuietly(bool ticked) {
  settingBox_ = true;
  chkcutomerrequest.SetValue(ticked ? 1 : 0);
  settingBox_ = false;
  sstabGoodsReq.SetTabVisible(kCustomerPage, ticked);
}

void frmRequest::lvwCustomerReq_ItemCheck(controls::ListItem& document) {
  if (!cmdOK.Enabled()) {  // the request can only be looked at
    document.SetChecked(!document.Checked());
    return;
  }
  customerRequests_.TakeChecked(document);
  DocumentsChanged();
}

}  // namespace goods
