#include "platform/console/command_table.h"

#include "base/vb/text.h"

namespace console {

const Command* CommandTable::Find(std::string_view verb) const {
  for (const CommandGroup& group : groups_) {
    for (const Command& command : group.commands) {
      if (vb::EqualNoCase(command.verb, verb)) return &command;
    }
  }
  return nullptr;
}

}  // namespace console
