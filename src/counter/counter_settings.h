#pragma once

#include "src/module/session.h"

namespace goods {

/// What the shop's settings file switches on at the counter. Off where file or key is absent, without a message.
struct CounterSettings {
  bool showRequested = false;  ///< showrequested: what is already requested of an item
  bool showStock = false;      ///< showstock: what the shop has of it
  bool packProposals = false;  ///< packproposals: proposed quantities are whole packs
};

CounterSettings ReadCounterSettings(basGoodsRequest& session);

}  // namespace goods
