// The program's own menu windows (class "Tarvex2Menu") as a user meets them.
#pragma once

#include "harness/wait.h"
#include "harness/windows.h"

#include <optional>

namespace E2e {

inline constexpr const char* kMenuClass = "Tarvex2Menu";

// The first visible menu window of the process, once it has painted and finished its
// opening animation; its rectangle is the one it stands at then.
std::optional<WindowInfo> WaitForMenuWindow(DWORD processId, Duration timeout = 30s);

} // namespace E2e
