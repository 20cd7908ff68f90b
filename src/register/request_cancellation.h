#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace goods {

class CommonDb;
struct basGoodsRequest;

/// The rules of cancelling a request. Database errors are raised.
class RequestCancellation {
 public:
  /// Both outlive this object.
  RequestCancellation(basGoodsRequest& session, CommonDb& db) : session_(session), db_(db) {}

  /// The user's name in the shop; "" when there is none.
  std::string UserName();
  /// Why the stored request must not be cancelled; empty when it may be. An issue note does not prevent it where the editor could
  /// not save the request either.
  std::string_view Refusal(std::string_view requestId, bool editorAllowsSaving);
  /// Marks the request's header as cancelled, with the user's name and the reason. False when the shop has no such request, and
  /// when another workstation has closed it since Refusal: LateRefusal() then says why.
  bool MarkHeader(std::int32_t requestId, std::string_view userName, std::string_view reason, bool editorAllowsSaving);
  /// Who cancelled the request and why, "Nora Halvard:Ordered twice"; empty when it is not cancelled.
  std::string Remark(std::int32_t requestId);
  std::string_view LateRefusal() const { return lateRefusal_; }

 private:
  basGoodsRequest& session_;
  CommonDb& db_;
  std::string_view lateRefusal_;
};

}  // namespace goods
