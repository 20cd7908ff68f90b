#pragma once

#include <cstdint>
#include <string>

#include "src/editor/customer_requests.h"
#include "src/editor/frm_request.h"
#include "src/editor/save_errors.h"
#include "src/faces/common_db.h"
#include "src/lists/register_view.h"
#include "src/module/session.h"

namespace goods {

/// Writes what the editor shows in one transaction on the host's connection: header, lines, request-raised flags and
/// customer-document links together or not at all. Reads the editor, tells the user what it refuses, and leaves closing to it.
class RequestSaving {
 public:
  /// All outlive this object, which lives for one save.
  RequestSaving(basGoodsRequest& session, frmRequest& editor, CustomerRequests& customerRequests, CommonDb& db,
                RegisterView& view)
      : session_(session), editor_(editor), customerRequests_(customerRequests), db_(db), view_(view) {}

  /// Checks, writes and commits, and brings the register's row up to date. False is a refusal that the user has been told of,
  /// with the focus where it can be mended. Any error is raised. In both cases database and editor are as they were before.
  bool Save();

 private:
  bool IsNew() const { return session_.gStrEntryMode == "N"; }
  /// What happens between begin and commit, in its order. False is a refusal; the transaction is then rolled back.
  bool Write(ado::Transaction& transaction, SaveStep& step);
  controls::Answer Tell(std::string_view text, int style = controls::kInformation);

  bool IsDateReadable();
  bool IsProjectRuleKept();
  bool IsFinishConfirmed();

  void WriteNewRequest();
  void AddHeader(const std::string& userName);
  void UpdateRequest(std::int32_t requestId);
  void UpdateHeader(std::int32_t requestId, const std::string& userName);
  void AddDetails(const std::string& source);
  void SetOrdeRaisedStatus(std::int16_t flag, std::int32_t requestId);
  void WriteCustomerLinks();
  std::string UserName(const std::string& condition);

  basGoodsRequest& session_;
  frmRequest& editor_;
  CustomerRequests& customerRequests_;
  CommonDb& db_;
  RegisterView& view_;
};

}  // namespace goods
