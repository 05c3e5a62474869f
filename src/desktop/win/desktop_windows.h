// The shell's windows that the program hides and shows: the taskbar and the desktop's
// icons. Each change is noted in the desktop changes, so that the exit and the end of
// the session put back only what the program changed. Where the shell has no such
// window, nothing happens.
#pragma once

#include "core/exit_rules.h"
#include "desktop/command_actions.h"

#include <windows.h>

namespace DesktopWindows {

HWND Taskbar();
HWND DesktopIcons();

void SetTaskbar(CommandActions::Visibility visibility, ExitRules::DesktopChanges& changes);
void SetDesktopIcons(CommandActions::Visibility visibility, ExitRules::DesktopChanges& changes);

} // namespace DesktopWindows
