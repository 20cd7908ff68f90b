#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace goods {

/// What became of many lines at once: "2 lines added.", then the refused ones, each with its reason; after 20 of them how many
/// more there are. `hint` follows the number of refused lines, ", ready on the clipboard".
std::string OutcomeToTell(std::size_t added, const std::vector<std::string>& refused, std::string_view hint = {});

}  // namespace goods
