#pragma once

#include <cstdint>

#include "src/module/session.h"
#include "src/printing/slip_output.h"

namespace goods {

/// The header block: title, company, shop and request. Reads its own settings. Raises database and settings errors.
void WriteSlipHeader(basGoodsRequest& session, SlipOutput& output, std::int16_t pageWidth, std::int32_t requestId);

}  // namespace goods
