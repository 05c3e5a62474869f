#include "core/user_task_keys.h"

#include "core/setting_values.h"
#include "core/text.h"

#include <algorithm>
#include <optional>
#include <string>

namespace {

struct UserTaskKey {
    std::string_view stem;
    std::string UserTaskRec::*field;
};

constexpr std::array<UserTaskKey, UserTaskKeyReader::kFields> kUserTaskKeys = {{
    {"TaskName", &UserTaskRec::TaskName},
    {"TaskExec", &UserTaskRec::TaskExec},
    {"TaskIcon", &UserTaskRec::TaskIcon},
}};

} // namespace

void WriteUserTaskKeys(const std::vector<UserTaskRec>& tasks, ProfileWrites& writes) {
    for (std::size_t i = 0; i < tasks.size(); ++i)
        for (const UserTaskKey& key : kUserTaskKeys)
            writes.push_back(
                {kSettingsSection, std::string(key.stem) + SettingValues::IndexDigit(i), tasks[i].*key.field});
}

bool UserTaskKeyReader::Read(std::string_view key, std::string_view value) {
    for (std::size_t f = 0; f < kUserTaskKeys.size(); ++f) {
        if (!Text::StartsWithIgnoreCase(key, kUserTaskKeys[f].stem))
            continue;
        std::optional<std::size_t> index = SettingValues::LastDigitIndex(key, kIndexes);
        if (index && !taken_[*index][f]) {
            taken_[*index][f] = true;
            records_[*index].*kUserTaskKeys[f].field = std::string(value);
        }
        return true;
    }
    return false;
}

std::vector<UserTaskRec> UserTaskKeyReader::Records(int noOfUserTasks) const {
    int count = std::clamp(noOfUserTasks, 0, static_cast<int>(kIndexes));
    return {records_.begin(), records_.begin() + count};
}
