#pragma once

#include "platform/console/command_table.h"
#include "platform/console/text_desktop.h"

namespace console {

/// The commands that act on the active form, its messages and menus as mouse and keyboard do.
CommandGroup MouseCommands(TextDesktop& desktop);
CommandGroup KeyboardCommands(TextDesktop& desktop);
CommandGroup AnswerCommands(TextDesktop& desktop);

}  // namespace console
