// The cascade list: one record for every open menu window, in the order they opened,
// numbered from 1. A record says what the window lists, who opened it and where it
// stands; the shell keeps the window object of each record beside the list.
#pragma once

#include "menus/folder_listing.h"
#include "menus/menu_records.h"
#include "menuwindow/layout/geometry.h"
#include "menuwindow/layout/placement.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuWindow {

struct CascadeRec {
    int id = 0;       // the menu window's identifier
    int parentId = 0; // the identifier of the menu window that opened it; 0 for a hotspot's menu
    int level = 1;    // 1 for a hotspot's menu, the parent's level + 1 for a sub-menu
    int hotspot = -1; // the index of the hotspot that opened the cascade
    bool openedByHotspot = false;

    // What the window lists, by its content kind (numbered like item types: 2 a folder,
    // 3 a menu, 4 the task list).
    std::uint8_t kind = kItemMenuName;
    int menuNumber = 0;        // a menu: its 1-based number, 0 when the name matched none
    std::string caption;       // the name to show; empty takes the menu's or the folder's own
    std::string path;          // a menu's name, or the folder to list
    std::string path2;         // a folder menu's second folder
    std::int16_t menuType = 0; // a folder menu's file filter
    std::string fileTypeMask;  // extensions for the user's filter
    int skip = 0;              // a folder window opened from "More...": entries the earlier pages showed
    std::string groupName;
    bool alwaysOpen = false;
    std::string theme;
    bool inherit = false;
    int parentItem = 0;   // the 1-based item of the parent that opened it
    int firstVisible = 0; // the scroll position: the first visible offset

    // Where it opens. Every position here is in screen PIXELS, not twips: a hotspot's
    // Menuleft and Menutop are pixels, and they stay pixels on the way to the window.
    Point position; // Menuleft, Menutop; the cursor with onMouse
    Point origin;   // the top-left of the window the hotspot belongs to; (0, 0) for the desktop
    bool onMouse = false;
    std::optional<SubMenuAnchor> anchor; // a sub-menu: the button that opened it
    bool horizontal = false;
    bool rotated = false; // turned by its rotate button, away from the way it opened

    // Where it stands once placed, and the side it opened to (left of or above its parent).
    Rect bounds;
    bool towardsStart = false;
};

class CascadeList {
public:
    int Count() const { return static_cast<int>(records_.size()); }

    // Appends a record with a fresh identifier; returns its index.
    int Append();

    // The record at an index from 1 to Count().
    CascadeRec& At(int index) { return records_[static_cast<std::size_t>(index - 1)]; }
    const CascadeRec& At(int index) const { return records_[static_cast<std::size_t>(index - 1)]; }

    // The index of the record with an identifier; 0 when there is none.
    int IndexOf(int id) const;
    CascadeRec* Find(int id);
    const CascadeRec* Find(int id) const;

    // Removes the record at an index; the later records move down one place.
    void Remove(int index);

    // The smallest identifier from 1 up that no record holds.
    int FreeId() const;

    // The identifier of the sub-menu that a menu has open; 0 when it has none.
    int SubMenuOf(int id) const;

    // A menu and every menu opened below it, in the order they opened.
    std::vector<int> WithSubMenus(int id) const;

private:
    std::vector<CascadeRec> records_;
};

// The name a window shows in its title bar and as its window text: the caption it was
// given (a task list opened by an item takes the item's label), else a menu's own name,
// else the name of the folder it lists, else for the running tasks "Tasklist".
inline constexpr std::string_view kTaskListTitle = "Tasklist";
std::string MenuTitle(const CascadeRec& record, const MenuTable& menus);

// What a folder window lists: its folder (and, for a sub-menu, the second folder), each
// ending in a backslash; the file filter (menuType, all files for a value outside 0 to
// 3) with its mask; and the entries to skip. A hotspot's second target names a program's
// arguments or a command, never a folder, so a hotspot's menu lists one folder.
FolderListRequest FolderRequestOf(const CascadeRec& record);

} // namespace MenuWindow
