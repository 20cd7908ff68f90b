#pragma once

#include <cstdint>

#include "src/module/settings_reader.h"
#include "src/printing/slip_output.h"

namespace goods {

/// The header block: title, company, shop and request. Raises database and settings errors.
void WriteSlipHeader(basGoodsRequest& session, SettingsFile& settingsFile, SlipOutput& output, std::int16_t pageWidth,
                     std::int32_t requestId);

}  // namespace goods
