#include "src/editor/draft_keeping.h"

#include <algorithm>
#include <utility>

#include "base/vb/error.h"
#include "base/vb/file_error.h"
#include "base/vb/text.h"
#include "src/counter/same_again.h"
#include "src/records/request_store.h"

namespace goods {
namespace {

constexpr int kMaxFiles = 20;  // of one user: open in several programs, or left by programs that ended

/// Whether nothing of it is unsaved: the program ended between the commit and the draft's removal.
bool IsSaved(const RequestDraft& draft, const Request& stored) {
  const Request& request = draft.request;
  const auto sameLink = [](const CustomerLink& a, const CustomerLink& b) { return a.kind == b.kind && a.id == b.id; };
  return request.lines == stored.lines && request.finished == stored.finished &&
         vb::Trim(request.remarks) == vb::Trim(stored.remarks) &&
         std::equal(request.links.begin(), request.links.end(), stored.links.begin(), stored.links.end(), sameLink);
}

}  // namespace

std::string DraftKeeping::FileName(int number) const {
  std::string name = "request-draft-" + std::to_string(session_.gIntCompanyID) + "-" + std::to_string(session_.gIntShopID) + "-" +
                     std::to_string(session_.gIntUserID);
  if (number > 1) name += "-no" + std::to_string(number);
  return name + ".txt";
}

std::optional<RequestDraft> DraftKeeping::OfferLeftBehind(const OpenedRequest& opened, CommonDb& db) {
  workstation::Workstation& workstation = session_.services.workstation;
  for (int number = 1; number <= kMaxFiles; ++number) {
    const std::string name = FileName(number);
    if (!workstation.StateFileExists(name)) continue;
    std::unique_ptr<workstation::StateFile> file = workstation.TakeStateFile(name);
    if (!file) continue;  // of a process that is there: somebody edits it
    const std::optional<std::string> text = file->Read();
    if (!text) continue;
    std::optional<RequestDraft> draft = ParseDraft(*text);
    if (!draft) {
      const std::string path = file->SetAside();
      Tell("An unsaved request was left behind that cannot be read. It is kept in the file\r\n" + path, controls::kExclamation);
      continue;
    }
    const bool belongsHere = opened.stored ? !draft->isNew && draft->request.id == opened.stored->id : draft->isNew;
    if (!belongsHere) continue;
    const Decision decision = Decide(*draft, opened, db);
    if (decision == Decision::Remove) file->Remove();
    if (decision != Decision::TakeUp) continue;
    file_ = std::move(file);
    kept_ = draft;
    return draft;
  }
  return std::nullopt;
}

DraftKeeping::Decision DraftKeeping::Decide(const RequestDraft& draft, const OpenedRequest& opened, CommonDb& db) {
  if (opened.stored && IsSaved(draft, *opened.stored)) return Decision::Remove;
  if (opened.isClosed) return DecideOnClosed(draft);
  if (draft.savingId && RequestStore(session_, db).IsStored(draft.savingId, draft.savingNumber, draft.request.lines)) {
    Tell("The request that was being saved when the program ended is saved under the number " + draft.savingNumber + ".",
         controls::kInformation);
    return Decision::Remove;
  }
  const std::string question = "An unsaved request of " + vb::DateText(draft.savedAt) + " with " +
                               std::to_string(draft.request.lines.size()) + " lines was left behind. Take it up again?";
  const bool wanted = Tell(question, controls::kYesNo + controls::kQuestion) == controls::Answer::Yes;
  return wanted ? Decision::TakeUp : Decision::Remove;
}

DraftKeeping::Decision DraftKeeping::DecideOnClosed(const RequestDraft& draft) {
  std::string question = "An unsaved change of this request of " + vb::DateText(draft.savedAt) +
                         " was left behind. It can be saved no more:\r\n" + LinesToTell(draft.request.lines);
  if (!draft.request.remarks.empty()) question += "\r\n" + draft.request.remarks;
  question += "\r\n\r\nDo you want to remove it?";
  const int style = controls::kYesNo + controls::kQuestion + controls::kDefaultButton2;
  return Tell(question, style) == controls::Answer::Yes ? Decision::Remove : Decision::Leave;
}

std::unique_ptr<workstation::StateFile> DraftKeeping::TakeUnusedFile() const {
  workstation::Workstation& workstation = session_.services.workstation;
  for (int number = 1; number <= kMaxFiles; ++number) {
    const std::string name = FileName(number);
    if (workstation.StateFileExists(name)) continue;  // another draft, in use or waiting for its request
    std::unique_ptr<workstation::StateFile> file = workstation.TakeStateFile(name);
    // Between the two another process may have written and left one.
    if (file && !workstation.StateFileExists(name)) return file;
  }
  vb::RaiseFileError(vb::kPathFileAccess, FileName(kMaxFiles));
}

void DraftKeeping::Keep(RequestDraft draft) {
  if (kept_ && kept_->request == draft.request) return;
  try {
    if (!file_) file_ = TakeUnusedFile();
    draft.savedAt = session_.services.workstation.Now();
    file_->Replace(DraftText(draft));
    kept_ = std::move(draft);
  } catch (const vb::RunTimeError&) {
    if (!std::exchange(hasFailed_, true)) throw;
  }
}

void DraftKeeping::MarkSaving(std::int32_t requestId, const std::string& number) noexcept {
  if (!file_ || !kept_) return;
  try {
    RequestDraft draft = *kept_;
    draft.savingId = requestId;
    draft.savingNumber = number;
    file_->Replace(DraftText(draft));
  } catch (const std::exception&) {
    // Nobody is asked inside the transaction; without the note the request may be offered although it is saved.
  }
}

void DraftKeeping::Discard() {
  const std::unique_ptr<workstation::StateFile> file = std::move(file_);
  LeaveBehind();
  if (file) file->Remove();
}

void DraftKeeping::LeaveBehind() {
  file_.reset();
  kept_.reset();
  hasFailed_ = false;
}

}  // namespace goods
