// The properties of one menu item in a dialog box of their own: the type, the label,
// the path with a picker that fits the type (a file, a folder, the internal commands or
// the menus), start folder, arguments, run state or file filter, file types, icon and
// hot key, with the icon shown as the menu will show it. OK keeps the dialog open while
// a field is refused, with the reason in red beside it.
#pragma once

#include "desktop/command_table.h"
#include "menus/menu_records.h"
#include "prefs/menu_editor.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace PrefsWin {

struct ItemDialogContext {
    const MenuTable& menus;
    MenuEditor::Place place; // where the item stands
    const std::vector<CommandTable::CommandRow>& commands;
    const DialogFont& font;
};

inline constexpr const wchar_t* kItemDialogTitle = L"Item Properties";

// The item's new fields after OK; nothing after Cancel.
std::optional<MenuItemRec> EditItem(HWND owner, const MenuItemRec& item, const ItemDialogContext& context);

} // namespace PrefsWin
