#pragma once

#include "base/controls/text_box.h"
#include "src/module/session.h"

namespace goods {

/// Puts the shop's next request number into the box: the prefix of the current financial year and one more than the greatest
/// number behind it. Runs inside the save's transaction. Error 6 when the counter would pass 32,767; database errors are raised.
void fnGenerateRequestNo(basGoodsRequest& session, controls::TextBox& txtRequestNo);

/// Whether the text of the box is a request number of the shop already. Database errors are raised.
bool fnRequestNoExists(basGoodsRequest& session, const controls::TextBox& txtRequestNo);

}  // namespace goods
