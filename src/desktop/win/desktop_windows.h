// The shell's windows that the program hides and shows: the taskbar and the desktop's
// icons. Each change is noted in the desktop changes, so that the exit and the end of
// the session put back only what the program changed, and kept on disk while it lasts,
// so that a run that ends without its exit (a crash, a kill) leaves them for the next
// start to put back. Where the shell has no such window, nothing happens.
#pragma once

#include "core/win/program.h"
#include "desktop/command_actions.h"

#include <windows.h>

namespace DesktopWindows {

HWND Taskbar();
HWND DesktopIcons();

void SetTaskbar(CommandActions::Visibility visibility, Program& program);
void SetDesktopIcons(CommandActions::Visibility visibility, Program& program);

// Writes the program's desktop changes to the program folder, or removes the file when
// nothing is changed. A folder that refuses the file only loses this safety net.
void RecordChanges(const Program& program);

// At start-up: puts back what the file says an earlier run left changed, then removes it.
void PutBackLeftChanges(Program& program);

} // namespace DesktopWindows
