#include "src/editor/draft_keeping.h"

#include <utility>

#include "base/vb/error.h"
#include "base/vb/file_error.h"

namespace goods {
namespace {

constexpr int kMaxFiles = 20;  // of one user: open in several programs, or left by programs that ended

}  // namespace

std::string DraftKeeping::FileName(int number) const {
  std::string name = "request-draft-" + std::to_string(session_.gIntCompanyID) + "-" + std::to_string(session_.gIntShopID) + "-" +
                     std::to_string(session_.gIntUserID);
  if (number > 1) name += "-no" + std::to_string(number);
  return name + ".txt";
}

std::optional<RequestDraft> DraftKeeping::OfferLeftBehind(std::optional<std::int32_t> requestId) {
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
      editor_.MsgBox("An unsaved request was left behind that cannot be read. It is kept in the file\r\n" + path,
                     controls::kExclamation, session_.gStrMsgboxCaption);
      continue;
    }
    const bool belongsHere = requestId ? !draft->isNew && draft->request.id == *requestId : draft->isNew;
    if (!belongsHere) continue;
    if (!WantsToTakeUp(*draft)) {
      file->Remove();
      continue;
    }
    file_ = std::move(file);
    kept_ = draft->request;
    return draft;
  }
  return std::nullopt;
}

bool DraftKeeping::WantsToTakeUp(const RequestDraft& draft) {
  const std::string question = "An unsaved request of " + vb::DateText(draft.savedAt) + " with " +
                               std::to_string(draft.request.lines.size()) + " lines was left behind. Take it up again?";
  return editor_.MsgBox(question, controls::kYesNo + controls::kQuestion, session_.gStrMsgboxCaption) == controls::Answer::Yes;
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
  if (kept_ == draft.request) return;
  try {
    if (!file_) file_ = TakeUnusedFile();
    draft.savedAt = session_.services.workstation.Now();
    file_->Replace(DraftText(draft));
    kept_ = std::move(draft.request);
  } catch (const vb::RunTimeError&) {
    if (!std::exchange(hasFailed_, true)) throw;
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
