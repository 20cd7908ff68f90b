#pragma once

#include <string_view>

#include "src/module/session.h"

namespace goods {

class CommonDb;

/// What head office can still send of the item, in base units: the stock of all godowns less what is despatched but not confirmed
/// and less what is issued to the shop's department or to none. Negative when more is promised than there is. Database errors are
/// raised.
double GetAvailableQuantity(basGoodsRequest& session, CommonDb& db, std::string_view itemId);

}  // namespace goods
