#include "prefs/menu_editor.h"

#include "core/message_box.h"
#include "core/text.h"
#include "desktop/hotspots.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/menu_file.h"

#include <algorithm>
#include <cstddef>

namespace MenuEditor {

namespace {

constexpr const char* kOwnMenu = "An item cannot open the menu it is in.";

bool MenuExists(const MenuTable& table, std::int32_t menu) {
    return menu >= 0 && menu < table.MenuCount();
}

std::int32_t ItemCount(const MenuTable& table, std::int32_t menu) {
    return DataManager::LastItemPosition(table, menu) + 1;
}

const MenuItemRec* ItemAt(const MenuTable& table, Place place) {
    const std::int32_t slot = DataManager::FindItem(table, place.menu, place.position);
    return slot == kNoItem ? nullptr : &table.pool[static_cast<std::size_t>(slot)];
}

// Gives a slot the item's fields; the links and the owner stay the pool's.
void Fill(MenuTable& table, std::int32_t slot, const MenuItemRec& fields) {
    MenuItemRec& item = table.pool[static_cast<std::size_t>(slot)];
    MenuItemRec kept = fields;
    kept.owner = item.owner;
    kept.next = item.next;
    kept.previous = item.previous;
    item = std::move(kept);
}

MenuItemRec NewItem() {
    MenuItemRec item;
    item.LABEL = kNewItemLabel;
    item.HOTKEY.assign(1, '0'); // "0": no hot key
    return item;
}

// Puts an item with these fields at position `to` of the menu (at the end when `to` is
// past the last item).
Place Place_(MenuTable& table, std::int32_t menu, std::int32_t to, const MenuItemRec& fields) {
    const std::int32_t count = ItemCount(table, menu);
    to = std::clamp(to, 0, count);
    const std::int32_t slot =
        to == count ? DataManager::AppendItem(table, menu) : DataManager::InsertItem(table, menu, to);
    Fill(table, slot, fields);
    return {menu, to};
}

Outcome Refused(std::string text) {
    return {{}, std::move(text)};
}

std::string MenuFull() {
    return "A menu holds " + std::to_string(DataManager::kMaxMenuItems) + " items at most.";
}

// Why `added` more items cannot go into the menu; nothing when they can. A table the file
// cannot hold would be saved and then not load to its end.
std::optional<std::string> NoRoom(const MenuTable& table, std::int32_t menu, std::int32_t added) {
    if (!DataManager::MenuHasRoom(table, menu, added))
        return MenuFull();
    if (!DataManager::FileHasRoom(table, added))
        return "The menu file holds " + std::to_string(DataManager::kMaxLoadedItems - 1) + " items at most.";
    return std::nullopt;
}

bool Blank(std::string_view text) {
    return Text::Trim(text).empty();
}

} // namespace

std::vector<std::string> MenuNames(const MenuTable& table) {
    std::vector<std::string> names;
    for (std::int32_t menu = 0; menu < table.MenuCount(); ++menu)
        names.push_back(table.menus[static_cast<std::size_t>(menu) + 1].NAME);
    return names;
}

std::string MenuText(const MenuTable& table, std::int32_t menu) {
    if (!MenuExists(table, menu))
        return {};
    const std::string& name = table.menus[static_cast<std::size_t>(menu) + 1].NAME;
    return name.empty() ? "(no name)" : name;
}

std::string ItemText(const MenuItemRec& item) {
    std::string text = item.LABEL.empty() ? "(no label)" : item.LABEL;
    if (item.TYPE == kItemMenuName)
        text += "  \xE2\x86\x92 " + item.PATH; // an arrow: the menu it opens
    return text;
}

std::int32_t MenuOpenedBy(const MenuTable& table, const MenuItemRec& item) {
    if (item.TYPE != kItemMenuName)
        return -1;
    return DataManager::MenuNumberByName(table, item.PATH) - 1;
}

bool SameMenus(const MenuTable& a, const MenuTable& b) {
    if (a.menus != b.menus)
        return false;
    for (std::int32_t menu = 0; menu < a.MenuCount(); ++menu) {
        const std::int32_t count = ItemCount(a, menu);
        if (count != ItemCount(b, menu))
            return false;
        for (std::int32_t position = 0; position < count; ++position) {
            MenuItemRec left = *ItemAt(a, {menu, position});
            MenuItemRec right = *ItemAt(b, {menu, position});
            left.next = left.previous = right.next = right.previous = -1;
            if (!(left == right))
                return false;
        }
    }
    return true;
}

std::vector<Problem> ItemProblems(const MenuTable& table, std::int32_t menu, const MenuItemRec& fields) {
    std::vector<Problem> problems;
    if (Blank(fields.LABEL))
        problems.push_back({Field::Label, "An item needs a label."});
    const bool noPath = Blank(fields.PATH);
    switch (fields.TYPE) {
    case kItemFilename:
        if (noPath)
            problems.push_back({Field::Path, "Choose the file the item starts."});
        break;
    case kItemCommandName:
        if (noPath)
            problems.push_back({Field::Path, "Choose a command or type a command line."});
        break;
    case kItemFolderPath:
        if (noPath)
            problems.push_back({Field::Path, "Choose the folder the item lists."});
        if (fields.RUNSTATE == kUserSpecifiedFilter && Blank(fields.FILETYPEMASK))
            problems.push_back({Field::Mask, "Name the extensions to list, for example .txt.doc"});
        break;
    case kItemMenuName: {
        const std::int32_t opened = MenuOpenedBy(table, fields);
        if (noPath)
            problems.push_back({Field::Path, "Choose the menu the item opens."});
        else if (opened < 0)
            problems.push_back({Field::Path, "There is no menu named '" + fields.PATH + "'."});
        else if (opened == menu)
            problems.push_back({Field::Path, kOwnMenu});
        break;
    }
    default:
        break;
    }
    return problems;
}

bool FieldUsed(const MenuItemRec& fields, ItemField field) {
    const std::uint8_t type = fields.TYPE;
    const bool file = type == kItemFilename;
    const bool folder = type == kItemFolderPath;
    switch (field) {
    case ItemField::Path: return type != kItemTaskList;
    case ItemField::PathBrowse: return file || folder;
    case ItemField::Choices: return type == kItemCommandName || type == kItemMenuName;
    case ItemField::StartFolder: return file;
    case ItemField::Arguments:
    case ItemField::RunState: return file || folder;
    case ItemField::Mask: return folder && fields.RUNSTATE == kUserSpecifiedFilter;
    case ItemField::Icon:
    case ItemField::HotKey: return true;
    }
    return false;
}

std::optional<std::string> HotKeyClash(const MenuTable& table, Place item, std::string_view hotkey) {
    if (Blank(hotkey) || hotkey == "0")
        return std::nullopt;
    for (std::int32_t position = 0; position < ItemCount(table, item.menu); ++position) {
        const MenuItemRec& other = *ItemAt(table, {item.menu, position});
        if (position != item.position && other.HOTKEY != "0" && Text::EqualsIgnoreCase(other.HOTKEY, hotkey))
            return "'" + other.LABEL + "' in this menu has this hot key too; the key chooses the first of them.";
    }
    return std::nullopt;
}

MenuItemRec DroppedItem(std::string_view path, bool folder) {
    while (path.size() > 3 && path.ends_with('\\'))
        path.remove_suffix(1);
    std::string name(path.substr(path.find_last_of("\\/") + 1));
    MenuItemRec item = NewItem();
    item.PATH = path;
    if (folder) {
        item.TYPE = kItemFolderPath;
        if (!item.PATH.ends_with('\\'))
            item.PATH += '\\';
    } else if (const std::size_t dot = name.find_last_of('.'); dot != std::string::npos && dot > 0) {
        name.resize(dot);
    }
    if (Blank(name)) // a drive's root: "C:"
        name = path.substr(0, path.find_last_not_of('\\') + 1);
    if (!Blank(name))
        item.LABEL = name;
    return item;
}

std::optional<std::string> MenuNameProblem(const MenuTable& table, std::int32_t menu, std::string_view name) {
    if (Blank(name))
        return "A menu needs a name.";
    for (std::int32_t other = 0; other < table.MenuCount(); ++other)
        if (other != menu && Text::EqualsIgnoreCase(table.menus[static_cast<std::size_t>(other) + 1].NAME, name))
            return "There is already a menu named '" + table.menus[static_cast<std::size_t>(other) + 1].NAME + "'.";
    return std::nullopt;
}

std::optional<std::string> OpenedMenuWarning(const MenuTable& table, std::int32_t menu) {
    std::string openers;
    int count = 0;
    for (std::int32_t other = 0; other < table.MenuCount(); ++other) {
        if (other == menu)
            continue;
        for (std::int32_t position = 0; position < ItemCount(table, other); ++position) {
            const MenuItemRec& item = *ItemAt(table, {other, position});
            if (MenuOpenedBy(table, item) != menu)
                continue;
            if (++count <= 5)
                openers += "\n    " + MenuText(table, other) + " > " + item.LABEL;
        }
    }
    if (count == 0)
        return std::nullopt;
    if (count > 5)
        openers += "\n    ...";
    return "The '" + MenuText(table, menu) + "' menu is opened by " + std::to_string(count) +
           (count == 1 ? " item" : " items") + " of other menus:" + openers +
           "\n\nOnce it is gone they open nothing. Delete it anyway?";
}

Outcome AddMenu(MenuTable& table) {
    if (!DataManager::RoomForMenu(table))
        return Refused("The menu file holds " + std::to_string(DataManager::kMaxMenus) + " menus at most.");
    const std::int32_t number = DataManager::AddMenu(table);
    for (int suffix = 1; MenuNameProblem(table, number - 1, table.menus[static_cast<std::size_t>(number)].NAME);)
        table.menus[static_cast<std::size_t>(number)].NAME = "NewMenu" + std::to_string(++suffix);
    return {{number - 1, -1}, {}};
}

Outcome RenameMenu(MenuTable& table, std::int32_t menu, std::string_view name) {
    if (!MenuExists(table, menu))
        return Refused("Choose a menu first.");
    if (std::optional<std::string> problem = MenuNameProblem(table, menu, name))
        return Refused(*problem);
    std::string& current = table.menus[static_cast<std::size_t>(menu) + 1].NAME;
    for (MenuItemRec& item : table.pool)
        if (item.owner >= 0 && MenuOpenedBy(table, item) == menu)
            item.PATH = name;
    current = name;
    return {{menu, -1}, {}};
}

int RenameMenuOfHotspots(std::vector<HotspotRec>& hotspots, std::string_view from, std::string_view to) {
    int renamed = 0;
    for (HotspotRec& hotspot : hotspots) {
        if (hotspot.Type == Hotspots::kShowMenu && Text::EqualsIgnoreCase(hotspot.Menupath1, from)) {
            hotspot.Menupath1 = to;
            ++renamed;
        }
    }
    return renamed;
}

Outcome DeleteMenu(MenuTable& table, std::int32_t menu) {
    if (!MenuExists(table, menu))
        return Refused("Choose a menu first.");
    using namespace MessageBoxes;
    if (std::optional<std::string> warning = OpenedMenuWarning(table, menu))
        if (MsgBox(*warning, DataManager::kRemoveMenuTitle, kYesNo + kExclamation + kDefaultButton2) != kYes)
            return Refused("The menu was kept.");
    if (!DataManager::RemoveMenu(table, menu + 1))
        return Refused("The menu was kept.");
    return {{std::min(menu, table.MenuCount() - 1), -1}, {}};
}

Outcome AddItem(MenuTable& table, std::int32_t menu) {
    if (!MenuExists(table, menu))
        return Refused("Choose a menu first.");
    if (std::optional<std::string> full = NoRoom(table, menu, 1))
        return Refused(*full);
    return {Place_(table, menu, ItemCount(table, menu), NewItem()), {}};
}

Outcome InsertItem(MenuTable& table, std::int32_t menu, std::int32_t position) {
    if (!MenuExists(table, menu))
        return Refused("Choose a menu first.");
    if (std::optional<std::string> full = NoRoom(table, menu, 1))
        return Refused(*full);
    return {Place_(table, menu, std::max(position, 0), NewItem()), {}};
}

Outcome InsertItems(MenuTable& table, std::int32_t menu, std::int32_t position,
                    const std::vector<MenuItemRec>& items) {
    if (!MenuExists(table, menu))
        return Refused("Choose a menu first.");
    if (items.empty())
        return Refused("Nothing was dropped that an item can stand for.");
    if (std::optional<std::string> full = NoRoom(table, menu, static_cast<std::int32_t>(items.size())))
        return Refused(*full);
    position = std::clamp(position, 0, ItemCount(table, menu));
    for (std::size_t added = 0; added < items.size(); ++added)
        Place_(table, menu, position + static_cast<std::int32_t>(added), items[added]);
    return {{menu, position}, {}};
}

Outcome DeleteItem(MenuTable& table, Place item) {
    if (!DataManager::DeleteItem(table, item.menu, item.position))
        return Refused("Choose an item first.");
    const std::int32_t count = ItemCount(table, item.menu);
    return {{item.menu, count == 0 ? -1 : std::min(item.position, count - 1)}, {}};
}

Outcome CopyItem(MenuTable& table, Place item) {
    const MenuItemRec* original = ItemAt(table, item);
    if (!original)
        return Refused("Choose an item first.");
    if (std::optional<std::string> full = NoRoom(table, item.menu, 1))
        return Refused(*full);
    const MenuItemRec fields = *original; // the pool may move when it grows
    return {Place_(table, item.menu, item.position + 1, fields), {}};
}

Outcome SetItem(MenuTable& table, Place item, const MenuItemRec& fields) {
    const std::int32_t slot = DataManager::FindItem(table, item.menu, item.position);
    if (slot == kNoItem)
        return Refused("Choose an item first.");
    if (std::vector<Problem> problems = ItemProblems(table, item.menu, fields); !problems.empty())
        return Refused(problems.front().text);
    Fill(table, slot, fields);
    return {item, {}};
}

Outcome MoveItem(MenuTable& table, Place item, std::int32_t toMenu, std::int32_t to) {
    const MenuItemRec* original = ItemAt(table, item);
    if (!original)
        return Refused("Choose an item first.");
    if (!MenuExists(table, toMenu))
        return Refused("Choose the menu to move the item to.");
    if (toMenu != item.menu && MenuOpenedBy(table, *original) == toMenu)
        return Refused(kOwnMenu);
    if (toMenu != item.menu && !DataManager::MenuHasRoom(table, toMenu, 1))
        return Refused(MenuFull());
    const MenuItemRec fields = *original;
    DataManager::DeleteItem(table, item.menu, item.position);
    return {Place_(table, toMenu, to, fields), {}};
}

Outcome MoveUp(MenuTable& table, Place item) {
    if (!ItemAt(table, item))
        return Refused("Choose an item first.");
    if (item.position == 0)
        return Refused("The item is the first of its menu already.");
    return MoveItem(table, item, item.menu, item.position - 1);
}

Outcome MoveDown(MenuTable& table, Place item) {
    if (!ItemAt(table, item))
        return Refused("Choose an item first.");
    if (item.position + 1 >= ItemCount(table, item.menu))
        return Refused("The item is the last of its menu already.");
    return MoveItem(table, item, item.menu, item.position + 1);
}

} // namespace MenuEditor
