#pragma once

#include <cstdint>

#include "src/module/session.h"

namespace goods {

/// Previews the request's report through the report server, from which the user prints; the server
/// is held for as long as the preview is open. Raises error 429 when there is no report
/// server, and whatever the server raises.
void WIndowsprint(basGoodsRequest& session, std::int32_t requestId);

}  // namespace goods
