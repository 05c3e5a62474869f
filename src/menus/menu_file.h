// The menu file codec: section [MENUS] with five keys per menu (NAME-i ... APPPATH-i,
// menus numbered from 1) and one section [MENU-i] per menu with nine keys per item
// (LABEL-p ... HOTKEY-p, positions numbered from 0).
#pragma once

#include "core/profile.h"
#include "menus/menu_records.h"

#include <string>

struct MenuLoadResult {
    bool complete = true; // false when a bad value ended the load early
    std::string error;    // what ended it, for the caller's message
};

namespace DataManager {

// Replaces the table and the pool with the file's menus. A TYPE or RUNSTATE value
// outside 0..255, or a menu or item number beyond 16 bits, ends the load at that key:
// what was read before it stays in the table.
MenuLoadResult LoadMenuFile(MenuTable& table, const SectionReader& readSection);

// Every key of every menu and item, in file order. The caller writes them into an
// emptied file, so keys of menus and items that no longer exist disappear.
ProfileWrites SaveMenuFile(const MenuTable& table);

} // namespace DataManager
