// The user tasks as the Tasklist and Systray page edits them: the list by name, adding
// ("NewItem") and deleting, and the ten that the settings keep.
#pragma once

#include "core/settings.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace Preferences {

inline constexpr std::string_view kUserTasksGroup = "User tasks";

// The room's labels and buttons. The page's keys take every letter of these words but x
// as mnemonics, so the rest are reached with Tab.
inline constexpr std::array<std::string_view, 6> kUserTaskLabels = {"Add", "Delete", "Name:", "E&xecutable:", "Icon:",
                                                                    "Browse..."};

// How a task stands in the list: its name, or a mark for a task without one.
std::string UserTaskListName(const UserTaskRec& task);

// Adds "NewItem" after the last task; refused with the reason when ten exist already,
// since an eleventh would be saved over the first.
std::optional<std::string> AddUserTask(SettingsRec& settings);

// Deletes a task; the later ones move up. False when there is no such task.
bool DeleteUserTask(SettingsRec& settings, int index);

} // namespace Preferences
