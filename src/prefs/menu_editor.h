// The menu editor's working copy of the menus and the rules it edits them by. Every
// change of an item's place goes through the pool's append, insert and delete, so the
// chains stay what the menu file's loader would have made; a refused change answers
// with the sentence the user sees and leaves the table as it was.
#pragma once

#include "core/settings.h"
#include "menus/menu_records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuEditor {

// The item types in the order of their TYPE numbers, as the editor names them.
inline constexpr std::array<std::string_view, 5> kTypeNames = {"Filename", "Command Name", "Folder Path", "Menu Name",
                                                               "Task List"};
inline constexpr std::array<std::string_view, 3> kRunStateNames = {"Normal Window", "Run Minimized", "Run Maximized"};
// A folder item keeps its file filter in RUNSTATE.
inline constexpr std::array<std::string_view, 4> kFolderFilterNames = {"All Files", "Executables Only",
                                                                       "Control Panel Files Only", "User Specified"};
inline constexpr std::uint8_t kUserSpecifiedFilter = 3;

inline constexpr std::string_view kNewItemLabel = "NewItem";

// The page's buttons, in the order they stand; their mnemonics stay clear of the window's.
inline constexpr std::array<std::string_view, 10> kButtons = {"Add &Menu", "Re&name", "&Delete", "Add &Item",
                                                              "In&sert",   "&Copy",   "&Up",     "Do&wn",
                                                              "&Properties...", "&Try It"};

// What a tree row stands for: a menu (position -1) or an item of it.
struct Place {
    std::int32_t menu = -1; // zero-based
    std::int32_t position = -1;
    bool IsMenu() const { return position < 0; }
    bool operator==(const Place&) const = default;
};

// The names of the menus, in their order: what a hotspot can show.
std::vector<std::string> MenuNames(const MenuTable& table);

// The text of a tree row. A "Menu Name" item names the menu it opens.
std::string MenuText(const MenuTable& table, std::int32_t menu);
std::string ItemText(const MenuItemRec& item);
// The zero-based menu a "Menu Name" item opens; -1 for other items or a name no menu has.
std::int32_t MenuOpenedBy(const MenuTable& table, const MenuItemRec& item);

// Whether two tables hold the same menus and items in the same order: what their menu
// files would hold, however their pools are laid out.
bool SameMenus(const MenuTable& a, const MenuTable& b);

// Which field of an item a refusal is about.
enum class Field { Label, Path, Mask };
struct Problem {
    Field field;
    std::string text;
};

// Why the item's fields cannot stand in menu `menu`; empty when they can.
std::vector<Problem> ItemProblems(const MenuTable& table, std::int32_t menu, const MenuItemRec& fields);
// The item dialog's fields beyond type and label; each item type uses some of them, and
// the dialog greys the others.
enum class ItemField { Path, PathBrowse, Choices, StartFolder, Arguments, RunState, Mask, Icon, HotKey };
bool FieldUsed(const MenuItemRec& fields, ItemField field);

// The other item of the menu that has the same hot key, named for the note beside the
// field; nothing when none has. Only the first of them answers the key in the menu.
std::optional<std::string> HotKeyClash(const MenuTable& table, Place item, std::string_view hotkey);

// The item a file or folder dropped from the shell becomes: a folder lists its files, a
// file (a shortcut too) is started; the label is the name without its extension.
MenuItemRec DroppedItem(std::string_view path, bool folder);

// Why menu `menu` cannot be named `name`; nothing when it can.
std::optional<std::string> MenuNameProblem(const MenuTable& table, std::int32_t menu, std::string_view name);
// The warning before deleting a menu that items of other menus open; nothing when none does.
std::optional<std::string> OpenedMenuWarning(const MenuTable& table, std::int32_t menu);

// The editing operations. Each answers the place of the row to select afterwards, or,
// for a refusal, its sentence. What the menu file could not hold is refused (the limits
// in menus/menu_file.h), since it would be saved and then not load to its end.
struct Outcome {
    Place place;
    std::string refused; // empty when done
    bool Done() const { return refused.empty(); }
};

// A new empty menu at the end, "NewMenu1" or, when that name is taken, the first free
// "NewMenuN": menus are found by name, so two of one name would hide the second.
Outcome AddMenu(MenuTable& table);
// Renames a menu; the "Menu Name" items that opened it follow it.
Outcome RenameMenu(MenuTable& table, std::int32_t menu, std::string_view name);
// Hotspots that show a menu by its old name show it by the new one; how many did.
int RenameMenuOfHotspots(std::vector<HotspotRec>& hotspots, std::string_view from, std::string_view to);
// Asks (and warns when other menus open it) before the menu and its items go. Refused
// when the user said No.
Outcome DeleteMenu(MenuTable& table, std::int32_t menu);

// A new "NewItem" at the end of the menu, or before the item at position.
Outcome AddItem(MenuTable& table, std::int32_t menu);
Outcome InsertItem(MenuTable& table, std::int32_t menu, std::int32_t position);
// Items made elsewhere (files dropped on the tree), in their order, from position on
// (past the last item: at the end); the first of them is selected.
Outcome InsertItems(MenuTable& table, std::int32_t menu, std::int32_t position, const std::vector<MenuItemRec>& items);
Outcome DeleteItem(MenuTable& table, Place item);
// A copy of the item, right after it.
Outcome CopyItem(MenuTable& table, Place item);
// Gives the item new fields, when they pass ItemProblems.
Outcome SetItem(MenuTable& table, Place item, const MenuItemRec& fields);
// Moves the item so that it stands at position `to` of menu `toMenu` afterwards
// (to = the item count there means last). Up and down are moves by one.
Outcome MoveItem(MenuTable& table, Place item, std::int32_t toMenu, std::int32_t to);
Outcome MoveUp(MenuTable& table, Place item);
Outcome MoveDown(MenuTable& table, Place item);

} // namespace MenuEditor
