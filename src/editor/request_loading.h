#pragma once

#include "src/module/session.h"
#include "src/records/request_lines.h"

namespace goods {

/// Appends the stored lines of the request gLngRequestID with a quantity above 0 to the editor's item list, in the order in which
/// they were entered where the database can tell. Database errors are raised; the lines appended so far stay.
void LoadRequestLines(basGoodsRequest& session, RequestLines lines);

}  // namespace goods
