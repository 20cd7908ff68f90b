#pragma once

#include <string_view>

namespace goods {

struct basGoodsRequest;

/// Reads the user's rights into gStrUserRights. False, and nothing is changed, when none are stored for the user. Database errors
/// are raised.
bool ReadUserRights(basGoodsRequest& session);

/// Whether the rights hold the letter, without regard to case. "ADMIN" is a word, not five letters, and grants nothing here.
/// Trims and capitalises gStrUserRights.
bool HasUserRight(basGoodsRequest& session, std::string_view letter);

}  // namespace goods
