#include "src/counter/outcome.h"

#include <algorithm>

namespace goods {
namespace {

constexpr std::size_t kMaxTold = 20;

std::string LinesText(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " line" : " lines");
}

}  // namespace

std::string OutcomeToTell(std::size_t added, const std::vector<std::string>& refused, std::string_view hint) {
  std::string text = LinesText(added) + " added.";
  if (refused.empty()) return text;
  text.append("\r\n").append(LinesText(refused.size())).append(" refused").append(hint).append(":\r\n");
  const std::size_t told = std::min(refused.size(), kMaxTold);
  for (std::size_t line = 0; line < told; ++line) text += "\r\n" + refused[line];
  if (refused.size() > told) text += "\r\nand " + std::to_string(refused.size() - told) + " more";
  return text;
}

}  // namespace goods
