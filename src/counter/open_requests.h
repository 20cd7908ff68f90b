#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/vb/date.h"
#include "src/module/session.h"

namespace goods {

/// A line of a request that is still on its way: not cancelled, and without an issue note.
struct OpenLine {
  std::int32_t itemId = 0;
  std::string requestNo;
  vb::Date date;
  double quantity = 0;  ///< in base units
};

/// The open lines of the session's shop, the latest request first; those of one item, or of all items. The request with the id
/// `ownId`, the one that is edited, is left out. One statement; database errors are raised.
std::vector<OpenLine> OpenLines(basGoodsRequest& session, std::int32_t ownId, std::optional<std::int32_t> itemId = {});

/// "12.000 in GR24/7 of 29/01/2024, 3.000 in GR24/5 of 16/01/2024"; after three of them "and 2 more". Empty for none.
std::string OpenLinesToTell(const std::vector<OpenLine>& lines);

}  // namespace goods
