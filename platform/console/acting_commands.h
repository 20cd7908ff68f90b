#pragma once

#include "platform/console/command_table.h"
#include "platform/console/text_desktop.h"

namespace console {

/// What hands on mouse and keyboard do to the active form, its messages and menus.
CommandGroup MouseCommands(TextDesktop& desktop);
CommandGroup KeyboardCommands(TextDesktop& desktop);
CommandGroup AnswerCommands(TextDesktop& desktop);

}  // namespace console
