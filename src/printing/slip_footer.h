#pragma once

#include <cstdint>

#include "src/module/session.h"
#include "src/printing/slip_output.h"

namespace goods {

/// The footer block: the shop's printed messages, then the user and the time of printing. Raises database errors.
void WriteSlipFooter(basGoodsRequest& session, SlipOutput& output, std::int16_t pageWidth);

}  // namespace goods
