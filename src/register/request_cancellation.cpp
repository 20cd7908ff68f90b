#include "src/register/request_cancellation.h"

#include "base/vb/text.h"
#include "src/records/request_store.h"
#include "src/register/frm_cancel_reason.h"

namespace goods {
namespace {

constexpr std::string_view kFinished = "Transaction is confirmed as finished. Can not delete.";
constexpr std::string_view kIssued = "Issue Note Generated,Cannot Be Delete";
constexpr long kUserNameLength = 20;  // characters of a name that a cancellation remark keeps

}  // namespace

std::string RequestCancellation::UserName() {
  db_.strTableName("loUsers");
  const std::string condition =
      "ShopID=" + std::to_string(session_.gIntShopID) + " and Userid=" + std::to_string(session_.gIntUserID);
  return db_.fnReturnField("UserName", condition).TextOrEmpty();
}

std::string_view RequestCancellation::Refusal(std::string_view requestId, bool editorAllowsSaving) {
  db_.strTableName("mosGoodsRequestHeader");
  const std::string condition =
      "GRHshopID=" + std::to_string(session_.gIntShopID) + " and GRHrequestID=" + std::string(requestId);
  if (db_.fnReturnField("grhTransFinished", condition).TrueOrFalse()) return kFinished;
  if (db_.fnReturnField("GRHIssuenotegenerated", condition).TrueOrFalse() && editorAllowsSaving) return kIssued;
  return {};
}

std::string RequestCancellation::Remark(std::int32_t requestId) {
  db_.strTableName("mosGoodsRequestHeader");
  const std::string condition =
      "GRHshopID=" + std::to_string(session_.gIntShopID) + " and GRHrequestID=" + std::to_string(requestId);
  return db_.fnReturnField("grhcancelRemarks", condition).TextOrEmpty();
}

bool RequestCancellation::MarkHeader(std::int32_t requestId, std::string_view userName, std::string_view reason,
                                     bool editorAllowsSaving) {
  const std::string remark = vb::Left(vb::Trim(userName), kUserNameLength) + ":" + vb::Left(vb::Trim(reason), kReasonLength);
  return RequestStore(session_, db_).Cancel(requestId, remark, [&](const StoredHeader& stored) {
    if (stored.finished) {
      lateRefusal_ = kFinished;
    } else if (stored.issued && editorAllowsSaving) {
      lateRefusal_ = kIssued;
    } else if (stored.cancelled) {
      lateRefusal_ = kAlreadyDeleted;
    }
    return lateRefusal_.empty();
  });
}

}  // namespace goods
