#include "src/faces/user_auditing.h"

#include "base/vb/error.h"

namespace goods::auditing {
namespace {

late::Object& Helper(basGoodsRequest& session) {
  if (!session.gObjUserAuditing) vb::Raise(vb::kObjectNotSet);
  return *session.gObjUserAuditing;
}

}  // namespace

void Open(basGoodsRequest& session) {
  session.gObjUserAuditing = session.services.factory.Create("Audit.clsUserAuditing");
  session.gObjUserAuditing->Call("OpenObject", {session.gAdoCon.Object(), session.gIntCompanyID, session.gIntShopID,
                                                session.gIntUserID, session.gLngInterfaceID, session.services.workstation.Now()});
}

void StampLoggedTime(basGoodsRequest& session) {
  Helper(session).Put("LoggedTime", session.services.workstation.Now());
}

void SaveInToTag(basGoodsRequest& session, controls::Form& form) {
  Helper(session).Call("SaveInToTag", {form.shared_from_this()});
}

void SaveAction(basGoodsRequest& session, std::string_view requestId, std::string_view requestNo, std::string_view action) {
  Helper(session).Call("SaveUserAuditingInfo", {requestId, requestNo, true, action});
}

void SaveEntry(basGoodsRequest& session, std::int32_t requestId, std::string_view requestNo, controls::Form& form) {
  late::Value mode(session.gStrEntryMode);
  Helper(session).Call("SaveUserAuditingInfo",
                       {std::to_string(requestId), requestNo, true, late::Value::ByRef(mode), form.shared_from_this()});
}

}  // namespace goods::auditing
