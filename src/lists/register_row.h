#pragma once

#include <string_view>

#include "src/lists/register_view.h"
#include "src/module/session.h"

namespace goods {

/// Brings the register's row of one request up to date from the database: a new row in mode other than "E" (the placeholder row
/// is filled in place), the existing row with that id in mode "E". `condition` is " GRHrequestID=" and the id. Changes nothing
/// when the register's query no longer lists the request. Errors are reported, not raised; `done` then begins the description: it
/// says what has been stored before, which nobody shall take for failed.
void UpdateEditedRow(basGoodsRequest& session, RegisterView& view, std::string_view condition, std::int32_t requestId,
                     std::string_view done = {});

/// Shows the remarks in the register's row of the request; changes nothing when it is not listed.
void ShowRemarksInRow(RegisterView& view, std::int32_t requestId, std::string_view remarks);

}  // namespace goods
