#pragma once

#include <istream>
#include <optional>
#include <string>

#include "platform/console/output.h"

namespace console {

/// Where the command lines come from: a script, or a person at a terminal.
class Input {
 public:
  enum class Echo { Off, On };
  enum class From { Script, Terminal };
  Input(std::istream& stream, Output& output, Echo echo, From from)
      : stream_(stream), output_(output), echo_(echo == Echo::On), terminal_(from == From::Terminal) {}

  /// The next line without its end, nothing at the end of the input. A person is asked with the prompt.
  std::optional<std::string> NextLine(std::string_view prompt);
  bool IsTerminal() const { return terminal_; }

 private:
  std::istream& stream_;
  Output& output_;
  bool echo_;
  bool terminal_;
};

}  // namespace console
