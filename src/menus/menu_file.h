// The menu file codec: section [MENUS] with five keys per menu (NAME-i ... APPPATH-i,
// menus numbered from 1) and one section [MENU-i] per menu with nine keys per item
// (LABEL-p ... HOTKEY-p, positions numbered from 0).
#pragma once

#include "core/profile.h"
#include "menus/menu_records.h"

#include <cstddef>
#include <cstdint>
#include <string>

struct MenuLoadResult {
    bool complete = true; // false when a bad value ended the load early
    std::string error;    // what ended it, for the caller's message
};

namespace DataManager {

// What a file can hold and load again: menus numbered 1 to 32767 and positions 0 to
// 32767 (16 bits each), and fewer than kMaxLoadedItems items in all. The load stops
// there because positions are filled up to the highest key: a few keys of a damaged
// file could otherwise ask for gigabytes.
inline constexpr std::int32_t kMaxMenus = 32767;
inline constexpr std::int32_t kMaxMenuItems = 32768;
inline constexpr std::size_t kMaxLoadedItems = std::size_t{1} << 18;

// Whether the table can take one more menu, or `added` more items in menu `menu` (the
// zero-based index), and still be saved into a file that loads whole.
bool RoomForMenu(const MenuTable& table);
bool MenuHasRoom(const MenuTable& table, std::int32_t menu, std::int32_t added);
bool FileHasRoom(const MenuTable& table, std::int32_t added);

// Replaces the table and the pool with the file's menus. A TYPE or RUNSTATE value
// outside 0..255, or a menu or item number beyond 16 bits, ends the load at that key:
// what was read before it stays in the table.
MenuLoadResult LoadMenuFile(MenuTable& table, const SectionReader& readSection);

// Every key of every menu and item, in file order. The caller writes them into an
// emptied file, so keys of menus and items that no longer exist disappear.
ProfileWrites SaveMenuFile(const MenuTable& table);

} // namespace DataManager
