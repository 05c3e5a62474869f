// Files dragged the way the shell drags them: an OLE drag of the shell's list of paths
// from this process, the mouse moved by input from one point of the screen to another.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace E2e {

// Success when the window under `to` took the drop, which is made once it shows that it
// is ready for it (10 s at most); otherwise what went wrong.
::testing::AssertionResult DragFilesFromShell(const std::vector<std::string>& paths, POINT from, POINT to,
                                              const std::function<bool()>& readyToDrop);

} // namespace E2e
