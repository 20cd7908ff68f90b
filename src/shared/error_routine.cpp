#include "src/shared/error_routine.h"

#include <string>

#include "src/shared/common_db.h"

namespace goods {
namespace {

std::string UserNameForReport(basGoodsRequest& session) {
  // A report without the user's name is worth more than no report: the look-up fails when the connection does.
  try {
    CommonDb db(session);
    db.strTableName("LOUSERS where userid=" + std::to_string(session.gIntUserID) +
                    " and shopid = " + std::to_string(session.gIntShopID));
    return db.fnReturnField("username").TextOrEmpty();
  } catch (const vb::RunTimeError&) {
    return {};
  }
}

}  // namespace

void ReportError(basGoodsRequest& session, std::string_view module, std::string_view routine, const vb::RunTimeError& error) {
  // Nothing may leave an error trap; where even reporting fails there is nobody left to tell.
  try {
    const late::ObjectPtr log = session.services.factory.Create("ErrLog.ErrorDetails");
    log->Call("ErrorTrack", {module, UserNameForReport(session), routine, static_cast<std::int32_t>(error.Number()),
                             error.Source(), error.Description(), session.gStrEntryMode, true});
  } catch (const vb::RunTimeError&) {
  }
}

bool Trapped(basGoodsRequest& session, std::string_view module, std::string_view routine, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const vb::RunTimeError& error) {
    ReportError(session, module, routine, error);
    return false;
  }
}

}  // namespace goods
