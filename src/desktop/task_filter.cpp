#include "desktop/task_filter.h"

namespace Tasks {

bool IsTask(const WindowRecord& window) {
    if (window.exStyle & kToolWindowStyle)
        return false;
    bool candidate = (window.exStyle & kAppWindowStyle) != 0 || !window.owned;
    return candidate && window.visible && !window.title.empty();
}

std::vector<WindowRecord> TasksOf(const std::vector<WindowRecord>& windows) {
    std::vector<WindowRecord> tasks;
    for (const WindowRecord& window : windows)
        if (IsTask(window))
            tasks.push_back(window);
    return tasks;
}

} // namespace Tasks
