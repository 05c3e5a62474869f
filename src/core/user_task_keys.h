// The keys of the user tasks in section [TARVEX]: TaskName<d>, TaskExec<d> and TaskIcon<d>,
// where d is the last digit of the zero-based task index, read back from the key's last
// character. Like the hotspot keys, one digit names the index, so at most ten tasks
// survive a save and a load.
#pragma once

#include "core/profile.h"
#include "core/settings.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

// Appends the three keys of every task, task by task, after the NoOfUserTasks write.
void WriteUserTaskKeys(const std::vector<UserTaskRec>& tasks, ProfileWrites& writes);

// Gathers the user-task keys of a section, entry by entry.
class UserTaskKeyReader {
public:
    static constexpr std::size_t kIndexes = 10;
    static constexpr std::size_t kFields = 3;

    // False when the key is not a user-task key. The first occurrence of a key wins.
    bool Read(std::string_view key, std::string_view value);

    // Tasks 0..noOfUserTasks-1 as read, at most ten; a task without a name key is "NewItem".
    std::vector<UserTaskRec> Records(int noOfUserTasks) const;

private:
    std::array<UserTaskRec, kIndexes> records_{};
    std::array<std::array<bool, kFields>, kIndexes> taken_{};
};
