// Shows the program's message boxes as real Windows message boxes.
#pragma once

namespace MessageBoxes {

// Installs the handler that calls MessageBoxW; the owner window may be null.
void InstallWindowsHandler();

} // namespace MessageBoxes
