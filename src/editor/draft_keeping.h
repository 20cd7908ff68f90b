#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/controls/form.h"
#include "base/workstation/state_file.h"
#include "src/faces/common_db.h"
#include "src/module/session.h"
#include "src/records/request_draft.h"

namespace goods {

/// The request that the editor opens.
struct OpenedRequest {
  const Request* stored = nullptr;  ///< nothing for a new one
  bool isClosed = false;            ///< can only be looked at
};

/// Keeps what is being edited in a state file of the user's, so that it survives the host program: a file a company, shop and
/// user, and further ones with a number where the same user edits in several programs at once. File errors are raised.
class DraftKeeping {
 public:
  /// `editor` is the form that asks. Both outlive this object.
  DraftKeeping(basGoodsRequest& session, controls::Form& editor) : session_(session), editor_(editor) {}

  /// Looks for a draft of the opened request that a process has left which is no longer there, and asks whether to take it up.
  /// Returns the draft when the user does; it then stays until Discard. A draft that the user does not want is deleted, one that
  /// cannot be read is kept under another name, which a message tells. A draft of a closed request is shown, and stays unless the
  /// user wants it removed. One that was saved before its program ended is deleted.
  std::optional<RequestDraft> OfferLeftBehind(const OpenedRequest& opened, CommonDb& db);

  /// Writes the draft unless it is the one written last. Raises the first error of an editing; further ones are not raised, and
  /// the next change is tried again.
  void Keep(RequestDraft draft);

  /// Notes in the draft, where there is one, as what it is about to be committed, so that it is not offered again when the
  /// program ends after the commit. Raises nothing.
  void MarkSaving(std::int32_t requestId, const std::string& number) noexcept;

  /// Deletes the draft of this editing, where there is one.
  void Discard();
  /// Leaves the draft of this editing, where there is one, for the next opening.
  void LeaveBehind();

 private:
  std::string FileName(int number) const;
  std::unique_ptr<workstation::StateFile> TakeUnusedFile() const;
  enum class Decision { TakeUp, Remove, Leave };
  Decision Decide(const RequestDraft& draft, const OpenedRequest& opened, CommonDb& db);
  Decision DecideOnClosed(const RequestDraft& draft);
  controls::Answer Tell(std::string_view text, int style) { return editor_.MsgBox(text, style, session_.gStrMsgboxCaption); }

  basGoodsRequest& session_;
  controls::Form& editor_;
  std::unique_ptr<workstation::StateFile> file_;  ///< this editing's, from its first change on
  std::optional<RequestDraft> kept_;
  bool hasFailed_ = false;
};

}  // namespace goods
