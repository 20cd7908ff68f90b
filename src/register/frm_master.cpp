#include "src/register/frm_master.h"

#include "base/vb/text.h"
#include "src/editor/frm_request.h"
#include "src/lists/grid_search.h"
#include "src/lists/heading_sort.h"
#include "src/lists/list_views.h"
#include "src/lists/register_row.h"
#include "src/printing/frm_print.h"
#include "src/records/request_store.h"
#include "src/register/frm_cancel_reason.h"
#include "src/register/register_settings.h"
#include "src/register/request_cancellation.h"
#include "src/register/user_rights.h"

namespace goods {
namespace {

constexpr int kConfirmDelete = controls::kYesNo | controls::kCritical | controls::kDefaultButton2;

}  // namespace

frmMaster::frmMaster(basGoodsRequest& session) : ModuleForm(session, "frmMaster") {
  On(Loading, "Form_Load", &frmMaster::Form_Load);
  On(Activated, "Form_Activate", &frmMaster::Form_Activate);
  On(KeyDown, "Form_KeyDown", &frmMaster::Form_KeyDown);
  On(Unloading, "Form_Unload", &frmMaster::Form_Unload);
  WireCommands();
  WireGrid();
  WireBrowse();
}

frmMaster::~frmMaster() = default;

void frmMaster::WireCommands() {
  On(cmdnew.Click, "cmdnew_Click", &frmMaster::cmdnew_Click);
  On(CmdEdit.Click, "CmdEdit_Click", &frmMaster::CmdEdit_Click);
  On(CmdDelete.Click, "CmdDelete_Click", &frmMaster::CmdDelete_Click);
  On(Cmdprev.Click, "Cmdprev_Click", &frmMaster::Cmdprev_Click);
  On(CmdClose.Click, "CmdClose_Click", [this] { Unload(); });
  On(mnurefresh.Click, "mnurefresh_Click", &frmMaster::mnurefresh_Click);
}

void frmMaster::WireGrid() {
  On(flexMaster.RowColChange, "flexMaster_RowColChange", &frmMaster::flexMaster_RowColChange);
  On(flexMaster.SelChange, "flexMaster_SelChange", &frmMaster::flexMaster_SelChange);
  On(flexMaster.HeadingClick, "flexMaster_HeadingClick", &frmMaster::flexMaster_HeadingClick);
  On(flexMaster.DblClick, "flexMaster_DblClick", &frmMaster::flexMaster_DblClick);
  On(flexMaster.KeyDown, "flexMaster_KeyDown", &frmMaster::flexMaster_KeyDown);
  On(flexMaster.KeyPress, "flexMaster_KeyPress", &frmMaster::flexMaster_KeyPress);
  On(flexMaster.MouseMove, "flexMaster_MouseMove", &frmMaster::flexMaster_MouseMove);
  On(flexMaster.MouseUp, "flexMaster_MouseUp", &frmMaster::flexMaster_MouseUp);
}

void frmMaster::WireBrowse() {
  On(cboColNames.Click, "cboColNames_Click", &frmMaster::cboColNames_Click);
  On(optAscend.Click, "optAscend_Click", &frmMaster::SortDirection_Click);
  On(optDescend.Click, "optDescend_Click", &frmMaster::SortDirection_Click);
  On(txtsearch.KeyUp, "txtsearch_KeyUp", &frmMaster::txtsearch_KeyUp);
  controls::Control* const moveOnWithEnter[] = {&cboColNames, &cboSearch, &txtsearch, &optAscend, &optDescend};
  for (controls::Control* control : moveOnWithEnter) {
    On(control->KeyPress, control->Name() + "_KeyPress", [this](int& character) { SendTabOnEnter(*this, character); });
  }
}

void frmMaster::Form_Load() {
  basGoodsRequest& session = Session();
  evaluatedRow_ = flexMaster.Row();
  searchAnswer_.Forget();
  cancellationRemarks_.clear();
  session.lineLimit = 0;
  session.gStrUserRights.clear();  // those of the component's previous user
  EnableCommands(false);           // until the rights are read: after an error on the way nothing may be done
  objCommonDB_ = CommonDb(session.services.factory, session.gAdoCon, "ShopCommon.clscommonDB");
  session.gObjFormColor = FormColor(session.services.factory);
  session.gObjFormColor.Applyformcolor(*this);
  OpenUserAuditing(session);
  ReadUserName(session, objCommonDB_);
  session.gDtFromDate = fnPopulateDate();
  ReadPackageSettings(session, objCommonDB_);
  GridPopulate();
  USerRights();
  requests_.ApplySelectionColor();
}

void frmMaster::Form_Unload() {
  if (flexMaster.HasPulledColumns()) fill_.StoreColumnWidths();
}

vb::Date frmMaster::fnPopulateDate() {
  vb::Date fromDate;
  Trap("fnPopulateDate", [&] { fromDate = ReadFromDate(Session(), objCommonDB_); });
  return fromDate;
}

void frmMaster::GridPopulate() {
  view_.gridQuery = RegisterQuery(Session().gIntShopID, Session().gDtFromDate);
  Trap("GridPopulate", [&] {
    fill_.FillRows(view_.gridQuery);
    Trap("SetHeadings", [&] { fill_.SetHeadings(kRegisterTable); });
    requests_.MarkCancelledRequests();
    requests_.SelectWholeRow(1);
  });
}

// Without a trap of its own: an error here ends the load.
void frmMaster::USerRights() {
  if (!ReadUserRights(Session())) return EnableCommands(true);  // nothing restricts this user until a request is judged
  cmdnew.SetEnabled(fnUSerRights("N"));
  CmdEdit.SetEnabled(fnUSerRights("E"));
  CmdDelete.SetEnabled(fnUSerRights("D"));
  Cmdprev.SetEnabled(fnUSerRights("P"));
}

void frmMaster::EnableCommands(bool enabled) {
  for (controls::CommandButton* command : {&cmdnew, &CmdEdit, &CmdDelete, &Cmdprev}) command->SetEnabled(enabled);
}

bool frmMaster::fnUSerRights(std::string_view letter) {
  bool granted = false;
  Trap("fnUSerRights", [&] { granted = HasUserRight(Session(), letter); });
  return granted;
}

void frmMaster::Form_Activate() {
  ShowStatus();
  if (requests_.CurrentCell(kRegisterId).empty()) {
    CmdEdit.SetEnabled(false);
    CmdDelete.SetEnabled(false);
    Cmdprev.SetEnabled(false);
    return;
  }
  // Edit is left as it was on a cancelled request, so that it can be looked at; Delete is not.
  const bool live = requests_.CurrentCell(kRegisterCancelled) == "No";
  if (live) CmdEdit.SetEnabled(fnUSerRights("E"));
  CmdDelete.SetEnabled(live && fnUSerRights("D"));
  Cmdprev.SetEnabled(fnUSerRights("P"));
}

void frmMaster::ShowStatus() {
  lblStatus.SetCaption(requests_.Summary(Session().gDtFromDate));
}

void frmMaster::flexMaster_RowColChange() {
  if (flexMaster.Row() == evaluatedRow_) return;  // a change of column
  evaluatedRow_ = flexMaster.Row();
  // As on activation: Edit is left as it was on a cancelled request.
  const bool cancelled = requests_.CurrentCell(kRegisterCancelled) == "Yes";
  if (!cancelled) CmdEdit.SetEnabled(fnUSerRights("E"));
  CmdDelete.SetEnabled(!cancelled && fnUSerRights("D"));
  Cmdprev.SetEnabled(fnUSerRights("P"));
  requests_.ApplySelectionColor();
}

void frmMaster::flexMaster_SelChange() {
  requests_.ApplySelectionColor();
}

frmRequest& frmMaster::EditorFor(std::string_view mode) {
  basGoodsRequest& session = Session();
  if (!editor_) editor_ = std::make_shared<frmRequest>(session, view_);
  // An opening that failed on its way must not show through in the next one.
  if (editor_->IsLoaded() && !editor_->IsShown()) editor_->Unload();
  session.gStrEntryMode = mode;
  session.gObjUserAuditing.LoggedTime(session.services.workstation.Now());
  if (mode == "E") session.gLngRequestID = requests_.CurrentRequestId();
  return *editor_;
}

void frmMaster::ShowEditor() {
  editor_->Show(this);
  ReturnToList();
  requests_.ApplySelectionColor();
}

void frmMaster::ReturnToList() {
  if (IsShown() && flexMaster.CanFocus()) flexMaster.SetFocus();
}

void frmMaster::cmdnew_Click() {
  OpenNewRequest(0);
}

void frmMaster::OpenNewRequest(std::int32_t repeated) {
  frmRequest& editor = EditorFor("N");
  editor.StartFrom(repeated);
  editor.txtrequestDate.SetText(vb::DateText(Session().gDtProcessDate));
  editor.txtRemarks.SetText("");
  ShowEditor();
}

void frmMaster::RepeatRequest() {
  if (!cmdnew.Enabled()) return;
  if (requests_.IsOnRequest()) {
    OpenNewRequest(requests_.CurrentRequestId());
  } else {
    Tell("No Request No. Selected ");
  }
}

void frmMaster::CmdEdit_Click() {
  if (!requests_.IsOnRequest()) {
    Tell("No Request No. Selected ");
    return;
  }
  frmRequest& editor = EditorFor("E");
  editor.ShowOwnLinks(Session().gLngRequestID);
  if (requests_.CurrentCell(kRegisterCancelled) == "Yes") editor.ForbidSaving(kAlreadyDeleted);
  editor.txtRequestNo.SetText(requests_.CurrentCell(kRegisterNo));
  editor.txtrequestDate.SetText(requests_.CurrentCell(kRegisterDate));
  ShowEditor();
}

void frmMaster::Cmdprev_Click() {
  if (!printDialog_) printDialog_ = std::make_shared<frmPrint>(Session(), view_);
  printDialog_->Show(this);
  ReturnToList();
}

void frmMaster::mnurefresh_Click() {
  if (requests_.IsOnRequest()) RequestStore(Session(), objCommonDB_).Refresh(requests_.CurrentRequestId());
}

void frmMaster::CmdDelete_Click() {
  basGoodsRequest& session = Session();
  const std::string userName = RequestCancellation(session, objCommonDB_).UserName();
  if (RefusesToDelete()) return;
  session.gObjUserAuditing.LoggedTime(session.services.workstation.Now());
  if (!requests_.IsOnRequest()) return;

  const std::string requestNo = requests_.CurrentCell(kRegisterNo);
  if (Tell("Are you sure you want to Delete " + requestNo + " ?", kConfirmDelete) != controls::Answer::Yes) return;
  session.gLngRequestID = requests_.CurrentRequestId();
  const std::string reason = AskReason();
  if (vb::Trim(reason).empty()) return;  // the dialog was torn down, not answered

  if (!MarkRequestCancelled(userName, reason)) return ShowCancelled("");
  // The request is cancelled: the list says so, whatever becomes of the record.
  Trap("CmdDelete_Click",
       [&] { session.gObjUserAuditing.SaveUserAuditingInfo(requests_.CurrentCell(kRegisterId), requestNo, "D"); });
  ShowCancelled("The request " + requestNo + " is cancelled.");
}

bool frmMaster::RefusesToDelete() {
  std::string_view refusal;
  if (requests_.IsOnRequest()) {
    refusal = RequestCancellation(Session(), objCommonDB_).Refusal(requests_.CurrentCell(kRegisterId), EditorAllowsSaving());
  }
  if (refusal.empty() && !requests_.IsOnRow()) refusal = "No Request No Selected ";
  if (refusal.empty() && requests_.CurrentCell(kRegisterCancelled) == "Yes") refusal = kAlreadyDeleted;
  if (!refusal.empty()) Tell(refusal);
  return !refusal.empty();
}

bool frmMaster::EditorAllowsSaving() const {
  // The question alone does not load an editor; one that is not loaded would open with OK enabled.
  return !editor_ || !editor_->IsLoaded() || editor_->cmdOK.Enabled();
}

std::string frmMaster::AskReason() {
  if (!reasonDialog_) reasonDialog_ = std::make_shared<frmcancelreason>(Session());
  Session().gStrCancelReason.clear();
  reasonDialog_->Show(this);
  ReturnToList();
  return Session().gStrCancelReason;
}

// Header and item marks are two steps without a transaction: once the header says cancelled, the request is.
bool frmMaster::MarkRequestCancelled(std::string_view userName, std::string_view reason) {
  const std::int32_t requestId = Session().gLngRequestID;
  RequestCancellation cancellation(Session(), objCommonDB_);
  if (cancellation.MarkHeader(requestId, userName, reason, EditorAllowsSaving())) {
    Trap("RemoveRequestRaisedFromShopItemDetail", [&] { RequestStore(Session(), objCommonDB_).RemoveRequestRaised(requestId); });
  }
  if (!cancellation.LateRefusal().empty()) Tell(cancellation.LateRefusal());
  return cancellation.LateRefusal().empty();
}

void frmMaster::ShowCancelled(std::string_view done) {
  basGoodsRequest& session = Session();
  session.gStrEntryMode = "E";
  UpdateEditedRow(session, view_, " GRHrequestID=" + std::to_string(session.gLngRequestID), session.gLngRequestID, done);
  requests_.MarkCancelledRequests();
  requests_.SelectWholeRow(flexMaster.Row());
  requests_.ApplySelectionColor();
  ShowStatus();
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
  std::string tip = onCell ? flexMaster.TextMatrix(row, column) : std::string();
  if (onCell && column == kRegisterCancelled && requests_.IsCancelled(row)) tip += " - " + CancellationRemark(row);
  flexMaster.SetToolTipText(tip);
}

// Read when the mouse rests on the request for the first time, and not for every request that the register lists.
const std::string& frmMaster::CancellationRemark(long row) {
  const std::int32_t requestId = requests_.RequestIdAt(row);
  const auto [remark, isNew] = cancellationRemarks_.try_emplace(requestId);
  if (isNew) remark->second = RequestCancellation(Session(), objCommonDB_).Remark(requestId);
  return remark->second;
}

void frmMaster::flexMaster_MouseUp(controls::MouseButton button, int) {
  if (button == controls::kRightButton) PopupMenu(mnupopup);
}

void frmMaster::cboColNames_Click() {
  const int entry = cboColNames.ListIndex();
  if (entry < 0) return;
  const controls::Hourglass busy(*this);
  // Ids grow with the date, so their order is the date's, which the date's text would not give.
  const bool byDate = vb::InStrNoCase(cboColNames.List(entry), "date") > 0;
  requests_.Sort(byDate ? static_cast<long>(kRegisterId) : cboColNames.ItemData(entry), optAscend.Value());
}

void frmMaster::SortDirection_Click() {
  cboColNames.SetListIndex(-1);
}

void frmMaster::Form_KeyDown(int& keyCode, int shift) {
  if (keyCode == 'S' && shift == controls::kAlt) {
    keyCode = 0;
    GoToSearch();
  } else if (keyCode == 'R' && shift == controls::kCtrl) {
    keyCode = 0;
    RepeatRequest();
  }
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
  requests_.ApplySelectionColor();
}
}  // namespace goods
