#pragma once

#include "base/vb/date.h"

namespace goods {

class CommonDb;
struct basGoodsRequest;

/// Reads the user's name into the session. Database errors are raised.
void ReadUserName(basGoodsRequest& session, CommonDb& db);

/// Lower bound of the register: the process date less the configured days, or the last close when that was earlier. Database
/// errors are raised.
vb::Date ReadFromDate(basGoodsRequest& session, CommonDb& db);

/// Reads what package and shop have configured into the session; a setting left null counts as off. Database errors are raised.
void ReadPackageSettings(basGoodsRequest& session, CommonDb& db);

}  // namespace goods
