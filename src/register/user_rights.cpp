#include "src/register/user_rights.h"

#include <string>

#include "base/vb/text.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string RightsQuery(const basGoodsRequest& session) {
  return "select functionrights from louserrights where userid = " + std::to_string(session.gIntUserID) +
         " and interfaceid = " + std::to_string(session.gLngInterfaceID) +
         " and companyid = " + std::to_string(session.gIntCompanyID);
}

}  // namespace

bool ReadUserRights(basGoodsRequest& session) {
  const auto read = [&](ado::Recordset& rows) {
    const bool found = rows.RecordCount() > 0;
    if (found) session.gStrUserRights = rows.Field("FunctionRights").TextOrEmpty();  // null rights are empty rights
    return found;
  };
  return ReadQuery(session, RightsQuery(session), read, ado::kKeyset, ado::kOptimistic);
}

bool HasUserRight(basGoodsRequest& session, std::string_view letter) {
  std::string& rights = session.gStrUserRights;
  rights = vb::UCase(vb::Trim(rights));
  return rights != "ADMIN" && vb::InStrNoCase(rights, letter) > 0;
}

}  // namespace goods
