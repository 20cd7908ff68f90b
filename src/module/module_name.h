#pragma once

#include <string_view>

namespace goods {

/// The name under which the module's own routines report their errors. The suite's error log knows them under this name, which is
/// not the module's; no blank follows it, unlike the forms' names.
inline constexpr std::string_view kModuleName = "basGoodsPurchase";

}  // namespace goods
