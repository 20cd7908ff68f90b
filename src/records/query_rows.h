#pragma once

#include <string_view>

#include "base/late/value.h"
#include "src/module/session.h"

namespace goods {

/// All records of a query as (field, record); an array without records when it finds none. They are read at once and the
/// recordset is closed: the connection is then free for a look-up or an update about each of them.
late::ArrayPtr ReadRows(basGoodsRequest& session, std::string_view query);

}  // namespace goods
