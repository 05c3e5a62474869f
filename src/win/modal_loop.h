// Message loops of the program's own modal windows.
#pragma once

#include <windows.h>

namespace Win {

// Runs messages until the window is gone, with the dialog keys (Tab, Enter, Escape)
// working in it. A quit request met on the way is passed on to the outer loop.
void RunModalLoop(HWND window);

} // namespace Win
