// The operations on the item pool. menu is the zero-based menu index (menu number - 1),
// position is the zero-based place of an item in its menu's chain, an index is a pool
// slot. Every query answers kNoItem (or false) where there is no such menu, position
// or item, and then changes nothing.
#pragma once

#include "menus/menu_records.h"

#include <cstdint>
#include <string_view>

namespace DataManager {

// The 1-based number of the first menu whose name is exactly name (case counts); 0 when
// none is.
int MenuNumberByName(const MenuTable& table, std::string_view name);

// Empties the table and the pool down to their reserved slots.
void Reset(MenuTable& table);

// Adds an item at the end of the menu; returns its slot (kNoItem for a negative menu).
// A reused slot keeps the STARTPATH and FILETYPEMASK of its previous item.
std::int32_t AppendItem(MenuTable& table, std::int32_t menu);

// Adds an item before the one now at position; kNoItem when there is none there.
std::int32_t InsertItem(MenuTable& table, std::int32_t menu, std::int32_t position);

// Frees the item at position; false when there is none there.
bool DeleteItem(MenuTable& table, std::int32_t menu, std::int32_t position);

std::int32_t FindItem(const MenuTable& table, std::int32_t menu, std::int32_t position);
std::int32_t LastItem(const MenuTable& table, std::int32_t menu);
// Position of the tail, that is the item count minus 1; kNoItem for a menu without items.
std::int32_t LastItemPosition(const MenuTable& table, std::int32_t menu);

// After menu was removed from the table, moves the items of the later menus down by
// one menu. Refuses (false) when menu still owns items, since they would merge into
// the next menu's chain.
bool ShiftMenuOwners(MenuTable& table, std::int32_t menu);

} // namespace DataManager
