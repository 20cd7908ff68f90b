#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/controls/form.h"
#include "base/workstation/state_file.h"
#include "src/module/session.h"
#include "src/records/request_draft.h"

namespace goods {

/// Keeps what is being edited in a state file of the user's, so that it survives the host program: a file a company, shop and
/// user, and further ones with a number where the same user edits in several programs at once. File errors are raised.
class DraftKeeping {
 public:
  /// `editor` is the form that asks. Both outlive this object.
  DraftKeeping(basGoodsRequest& session, controls::Form& editor) : session_(session), editor_(editor) {}

  /// Looks for a draft of the stored request, or of a new one where `requestId` is nothing, that a process has left which is no
  /// longer there, and asks whether to take it up. Returns the draft when the user does; it then stays until Discard. A draft
  /// that the user does not want is deleted, one that cannot be read is kept under another name, which a message tells.
  std::optional<RequestDraft> OfferLeftBehind(std::optional<std::int32_t> requestId);

  /// Writes the draft unless it is the one written last. Raises the first error of an editing; further ones are not raised, and
  /// the next change is tried again.
  void Keep(RequestDraft draft);

  /// Deletes the draft of this editing, where there is one.
  void Discard();
  /// Leaves the draft of this editing, where there is one, for the next opening.
  void LeaveBehind();

 private:
  std::string FileName(int number) const;
  std::unique_ptr<workstation::StateFile> TakeUnusedFile() const;
  bool WantsToTakeUp(const RequestDraft& draft);

  basGoodsRequest& session_;
  controls::Form& editor_;
  std::unique_ptr<workstation::StateFile> file_;  ///< this editing's, from its first change on
  std::optional<Request> kept_;
  bool hasFailed_ = false;
};

}  // namespace goods
