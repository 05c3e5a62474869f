// A menu window's display list: where its entries come from, and what the layout and
// the painting need to know of each entry.
#pragma once

#include "desktop/task_filter.h"
#include "menus/display_entry.h"
#include "menus/folder_listing.h"
#include "menus/menu_records.h"
#include "menuwindow/layout/button_parts.h"
#include "menuwindow/paint/draw_list.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuWindow {

struct DisplayList {
    std::vector<DisplayEntry> entries; // item i (1-based) is entries[i - 1]
    int folderCount = 0;
    int moreItem = 0; // the 1-based item of "More...", 0 when the listing was not cut
    bool empty = false;

    int Count() const { return static_cast<int>(entries.size()); }
    const DisplayEntry& Item(int item) const { return entries[static_cast<std::size_t>(item - 1)]; }
};

// Where a window's entries come from, by its content kind (numbered like item types).
enum class ListSource { MenuItems, Folder, TaskList, None };
ListSource SourceOf(std::uint8_t kind);

// The entry a menu item shows as.
DisplayEntry EntryOf(const MenuItemRec& item);

// The items of menu number menuNumber (1-based), in chain order; none for a number that
// names no menu (0 included), which is how a window shows an empty menu.
DisplayList MenuItemsList(const MenuTable& table, int menuNumber);

DisplayList FolderList(FolderListing listing);

// The running tasks, each entry carrying its window and, as its file, the program that
// owns it (which gives the entry its icon and its properties); "(Empty)" when none runs.
DisplayList TaskList(const std::vector<Tasks::TaskEntry>& tasks);

// How a list that is taken again (an open task-list menu) changed: in its length, which
// lays the whole window out again, or in some items (1-based), which may be repainted alone.
struct ListChange {
    bool length = false;
    std::vector<int> items;
    bool None() const { return !length && items.empty(); }
};
ListChange ChangeBetween(const DisplayList& before, const DisplayList& now);

// Items that open a sub-menu: folders, menus and the task list.
bool OpensSubMenu(std::uint8_t type);

// Whether an item has a hot key: the menu file writes "0" for none, and an empty value
// is none too. The key "0" can therefore never be a hot key.
bool HasHotkey(std::string_view hotkey);

// The key shown after the command-key symbol: the item's HOTKEY, upper-cased.
std::string HotkeyLabel(std::string_view hotkey);

// The measures of every entry, in the button font.
std::vector<ItemMeasure> MeasureItems(const DisplayList& list, const TextMeasure& measure);

// Where an item's icon comes from: the file (and icon index) named by ICONPATH, written
// "file" or "file,index"; else the shell's icon for the file or folder that PATH names.
struct IconSource {
    std::string file;
    int index = 0;
    bool shellIcon = false; // the shell's icon for the file, rather than one taken out of it
    bool operator==(const IconSource&) const = default;
};

// None for an item that names no file: an internal command, a menu, the task list.
std::optional<IconSource> IconSourceOf(const DisplayEntry& entry);
// The ICONPATH that names an icon of a file: "file", or "file,index"; a file with a comma
// in its name is quoted, so that the comma is not taken for the index's.
std::string IconPathText(std::string_view file, int index);
// The shell's icon for the file or folder that PATH names: also what an item shows when
// its ICONPATH gives no icon.
std::optional<IconSource> ShellIconSourceOf(const DisplayEntry& entry);

} // namespace MenuWindow
