#include "src/editor/frm_request.h"

#include "base/vb/format.h"
#include "base/vb/text.h"
#include "src/editor/request_saving.h"
#include "src/editor/stock_out_proposal.h"
#include "src/itementry/frm_request_detail.h"
#include "src/lists/list_views.h"

namespace goods {
namespace {

constexpr std::string_view kQuantityPicture = "###,###,##0.000";

}  // namespace

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
  On(cmdOK.Click, "cmdOK_Click", &frmRequest::cmdOK_Click);
  On(cmdCancel.Click, "cmdCancel_Click", [this] { Unload(); });
  On(chkcutomerrequest.Click, "chkcutomerrequest_Click", &frmRequest::chkcutomerrequest_Click);
  On(lvwCustomerReq.ItemCheck, "lvwCustomerReq_ItemCheck", &frmRequest::lvwCustomerReq_ItemCheck);
  On(lvwrequest.DblClick, "lvwrequest_DblClick", &frmRequest::lvwrequest_DblClick);
  On(lvwrequest.KeyDown, "lvwrequest_KeyDown", &frmRequest::lvwrequest_KeyDown);
  On(lvwrequest.KeyPress, "lvwrequest_KeyPress", &frmRequest::lvwrequest_KeyPress);
  On(lvwrequest.MouseUp, "lvwrequest_MouseUp", &frmRequest::lvwrequest_MouseUp);
  On(lvwrequest.ItemClick, "lvwrequest_ItemClick", &frmRequest::lvwrequest_ItemClick);
  On(mnuAdd.Click, "mnuAdd_Click", &frmRequest::mnuAdd_Click);
  On(mnuEdit.Click, "mnuEdit_Click", &frmRequest::mnuEdit_Click);
  On(mnudel.Click, "mnudel_Click", &frmRequest::mnudel_Click);
  On(txtRequestNo.KeyPress, "txtRequestNo_KeyPress", &frmRequest::txtRequestNo_KeyPress);
  for (controls::TextBox* box : {&txtrequestDate, &txtRemarks}) {
    On(box->KeyPress, box->Name() + "_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  }
}

void frmRequest::Form_Load() {
  keepOpen_ = true;
  firstActivation_ = true;
  const bool isNew = Session().gStrEntryMode == "N";
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
    if (!isNew) cmdOK.SetEnabled(false);
    throw;
  }
}

void frmRequest::LoadNewRequest() {
  Session().gLngRequestID = 0;
  objCommonDB_.strTableName("mosGoodsRequestHeader");
  Session().gLngRequestID = objCommonDB_.fnGetNextMaxNo("grhrequestid");
  if (Tell("Do you want to add stock out items?", controls::kYesNo + controls::kInformation) == controls::Answer::Yes) {
    Trap("ProposeStockOutItems", [this] { ProposeStockOutItems(Session(), objCommonDB_, lines_); });
  }
}

void frmRequest::LoadExistingRequest() {
  optgoodreq.SetEnabled(false);
  optporeq.SetEnabled(false);
  const std::string condition =
      " grhRequestid=" + std::to_string(Session().gLngRequestID) + " and grhShopid=" + std::to_string(Session().gIntShopID);
  objCommonDB_.strTableName("mosGoodsRequestHeader");
  if (objCommonDB_.fnReturnField("grhIssuenotegenerated", condition).TrueOrFalse()) {
    Tell("Issue Note Generated,Cannot Modify");
    cmdOK.SetEnabled(false);
  }
  if (objCommonDB_.fnReturnField("grhTransfinished", condition).TrueOrFalse()) {
    if (cmdOK.Enabled()) {
      Tell("Transaction is confirmed as finished,Cannot modify");
      cmdOK.SetEnabled(false);
    }
    chkTransFinished.SetValue(1);
    chkTransFinished.SetEnabled(false);
  }
  const std::string type = objCommonDB_.fnReturnField("grhrequesttype", condition).TextOrEmpty();
  (vb::UCase(type) == "G" ? optgoodreq : optporeq).SetValue(true);
  const bool isComplete = Trap("LoadRequestLines", [this] {
    for (const RequestLine& line : RequestStore(Session(), objCommonDB_).LinesOf(Session().gLngRequestID)) lines_.Append(line);
  });
  if (!isComplete) cmdOK.SetEnabled(false);  // saved, the request would lose the lines that could not be read
}

void frmRequest::Form_Activate() {
  const bool isFirst = firstActivation_;
  firstActivation_ = false;
  if (isFirst) txtRemarks.SetTag(txtRemarks.Text());
  objCommonDB_.strTableName("apackagesettings");
  Session().gBlnAliasEnabled = objCommonDB_.fnReturnField("alias").TrueOrFalse();
  if (Session().gBlnAliasEnabled) {
    objCommonDB_.strTableName("aalias");
    optgoodreq.SetCaption("To " + objCommonDB_.fnReturnField("Alias", "aliasid =2").TextOrEmpty());
  }
  if (isFirst) Session().gObjUserAuditing.SaveInToTag(*this);
}

void frmRequest::Form_QueryUnload(bool& cancel, controls::UnloadMode) {
  if (!cmdOK.Enabled() || !IsChanged()) return;
  const controls::Answer answer = Tell("Save Changes?", controls::kYesNoCancel + controls::kQuestion);
  if (answer == controls::Answer::Cancel) {
    cancel = keepOpen_;
  } else if (answer == controls::Answer::Yes) {
    cmdOK.Click.Fire();
    if (cmdOK.Enabled()) cancel = keepOpen_;
  }
}

bool frmRequest::IsChanged() const {
  return lines_.IsChanged() || vb::Trim(txtRemarks.Text()) != vb::Trim(txtRemarks.Tag());
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
          .links = customerRequests_.Checked()};
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
      if (Session().gStrEntryMode == "N") customerRequests_.UncheckAll();
      customerRequests_.Clear();
    }
  } catch (const vb::RunTimeError&) {
    SetBoxQuietly(!ticked);
    throw;
  }
  sstabGoodsReq.SetTabVisible(kCustomerPage, ticked);
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
}

void frmRequest::lvwrequest_DblClick() {
  (lines_.Count() > 0 ? mnuEdit : mnuAdd).Click.Fire();
}

void frmRequest::lvwrequest_KeyDown(int& keyCode, int) {
  if (keyCode == controls::kKeyF10) {
    (lines_.HasQuantity() ? mnuEdit : mnuAdd).Click.Fire();
  } else if (keyCode == controls::kKeyDelete) {
    mnudel.Click.Fire();
  }
}

void frmRequest::lvwrequest_KeyPress(int& character) {
  if (character == controls::kCharReturn) {
    lvwrequest_DblClick();
  } else if (character == controls::kCharLineFeed) {
    mnuAdd.Click.Fire();
  }
}

void frmRequest::lvwrequest_MouseUp(controls::MouseButton button, int) {
  if (button != controls::kRightButton || !cmdOK.Enabled()) return;
  const bool hasLines = lines_.HasQuantity();
  mnuEdit.SetEnabled(hasLines);
  mnudel.SetEnabled(hasLines);
  PopupMenu(mnuPopup);
}

void frmRequest::lvwrequest_ItemClick(controls::ListItem& line) {
  line.SetSubItemToolTip(kLineQty, vb::Format(vb::Val(line.SubItem(kLineQty)), kQuantityPicture));
}

void frmRequest::mnuAdd_Click() {
  if (!cmdOK.Enabled()) return;
  Session().gStrDetailMode = "N";
  lngCurrentLine = lines_.Count();  // item entry moves it on to each line that it appends
  EnterItems();
}

void frmRequest::mnuEdit_Click() {
  if (!cmdOK.Enabled()) return;
  Session().gStrDetailMode = "E";
  if (lines_.Selected() == 0) return;
  lngCurrentLine = lines_.Selected();
  EnterItems();
}

void frmRequest::mnudel_Click() {
  const int line = lines_.Selected();
  if (!cmdOK.Enabled() || line == 0) return;
  const std::string question = "Are you sure you want to delete \r" + lines_.At(line).itemName;
  if (Tell(question, controls::kYesNo + controls::kQuestion + controls::kDefaultButton2) != controls::Answer::Yes) return;
  lines_.Remove(line);
  lines_.Renumber();
  lines_.MarkChanged();
}

void frmRequest::EnterItems() {
  if (!itemEntry_) itemEntry_ = std::make_shared<frmRequestDetail>(Session(), lines_, lngCurrentLine);
  itemEntry_->Show(this);
  if (IsShown() && lvwrequest.CanFocus()) lvwrequest.SetFocus();
}

}  // namespace goods
