// The menu file on disk: reading it into the menu table and writing the table back.
// Both tell the user, in a "Tarvex Warning" box, when they could not do their job.
#pragma once

#include "core/save_notices.h"
#include "menus/menu_records.h"

#include <string>
#include <string_view>

namespace MenuStore {

inline constexpr std::string_view kMenuFileName = "TvMenus.ini";
inline constexpr const char* kWarningTitle = "Tarvex Warning";

// TvMenus.ini in the program folder.
std::string MenuFilePath(std::string_view programFolder);

// Replaces the table with the menus of the profile file at path. A bad value ends the
// load at its key; what was read before it stays, and a warning names the file and
// the key. True when the whole file was read.
bool LoadMenuFile(MenuTable& table, std::string_view path);

// Writes the table to TvMenus.ini in the program folder, replacing the whole file at
// once: keys of menus and items that no longer exist disappear, and a failure leaves
// the old file as it was (and says so, the first time in the run). True when saved.
bool SaveMenuFile(const MenuTable& table, std::string_view programFolder, SaveNotices::Told& told);

} // namespace MenuStore
