#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/console/command_line.h"

namespace console {

/// When a command may be given. What only looks may be asked at any time, also while a message or a menu is open.
enum class Moment { Always, FormActive, MessageOpen, MenuOpen };

struct Command {
  std::string_view verb;
  std::string_view arguments;  ///< for `help`
  std::string_view purpose;    ///< for `help`
  Moment moment = Moment::FormActive;
  std::function<void(Words& words)> run;
};

struct CommandGroup {
  std::string_view title;
  std::vector<Command> commands;
};

/// All commands, by subject.
class CommandTable {
 public:
  void Add(CommandGroup group) { groups_.push_back(std::move(group)); }
  const std::vector<CommandGroup>& Groups() const { return groups_; }
  /// Without regard to case; null when there is none.
  const Command* Find(std::string_view verb) const;

 private:
  std::vector<CommandGroup> groups_;
};

}  // namespace console
