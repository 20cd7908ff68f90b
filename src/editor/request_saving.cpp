#include "src/editor/request_saving.h"

#include <string>

#include "base/vb/date.h"
#include "src/lists/register_row.h"

namespace goods {
namespace {

constexpr int kNoUnlessMeant = controls::kYesNo + controls::kQuestion + controls::kDefaultButton2;

/// A new request takes its id and its number inside the transaction. When the save fails they go back to what they were: the next
/// OK must not look for a number that this one has only tried.
class ProvisionalIdentity {
 public:
  ProvisionalIdentity(std::int32_t& requestId, SavePort& editor, std::string number)
      : requestId_(requestId), editor_(editor), idBefore_(requestId), numberBefore_(std::move(number)) {}
  ~ProvisionalIdentity() {
    if (kept_) return;
    requestId_ = idBefore_;
    editor_.ShowRequestNo(numberBefore_);
  }
  ProvisionalIdentity(const ProvisionalIdentity&) = delete;
  ProvisionalIdentity& operator=(const ProvisionalIdentity&) = delete;
  void Keep() { kept_ = true; }

 private:
  std::int32_t& requestId_;
  SavePort& editor_;
  std::int32_t idBefore_;
  std::string numberBefore_;
  bool kept_ = false;
};

/// Why nobody may change the request any more; empty when it may be changed.
std::string_view ClosedBecause(const StoredHeader& stored) {
  if (stored.issued) return kIssueNoteGenerated;
  if (stored.finished) return kConfirmedFinished;
  return stored.cancelled ? kAlreadyDeleted : "";
}

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
  if (!inUsersWords([&] { return IsDateReadable() && IsProjectRuleKept() && AreDocumentsFree(); })) return false;
  const controls::Hourglass hourglass(editor_.Window());
  for (Outcome outcome = Outcome::Overtaken; outcome != Outcome::Saved;) {
    ado::Transaction transaction = inUsersWords([&] { return ado::Transaction(session_.gAdoCon); });
    outcome = inUsersWords([&] { return Write(transaction, step); });
    if (outcome == Outcome::Refused || (outcome == Outcome::Overtaken && !MaySaveOver())) return false;
  }
  const std::string done = savedAs_.empty() ? savedAs_ : "The request is saved under the number " + savedAs_ + ".";
  UpdateEditedRow(session_, view_, " GRHrequestID=" + std::to_string(session_.gLngRequestID), session_.gLngRequestID, done);
  return true;
}

RequestSaving::Outcome RequestSaving::Write(ado::Transaction& transaction, SaveStep& step) {
  if (!request_.HasLineWithQuantity()) {
    Tell("Atleast one detail needed");
    transaction.Rollback();
    editor_.GoTo(SaveField::Ok);
    return Outcome::Refused;
  }
  if (!IsFinishConfirmed()) {
    transaction.Rollback();
    editor_.GoTo(SaveField::Finished);
    return Outcome::Refused;
  }
  ProvisionalIdentity identity(session_.gLngRequestID, editor_, request_.number);
  if (!IsNew()) {
    if (!UpdateRequest()) {
      transaction.Rollback();
      return Outcome::Overtaken;
    }
  } else if (store_.fnRequestNoExists(request_.number)) {
    // No header and no lines then, but the links are written and the editor closes: the number is another request's already.
    Tell(std::to_string(request_.id) + " already exists");
  } else {
    WriteNewRequest();
  }
  WriteCustomerLinks();
  if (IsNew() && !savedAs_.empty()) editor_.Committing(request_.id, savedAs_);
  step = SaveStep::Committing;
  transaction.Commit();
  identity.Keep();
  return Outcome::Saved;
}

controls::Answer RequestSaving::Tell(std::string_view text, int style) {
  return editor_.Window().MsgBox(text, style, session_.gStrMsgboxCaption);
}

bool RequestSaving::IsDateReadable() {
  if (vb::TryParseDate(request_.date)) return true;
  Tell("Enter a valid request date");
  editor_.GoTo(SaveField::Date);
  return false;
}

bool RequestSaving::IsProjectRuleKept() {
  if (!store_.HasProjectRequest(request_.links) || request_.links.size() < 2) return true;
  editor_.GoTo(SaveField::CustomerRequests);
  Tell(
      "One of the customer requests you selected is a Project Request.\r\n\r\n"
      "You cannot select more than one request when project requests are involved. "
      "Please select only one customer request and try again");
  return false;
}

bool RequestSaving::AreDocumentsFree() {
  std::string taken;
  for (const TakenDocument& document : store_.TakenByOthers(request_.links, IsNew() ? 0 : request_.id)) {
    taken += document.number + " (" + document.requestNo + ")\r\n";
  }
  if (taken.empty()) return true;
  editor_.GoTo(SaveField::CustomerRequests);
  Tell("These documents are in another request already:\r\n\r\n" + taken + "\r\nTake their ticks off and press OK again.");
  return false;
}

bool RequestSaving::IsFinishConfirmed() {
  if (!request_.finished || finishConfirmed_) return true;
  finishConfirmed_ = Tell("You have confirmed the transaction as finished.\r\nCannot modify later; Do you want to continue?",
                          kNoUnlessMeant) == controls::Answer::Yes;
  return finishConfirmed_;
}

bool RequestSaving::MaySaveOver() {
  if (const std::string_view reason = ClosedBecause(stored_); !reason.empty()) {
    editor_.ForbidSaving(reason);
    return false;
  }
  const std::string by = stored_.changedBy.empty() ? "" : " by " + stored_.changedBy;
  const std::string when = stored_.updateTime.TextOrEmpty();
  const std::string question = "Another workstation has changed this request since you opened it" + by +
                               (when.empty() ? "" : ", " + when) + ".\r\nDo you want to save over that change?";
  if (Tell(question, kNoUnlessMeant) != controls::Answer::Yes) {
    editor_.GoTo(SaveField::Ok);
    return false;
  }
  request_.updateTime = UpdateTimeText(stored_.updateTime);
  editor_.TakeAsSeen(request_.updateTime);
  return true;
}

void RequestSaving::WriteNewRequest() {
  request_.id = session_.gLngRequestID = store_.NextId();
  request_.number = store_.fnGenerateRequestNo();
  editor_.ShowRequestNo(request_.number);
  store_.AddHeader(request_);
  session_.gObjUserAuditing.SaveUserAuditingInfo(std::to_string(request_.id), request_.number, session_.gStrEntryMode,
                                                 editor_.Window());
  store_.AddLines(request_);
  store_.SetOrdeRaisedStatus(1, request_.id);
  savedAs_ = request_.number;
}

bool RequestSaving::UpdateRequest() {
  store_.SetOrdeRaisedStatus(0, request_.id);
  const bool isUpdated = store_.UpdateHeader(request_, [this](const StoredHeader& stored) {
    stored_ = stored;
    return ClosedBecause(stored).empty() && UpdateTimeText(stored.updateTime) == request_.updateTime;
  });
  if (!isUpdated) return false;
  store_.ReplaceLines(request_);
  store_.SetOrdeRaisedStatus(1, request_.id);
  savedAs_ = stored_.number;
  return true;
}

void RequestSaving::WriteCustomerLinks() {
  if (session_.gStrEntryMode == "E") store_.DeleteLinks(request_.id);
  store_.AddLinks(request_);
}

}  // namespace goods
