#pragma once

#include <string>

#include "platform/console/command_table.h"
#include "platform/console/output.h"
#include "platform/console/text_desktop.h"

namespace console {

/// Carries out one command line: finds the command, refuses it at the wrong moment, and writes its failure as an `error:` line.
class Interpreter {
 public:
  Interpreter(TextDesktop& desktop, Output& output) : desktop_(desktop), output_(output) {}

  CommandTable& Commands() { return commands_; }
  void Execute(const std::string& line);

 private:
  void Run(Words words);
  void CheckMoment(const Command& command) const;

  TextDesktop& desktop_;
  Output& output_;
  CommandTable commands_;
};

}  // namespace console
