#include "src/module/error_routine.h"

#include <exception>
#include <string>
#include <utility>

#include "src/faces/common_db.h"
#include "src/faces/error_log.h"

namespace goods {
namespace {

std::string UserNameForReport(basGoodsRequest& session) {
  // A report without the user's name is worth more than no report: the look-up fails when the connection does.
  try {
    CommonDb db(session.services.factory, session.gAdoCon);
    db.strTableName("LOUSERS where userid=" + std::to_string(session.gIntUserID) +
                    " and shopid = " + std::to_string(session.gIntShopID));
    return db.fnReturnField("username").TextOrEmpty();
  } catch (const std::exception&) {
    return {};
  }
}

/// The component's own message, for a shop whose error component is missing or fails.
void TellInItsPlace(basGoodsRequest& session, std::string_view module, std::string_view routine, const vb::RunTimeError& error) {
  std::string text = error.Description();
  text.append("\n(").append(module).append(routine).append(", ").append(std::to_string(error.Number())).append(")");
  controls::Desktop& desktop = session.services.desktop;
  const std::string& caption = session.gStrMsgboxCaption;
  desktop.MsgBox(desktop.ActiveForm(), {std::move(text), controls::kExclamation, caption.empty() ? "Error" : caption});
}

}  // namespace

void ReportError(basGoodsRequest& session, std::string_view module, std::string_view routine, const vb::RunTimeError& error) {
  // Nothing may leave an error trap.
  try {
    ErrorLog log(session.services.factory);
    log.ErrorTrack(module, UserNameForReport(session), routine, error, session.gStrEntryMode);
  } catch (const std::exception&) {
    TellInItsPlace(session, module, routine, error);
  }
}

bool Trapped(basGoodsRequest& session, std::string_view module, std::string_view routine, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const vb::RunTimeError& error) {
    ReportError(session, module, routine, error);
    return false;
  } catch (const std::exception& error) {
    ReportError(session, module, routine, vb::RunTimeError(vb::kInternalError, error.what()));
    return false;
  }
}

}  // namespace goods
