#pragma once

#include <string>
#include <string_view>

#include "src/editor/save_errors.h"
#include "src/editor/save_port.h"
#include "src/lists/register_view.h"
#include "src/module/session.h"
#include "src/records/request_store.h"

namespace goods {

/// Writes an entered request in one transaction on the host's connection: header, lines, request-raised flags and
/// customer-document links together or not at all. Tells the user what it refuses, and leaves closing to the editor.
class RequestSaving {
 public:
  /// All but the request outlive this object, which lives for one save.
  RequestSaving(basGoodsRequest& session, Request entered, SavePort& editor, CommonDb& db, RegisterView& view)
      : session_(session), request_(std::move(entered)), editor_(editor), store_(session, db), view_(view) {}

  /// Checks, writes and commits, and brings the register's row up to date. False is a refusal whose message has been shown,
  /// with the focus where it can be mended; where nothing can, the editor saves no more. Any error is raised. In both cases
  /// database and editor are as they were before.
  bool Save();

 private:
  bool IsNew() const { return session_.gStrEntryMode == "N"; }
  enum class Outcome { Saved, Refused, Overtaken };
  /// What happens between begin and commit, in its order. The transaction is rolled back unless the request is saved.
  Outcome Write(ado::Transaction& transaction, SaveStep& step);
  controls::Answer Tell(std::string_view text, int style = controls::kInformation);

  bool IsDateReadable();
  bool IsProjectRuleKept();
  bool AreDocumentsFree();
  bool IsFinishConfirmed();
  /// After another workstation wrote the request while it was edited: tells why it can be saved no more, or asks whether to save
  /// over that work. Outside the transaction, so that nobody waits for this user.
  bool MaySaveOver();

  void WriteNewRequest();
  /// False, with nothing but flags written, when the stored request is not the one that was edited.
  bool UpdateRequest();
  void WriteCustomerLinks();

  basGoodsRequest& session_;
  Request request_;
  SavePort& editor_;
  RequestStore store_;
  RegisterView& view_;
  StoredHeader stored_;  ///< of an edited request, as it was before this save
  bool finishConfirmed_ = false;
  std::string savedAs_;  ///< the request's number once its rows are written
};

}  // namespace goods
