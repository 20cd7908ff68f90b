#pragma once

#include <string_view>

#include "base/controls/form.h"
#include "src/module/session.h"

namespace goods {

/// Face over the session's auditing helper. Each routine is error 91 before the register's load created it.
namespace auditing {

/// Creates the helper into gObjUserAuditing and opens it for this component; error 429 when it is not registered.
void Open(basGoodsRequest& session);
/// The action that begins now is the one a later record carries the time of.
void StampLoggedTime(basGoodsRequest& session);
/// Keeps the controls' present values in their tags.
void SaveInToTag(basGoodsRequest& session, controls::Form& form);
/// One record for an action without a form: the request's id and number, and the action's letter.
void SaveAction(basGoodsRequest& session, std::string_view requestId, std::string_view requestNo, std::string_view action);
/// One record for an entry made in a form; the mode travels by reference.
void SaveEntry(basGoodsRequest& session, std::int32_t requestId, std::string_view requestNo, controls::Form& form);

}  // namespace auditing
}  // namespace goods
