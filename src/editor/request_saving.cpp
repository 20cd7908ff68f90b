#include "src/editor/request_saving.h"

#include <vector>

#include "base/vb/date.h"
#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/faces/user_auditing.h"
#include "src/lists/list_views.h"
#include "src/lists/register_row.h"
#include "src/records/query_rows.h"
#include "src/records/request_lines.h"
#include "src/records/request_numbering.h"

namespace goods {
namespace {

std::string HeaderQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestHeader where grhrequestid=" + std::to_string(requestId) +
         " and grhshopid=" + std::to_string(shopId);
}

std::string UpdateTimeStatement(std::int32_t requestId, std::int32_t shopId) {
  return "Update mosGoodsRequestHeader set updatetime=getdate() where grhrequestid=" + std::to_string(requestId) +
         "  and grhshopid=" + std::to_string(shopId);
}

std::string DeleteDetailsStatement(std::int32_t requestId, std::int32_t shopId) {
  return "delete mosGoodsRequestdetail where grdrequestid=" + std::to_string(requestId) +
         " and grdshopid=" + std::to_string(shopId);
}

std::string ShopDetailsQuery(std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where GRDshopID=" + std::to_string(shopId);
}

std::string RequestDetailsQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where grdrequestid=" + std::to_string(requestId) +
         " and GRDshopID=" + std::to_string(shopId);
}

std::string StoredDetailsQuery(std::int32_t requestId) {
  return "select * from mosGoodsRequestDetail where GRDrequestID = " + std::to_string(requestId);
}

std::string DeleteLinksStatement(std::int32_t requestId, std::int32_t companyId, std::int32_t shopId) {
  return "delete from mosRequestInvDetail where reqdid = " + std::to_string(requestId) +
         " and reqcompanyid=" + std::to_string(companyId) + " and reqinvdshopid=" + std::to_string(shopId);
}

/// A recordset for adding rows, which a batch can only collect on the client. The rows that its query names are of no interest
/// and may be millions: with a limit of one row no more is fetched at opening.
ado::Recordset OpenForAdding(basGoodsRequest& session, std::string_view query, ado::LockType lock) {
  ado::Recordset rows = ado::Recordset::Create(session.services.factory);
  rows.SetCursorLocation(ado::kUseClient);
  rows.SetMaxRecords(1);
  rows.Open(query, session.gAdoCon, ado::kStatic, lock);
  return rows;
}

late::ArrayPtr Names(std::initializer_list<const char*> columns) {
  return late::Array::List(std::vector<late::Value>(columns.begin(), columns.end()));
}

/// Column 4 of a line or column 2 of a document as a number.
std::int32_t IdOf(const std::string& text) {
  return vb::CLng(vb::Val(text));
}

/// A new request takes its id and its number inside the transaction. When the save fails they go back to what they were: the next
/// OK must not look for a number that this one has only tried.
class ProvisionalIdentity {
 public:
  ProvisionalIdentity(std::int32_t& requestId, controls::TextBox& txtRequestNo)
      : requestId_(requestId), txtRequestNo_(txtRequestNo), idBefore_(requestId), numberBefore_(txtRequestNo.Text()) {}
  ~ProvisionalIdentity() {
    if (kept_) return;
    requestId_ = idBefore_;
    txtRequestNo_.SetText(numberBefore_);
  }
  ProvisionalIdentity(const ProvisionalIdentity&) = delete;
  ProvisionalIdentity& operator=(const ProvisionalIdentity&) = delete;
  void Keep() { kept_ = true; }

 private:
  std::int32_t& requestId_;
  controls::TextBox& txtRequestNo_;
  std::int32_t idBefore_;
  std::string numberBefore_;
  bool kept_ = false;
};

}  // namespace

bool RequestSaving::Save() {
  SaveStep step = SaveStep::Writing;
  const auto inUsersWords = [&](auto work) {
    try {
      return work();
    } catch (const vb::RunTimeError& error) {
      throw InUsersWords(session_.gAdoCon, error, step);
    }
  };
  if (!inUsersWords([&] { return IsDateReadable() && IsProjectRuleKept(); })) return false;
  const controls::Hourglass hourglass(editor_);
  ado::Transaction transaction = inUsersWords([&] { return ado::Transaction(session_.gAdoCon); });
  if (!inUsersWords([&] { return Write(transaction, step); })) return false;
  UpdateEditedRow(session_, view_, " GRHrequestID=" + std::to_string(session_.gLngRequestID), session_.gLngRequestID);
  return true;
}

bool RequestSaving::Write(ado::Transaction& transaction, SaveStep& step) {
  if (!RequestLines(editor_.lvwrequest).HasQuantity()) {
    Tell("Atleast one detail needed");
    transaction.Rollback();
    editor_.cmdOK.SetFocus();
    return false;
  }
  if (!IsFinishConfirmed()) {
    transaction.Rollback();
    editor_.chkTransFinished.SetFocus();
    return false;
  }
  ProvisionalIdentity identity(session_.gLngRequestID, editor_.txtRequestNo);
  if (!IsNew()) {
    SetOrdeRaisedStatus(0, session_.gLngRequestID);
    UpdateRequest(session_.gLngRequestID);
    SetOrdeRaisedStatus(1, session_.gLngRequestID);
  } else if (fnRequestNoExists(session_, editor_.txtRequestNo)) {
    // No header and no lines then, but the links are written and the editor closes: the number is somebody's request already.
    Tell(std::to_string(session_.gLngRequestID) + " already exists");
  } else {
    WriteNewRequest();
  }
  WriteCustomerLinks();
  step = SaveStep::Committing;
  transaction.Commit();
  identity.Keep();
  return true;
}

controls::Answer RequestSaving::Tell(std::string_view text, int style) {
  return editor_.MsgBox(text, style, session_.gStrMsgboxCaption);
}

bool RequestSaving::IsDateReadable() {
  if (vb::TryParseDate(editor_.txtrequestDate.Text())) return true;
  Tell("Enter a valid request date");
  editor_.txtrequestDate.SetFocus();
  return false;
}

bool RequestSaving::IsProjectRuleKept() {
  if (!customerRequests_.IsProjectRequestChecked() || CountCheckedItems(editor_.lvwCustomerReq) < 2) return true;
  editor_.sstabGoodsReq.SetTab(frmRequest::kCustomerPage);
  editor_.lvwCustomerReq.SetFocus();
  Tell(
      "One of the customer requests you selected is a Project Request.\r\n\r\n"
      "You cannot select more than one request when project requests are involved. "
      "Please select only one customer request and try again");
  return false;
}

bool RequestSaving::IsFinishConfirmed() {
  if (!editor_.chkTransFinished.IsChecked()) return true;
  return Tell("You have confirmed the transaction as finished.\r\nCannot modify later; Do you want to continue?",
              controls::kYesNo + controls::kQuestion + controls::kDefaultButton2) == controls::Answer::Yes;
}

void RequestSaving::WriteNewRequest() {
  db_.strTableName("mosGoodsRequestHeader where grhshopid = " + std::to_string(session_.gIntShopID));
  session_.gLngRequestID = db_.fnGetNextMaxNo("grhrequestid");
  fnGenerateRequestNo(session_, editor_.txtRequestNo);
  AddHeader(std::string(vb::Trim(UserName("Userid = " + std::to_string(session_.gIntUserID)))));
  auditing::SaveEntry(session_, session_.gLngRequestID, editor_.txtRequestNo.Text(), editor_);
  AddDetails(ShopDetailsQuery(session_.gIntShopID));
  SetOrdeRaisedStatus(1, session_.gLngRequestID);
}

void RequestSaving::AddHeader(const std::string& userName) {
  ado::Recordset header = OpenForAdding(session_, "select * from mosGoodsRequestHeader", ado::kOptimistic);
  const late::Value serverTime = ExecuteForValue(session_, "select CURRENT_TIMESTAMP");
  header.AddNew(Names({"grhrequestid", "grhrequestno", "grhrequestdate", "grhshopid", "grhremarks", "grhrecaddUser",
                       "grhTransFinished", "grhNoofDetails", "GRHrequestTime", "grhhqrequestgenerated", "grhrequesttype"}),
                {session_.gLngRequestID, vb::Trim(editor_.txtRequestNo.Text()),
                 vb::FormatDate(vb::ParseDate(editor_.txtrequestDate.Text()), "yyyy/mm/dd"), session_.gIntShopID,
                 vb::Trim(editor_.txtRemarks.Text()), userName, editor_.chkTransFinished.Value(), editor_.lvwrequest.Count(),
                 serverTime, 0, editor_.optgoodreq.Value() ? "G" : "P"});
  header.Close();
}

void RequestSaving::UpdateRequest(std::int32_t requestId) {
  UpdateHeader(requestId,
               UserName("ShopID=" + std::to_string(session_.gIntShopID) + " and Userid=" + std::to_string(session_.gIntUserID)));
  session_.gAdoCon.ExecuteNoRecords(UpdateTimeStatement(requestId, session_.gIntShopID));
  session_.gAdoCon.ExecuteNoRecords(DeleteDetailsStatement(requestId, session_.gIntShopID));
  AddDetails(RequestDetailsQuery(requestId, session_.gIntShopID));
}

void RequestSaving::UpdateHeader(std::int32_t requestId, const std::string& userName) {
  ado::Recordset header = ado::Recordset::Create(session_.services.factory);
  header.SetCursorLocation(ado::kUseServer);  // a host's client-side cursors miss the row when a trigger counts others
  header.Open(HeaderQuery(requestId, session_.gIntShopID), session_.gAdoCon, ado::kKeyset, ado::kOptimistic);
  header.SetField("grhremarks", vb::Trim(editor_.txtRemarks.Text()));
  header.SetField("grhrecmoduser", userName);
  header.SetField("grhTransFinished", editor_.chkTransFinished.Value());
  header.SetField("grhNoofDetails", editor_.lvwrequest.Count());
  header.Update();
  header.Close();
}

void RequestSaving::AddDetails(const std::string& source) {
  db_.strTableName("mosGoodsRequestDetail");
  ado::Recordset details = OpenForAdding(session_, source, ado::kBatchOptimistic);
  const late::ArrayPtr names =
      Names({"GRDDetailid", "GRDshopID", "GRDrequestID", "GRDitemID", "grdreqcomments", "GRDgoodQty", "grdexpectremarks"});
  const late::Value remarks = editor_.txtRemarks.Text();
  const int count = editor_.lvwrequest.Count();
  for (int number = 1; number <= count; ++number) {
    const controls::ListItem& line = editor_.lvwrequest.Item(number);
    details.AddNew(names,
                   {vb::CInt(static_cast<double>(number)), session_.gIntShopID, session_.gLngRequestID,
                    IdOf(line.SubItem(kLineItemId)), line.SubItem(kLineRemarks), vb::Val(line.SubItem(kLineQty)), remarks});
  }
  details.UpdateBatch();
  details.CloseIfOpen();
}

void RequestSaving::SetOrdeRaisedStatus(std::int16_t flag, std::int32_t requestId) {
  db_.strTableName("aShopItemDetail");
  std::vector<std::int32_t> itemIds;
  {
    ado::Recordset details = ado::Recordset::Create(session_.services.factory);
    details.Open(StoredDetailsQuery(requestId), session_.gAdoCon, ado::kForwardOnly, ado::kReadOnly);
    if (!details.Eof()) {
      std::size_t itemId = 0;
      while (!vb::EqualNoCase(details.FieldName(static_cast<int>(itemId)), "GRDitemID")) ++itemId;
      ado::ForEachRow(
          details, [&](const late::Array& block, std::size_t record) { itemIds.push_back(block.At(itemId, record).ToInt32()); });
    }
    details.Close();
  }
  // The item's flag changes in every shop.
  for (const std::int32_t itemId : itemIds) {
    db_.fnUpdateSelectedRecord("Itemid = " + std::to_string(itemId), "RequestRaised", flag);
  }
}

void RequestSaving::WriteCustomerLinks() {
  if (session_.gStrEntryMode == "E") {
    session_.gAdoCon.ExecuteNoRecords(DeleteLinksStatement(session_.gLngRequestID, session_.gIntCompanyID, session_.gIntShopID));
  }
  ado::Recordset links = OpenForAdding(session_, "select * from mosRequestInvDetail", ado::kOptimistic);
  const late::ArrayPtr invoiceNames =
      Names({"reqcompanyid", "reqdid", "reqddetailid", "reqinvdshopid", "reqinvdinvoiceid", "reqReexportID"});
  const late::ArrayPtr reexportNames =
      Names({"reqcompanyid", "reqdid", "reqddetailid", "reqinvdshopid", "reqReexportID", "reqinvdinvoiceid"});
  for (int position = 1; position <= editor_.lvwCustomerReq.Count(); ++position) {
    const controls::ListItem& document = editor_.lvwCustomerReq.Item(position);
    if (!document.Checked()) continue;
    links.AddNew(CustomerRequests::IsInvoice(document) ? invoiceNames : reexportNames,
                 {session_.gIntCompanyID, session_.gLngRequestID, vb::CInt(static_cast<double>(position)), session_.gIntShopID,
                  CustomerRequests::DocumentId(document), late::Null{}});
  }
  links.Close();
}

std::string RequestSaving::UserName(const std::string& condition) {
  db_.strTableName("aUsers");
  return db_.fnReturnField("UserName", condition).TextOrEmpty();
}

}  // namespace goods
