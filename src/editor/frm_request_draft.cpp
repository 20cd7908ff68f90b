// What is edited is kept in a draft, and taken up again from one.

#include <set>

#include "src/counter/same_again.h"
#include "src/editor/frm_request.h"
#include "src/records/request_store.h"

namespace goods {

void frmRequest::WireDraft() {
  for (controls::TextBox* box : {&txtRequestNo, &txtrequestDate, &txtRemarks}) {
    On(box->LostFocus, box->Name() + "_LostFocus", &frmRequest::KeepDraft);
  }
  On(optgoodreq.Click, "optgoodreq_Click", &frmRequest::KeepDraft);
  On(optporeq.Click, "optporeq_Click", &frmRequest::KeepDraft);
  On(chkTransFinished.Click, "chkTransFinished_Click", &frmRequest::KeepDraft);
}

void frmRequest::OfferDraft() {
  Trap("OfferDraft", [this] { takenUp_ = draft_.OfferLeftBehind({IsNew() ? nullptr : &*loaded_, isClosed_}, objCommonDB_); });
}

void frmRequest::TakeUpDraft(const Request& request) {
  if (IsNew()) {
    txtRequestNo.SetText(request.number);
    txtrequestDate.SetText(request.date);
    (request.type == RequestType::ToGodown ? optgoodreq : optporeq).SetValue(true);
  }
  txtRemarks.SetText(request.remarks);
  chkTransFinished.SetValue(request.finished ? 1 : 0);
  std::string missing = TakeUpLines(request.lines);
  Trap("TakeUpDraft", [&] { missing += TakeUpLinks(request.links); });
  lines_.MarkChanged();
  if (!missing.empty()) Tell("These are no longer there and were left out:" + missing);
}

std::string frmRequest::TakeUpLines(const std::vector<RequestLine>& lines) {
  // Where the database cannot tell, every line is taken: an item that is no longer there is less than work that is lost.
  std::optional<std::set<std::int32_t>> known;
  Trap("TakeUpDraft", [&] { known = RequestStore(Session(), objCommonDB_).KnownItems(lines); });
  std::vector<RequestLine> missing;
  lvwrequest.Clear();
  for (const RequestLine& line : lines) {
    if (!known || known->contains(line.itemId)) {
      lines_.Append(line);
    } else {
      missing.push_back(line);
    }
  }
  return LinesToTell(missing);
}

std::string frmRequest::TakeUpLinks(const std::vector<CustomerLink>& links) {
  const bool hasList = lvwCustomerReq.Count() > 0;
  if (!hasList && links.empty()) return {};
  if (!hasList) customerRequests_.ShowOnOffer();
  SetBoxQuietly(true);
  std::string missing;
  for (const CustomerLink& link : customerRequests_.CheckOnly(links)) missing += "\r\n" + link.number;
  return missing;
}

void frmRequest::KeepDraft() {
  if (!loaded_ || takenUp_ || !cmdOK.Enabled()) return;
  Trap("KeepDraft", [this] {
    if (IsChanged()) {
      draft_.Keep({Entered(), IsNew(), updateTime_, {}});
    } else {
      draft_.Discard();
    }
  });
}

}  // namespace goods
