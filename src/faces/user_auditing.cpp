#include "src/faces/user_auditing.h"

#include "base/ado/connection.h"
#include "base/controls/form.h"

namespace goods {

UserAuditing::UserAuditing(late::Factory& factory) : Face(factory.Create("Audit.clsUserAuditing")) {}

void UserAuditing::OpenObject(const ado::Connection& connection, std::int32_t companyId, std::int32_t shopId, std::int32_t userId,
                              std::int32_t interfaceId, vb::Date time) {
  Component().Call("OpenObject", {connection.Object(), companyId, shopId, userId, interfaceId, time});
}

void UserAuditing::LoggedTime(vb::Date time) {
  Component().Put("LoggedTime", time);
}

void UserAuditing::SaveInToTag(controls::Form& form) {
  Component().Call("SaveInToTag", {form.shared_from_this()});
}

void UserAuditing::SaveUserAuditingInfo(std::string_view requestId, std::string_view requestNo, std::string_view action) {
  Component().Call("SaveUserAuditingInfo", {requestId, requestNo, true, action});
}

void UserAuditing::SaveUserAuditingInfo(std::string_view requestId, std::string_view requestNo, std::string_view mode,
                                        controls::Form& form) {
  late::Value modeByReference(mode);
  Component().Call("SaveUserAuditingInfo",
                   {requestId, requestNo, true, late::Value::ByRef(modeByReference), form.shared_from_this()});
}

}  // namespace goods
