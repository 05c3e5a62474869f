// Which top-level windows are tasks: the rule the task-list menus and the task list
// window share, over plain records of the windows so that it is tested without them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tasks {

inline constexpr std::uint32_t kToolWindowStyle = 0x80;      // extended style: never a task
inline constexpr std::uint32_t kAppWindowStyle = 0x40000;    // extended style: a task even when owned

// A top-level window as the walk in Z-order finds it.
struct WindowRecord {
    std::uint64_t handle = 0;
    std::uint32_t exStyle = 0;
    bool owned = false;
    bool visible = false;
    std::string title; // UTF-8
};

// One listed task: the window, its title and the executable of the process that owns it
// (empty when the process could not be opened).
struct TaskEntry {
    std::uint64_t window = 0;
    std::string title;
    std::string exePath;
    bool operator==(const TaskEntry&) const = default;
};

// A tool window never is; an application window is a candidate even when owned; any other
// window only when it has no owner; a candidate is a task when it is visible and titled.
bool IsTask(const WindowRecord& window);

// The records that are tasks, in the order given (the Z-order of the walk).
std::vector<WindowRecord> TasksOf(const std::vector<WindowRecord>& windows);

} // namespace Tasks
