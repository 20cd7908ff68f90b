#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "src/module/session.h"
#include "src/records/request.h"

namespace goods {

class CommonDb;

/// What of a stored request can be asked for again, under the codes and descriptions of today.
struct SameAgain {
  std::vector<RequestLine> lines;
  std::vector<RequestLine> leftOut;  ///< their items are no longer active, or not for sale
};

/// Database errors are raised.
SameAgain LinesToRepeat(basGoodsRequest& session, CommonDb& db, std::int32_t requestId);

/// The lines for a message box, "\r\nPOT Cooking pot, 2.500" each; after 20 of them how many more there are.
std::string LinesToTell(const std::vector<RequestLine>& lines);

}  // namespace goods
