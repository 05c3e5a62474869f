// Files dragged the way the shell drags them: an OLE drag of the shell's list of paths
// from this process, the mouse moved by input from one point of the screen to another.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace E2e {

// True when the window under `to` took the drop, which is made once it shows that it is
// ready for it (by the first point on, 10 s at most).
bool DragFilesFromShell(const std::vector<std::string>& paths, POINT from, POINT to,
                        const std::function<bool()>& readyToDrop);

} // namespace E2e
