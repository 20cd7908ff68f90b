#include "platform/console/input.h"

namespace console {

std::optional<std::string> Input::NextLine(std::string_view prompt) {
  if (terminal_) output_.Prompt(prompt);
  std::string line;
  if (!std::getline(stream_, line)) {
    if (terminal_) output_.Prompt("\n");
    return std::nullopt;
  }
  if (!line.empty() && line.back() == '\r') line.pop_back();
  if (echo_) output_.Echo(line);
  return line;
}

}  // namespace console
