// The running tasks as the system has them now: the top-level windows in Z-order, kept
// or skipped by the task rule, each with the executable of the process that owns it.
#pragma once

#include "desktop/task_filter.h"

#include <windows.h>

#include <string>
#include <vector>

namespace TaskWindows {

std::vector<Tasks::TaskEntry> ListTasks();

// The path of the first module of the process that owns the window; empty when the
// process cannot be opened for query and memory reading (another user's, a protected one).
std::string ExecutableOf(HWND window);

inline HWND WindowOf(std::uint64_t handle) {
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(handle));
}

} // namespace TaskWindows
