#pragma once

#include "platform/console/command_table.h"
#include "platform/console/output.h"
#include "platform/console/shop_tools.h"
#include "platform/console/text_desktop.h"

namespace console {

/// What only looks at forms and the session.
CommandGroup LookingCommands(const TextDesktop& desktop, Output& output, GlobalReader globals);
/// `sql`, `fail` and `trace`.
CommandGroup DatabaseCommands(DatabaseTools& database, Output& output);
/// `cat` and `help`. The table must outlive the group.
CommandGroup OtherCommands(const TextDesktop& desktop, const CommandTable& table, Output& output, FileReader files);

}  // namespace console
