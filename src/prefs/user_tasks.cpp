#include "prefs/user_tasks.h"

#include "core/user_task_keys.h"

namespace Preferences {

std::string UserTaskListName(const UserTaskRec& task) {
    return task.TaskName.empty() ? "(no name)" : task.TaskName;
}

std::optional<std::string> AddUserTask(SettingsRec& settings) {
    if (settings.UserTasks.size() >= UserTaskKeyReader::kIndexes)
        return "Ten user tasks at most: an eleventh would overwrite the first";
    settings.UserTasks.emplace_back();
    return std::nullopt;
}

bool DeleteUserTask(SettingsRec& settings, int index) {
    if (index < 0 || index >= settings.NoOfUserTasks())
        return false;
    settings.UserTasks.erase(settings.UserTasks.begin() + index);
    return true;
}

} // namespace Preferences
