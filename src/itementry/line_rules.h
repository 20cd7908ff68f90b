#pragma once

#include <string_view>

#include "src/module/session.h"

namespace goods {

class CommonDb;

inline constexpr std::string_view kNoMoreItems = "No more items can be Added in this request";
inline constexpr std::string_view kAlreadyExists = " Already Exists";
inline constexpr std::string_view kQuantityTooLarge = "Quantity is too large: at most 15 digits before the decimal point";
inline constexpr std::string_view kUnknownCode = "Scan valid barcode ";
/// Characters that the comments of a line hold.
inline constexpr int kCommentsLength = 250;

/// How many lines a request of the shop may have; below 1 for any number. Database errors are raised.
double ReadLineLimit(basGoodsRequest& session, CommonDb& db);

/// The number that a typed quantity is; its commas separate thousands.
double QuantityTyped(std::string_view text);

/// Whether a quantity is beyond what a line holds.
bool IsTooLarge(double quantity);

/// Why a typed quantity is refused; empty when it is not.
std::string_view QuantityRefusal(const basGoodsRequest& session, std::string_view text);

}  // namespace goods
