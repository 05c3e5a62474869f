// Adding and removing whole menus, as the menu editor does it.
#pragma once

#include "menus/menu_records.h"

#include <cstdint>
#include <string>

namespace DataManager {

inline constexpr const char* kNewMenuName = "NewMenu1";
inline constexpr const char* kRemoveMenuTitle = "Tarvex Warning";

// Appends an empty menu named "NewMenu1"; returns its menu number.
std::int32_t AddMenu(MenuTable& table);

// The question asked before menu `name` is removed.
std::string RemoveMenuQuestion(const std::string& name);

// Asks the question for menu number `number` and, on Yes, removes the menu and its
// items and renumbers the later menus. False when the answer was not Yes or there is
// no such menu (then nothing is asked).
bool RemoveMenu(MenuTable& table, std::int32_t number);

} // namespace DataManager
