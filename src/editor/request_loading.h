#pragma once

#include "base/controls/list_view.h"
#include "src/module/session.h"

namespace goods {

/// Appends the stored lines of the request gLngRequestID with a quantity above 0 to the editor's item list, in the order in which
/// they were entered where the database can tell. Database errors are raised; the lines appended so far stay.
void LoadRequestLines(basGoodsRequest& session, controls::ListView& lines);

}  // namespace goods
