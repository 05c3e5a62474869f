#include "menus/menu_file.h"

#include "core/text.h"
#include "menus/data_manager.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace DataManager {

namespace {

constexpr std::string_view kMenusSection = "MENUS";

// "LABEL", 3 -> "LABEL-3". Built by appending: GCC 12 warns falsely (-Wrestrict) about
// a string literal + std::string.
std::string NumberedKey(std::string_view name, std::int32_t number) {
    std::string key(name);
    key += '-';
    key += std::to_string(number);
    return key;
}

std::string ItemSection(std::int32_t menuNumber) {
    return NumberedKey("MENU", menuNumber);
}

struct SplitKey {
    std::string name;                   // upper case, before the first dash
    std::optional<std::int16_t> number; // nullopt when it does not fit 16 bits
};

// Splits "label-3" into "LABEL" and 3; nullopt for a key without a dash.
std::optional<SplitKey> Split(std::string_view key) {
    const std::string upper = Text::ToUpper(key);
    const std::size_t dash = upper.find('-');
    if (dash == std::string::npos)
        return std::nullopt;
    return SplitKey{upper.substr(0, dash), Text::ToInt16(Text::NumericValue(std::string_view(upper).substr(dash + 1)))};
}

MenuLoadResult Failure(std::string what, std::string_view section, const ProfileEntry& entry) {
    return MenuLoadResult{false, what + " in [" + std::string(section) + "] at " + entry.key + "=" + entry.value};
}

// Unreadable text (an empty value of a hand-edited file) reads as False, the value
// of a new menu, rather than ending the load.
bool ReadBool(std::string_view value) {
    return Text::ToBool(value).value_or(false);
}

void StoreMenuValue(MenuRec& menu, std::string_view name, const std::string& value) {
    if (name == "NAME")
        menu.NAME = value;
    else if (name == "INHERIT")
        menu.INHERIT = ReadBool(value);
    else if (name == "THEME")
        menu.THEME = value;
    else if (name == "SOUNDPATH")
        menu.SOUNDPATH = value;
    else if (name == "APPPATH")
        menu.APPPATH = value;
}

// False when a TYPE or RUNSTATE value does not fit a byte.
bool StoreItemValue(MenuItemRec& item, std::string_view name, const std::string& value) {
    if (name == "TYPE" || name == "RUNSTATE") {
        const std::optional<std::uint8_t> byte = Text::ToByte(Text::NumericValue(value));
        if (!byte)
            return false;
        (name == "TYPE" ? item.TYPE : item.RUNSTATE) = *byte;
    } else if (name == "LABEL") {
        item.LABEL = value;
    } else if (name == "PATH") {
        item.PATH = value;
    } else if (name == "STARTPATH") {
        item.STARTPATH = value;
    } else if (name == "ARG") {
        item.ARG = value;
    } else if (name == "FILETYPEMASK") {
        item.FILETYPEMASK = value;
    } else if (name == "ICONPATH") {
        item.ICONPATH = value;
    } else if (name == "HOTKEY") {
        item.HOTKEY = value;
    }
    return true;
}

MenuLoadResult LoadMenus(MenuTable& table, const SectionReader& readSection) {
    for (const ProfileEntry& entry : readSection(kMenusSection)) {
        const std::optional<SplitKey> key = Split(entry.key);
        if (!key)
            continue;
        if (!key->number)
            return Failure("Overflow", kMenusSection, entry);
        const std::int16_t number = *key->number;
        if (number < 1) // slot 0 and below are never a menu
            continue;
        if (number > table.MenuCount())
            table.menus.resize(static_cast<std::size_t>(number) + 1);
        StoreMenuValue(table.menus[static_cast<std::size_t>(number)], key->name, entry.value);
    }
    return {};
}

MenuLoadResult LoadItems(MenuTable& table, std::int32_t menuNumber, const SectionReader& readSection) {
    const std::string section = ItemSection(menuNumber);
    const std::int32_t menu = menuNumber - 1;
    for (const ProfileEntry& entry : readSection(section)) {
        const std::optional<SplitKey> key = Split(entry.key);
        if (!key)
            continue;
        if (!key->number)
            return Failure("Overflow", section, entry);
        const std::int32_t position = *key->number;
        if (position < 0)
            continue;
        while (LastItemPosition(table, menu) < position) {
            if (table.pool.size() >= kMaxLoadedItems)
                return Failure("Too many menu items", section, entry);
            AppendItem(table, menu);
        }
        const std::int32_t index = FindItem(table, menu, position);
        if (!StoreItemValue(table.pool[static_cast<std::size_t>(index)], key->name, entry.value))
            return Failure("Overflow", section, entry);
    }
    return {};
}

void AddItemWrites(ProfileWrites& writes, const std::string& section, std::int32_t position, const MenuItemRec& item) {
    writes.push_back({section, NumberedKey("LABEL", position), item.LABEL});
    writes.push_back({section, NumberedKey("TYPE", position), std::to_string(item.TYPE)});
    writes.push_back({section, NumberedKey("PATH", position), item.PATH});
    writes.push_back({section, NumberedKey("STARTPATH", position), item.STARTPATH});
    writes.push_back({section, NumberedKey("ARG", position), item.ARG});
    writes.push_back({section, NumberedKey("RUNSTATE", position), std::to_string(item.RUNSTATE)});
    writes.push_back({section, NumberedKey("FILETYPEMASK", position), item.FILETYPEMASK});
    writes.push_back({section, NumberedKey("ICONPATH", position), item.ICONPATH});
    writes.push_back({section, NumberedKey("HOTKEY", position), item.HOTKEY});
}

} // namespace

bool RoomForMenu(const MenuTable& table) {
    return table.MenuCount() < kMaxMenus;
}

bool MenuHasRoom(const MenuTable& table, std::int32_t menu, std::int32_t added) {
    return LastItemPosition(table, menu) + 1 + added <= kMaxMenuItems;
}

// Every slot but the reserved one and the free ones holds an item.
bool FileHasRoom(const MenuTable& table, std::int32_t added) {
    const std::size_t items = table.pool.size() - 1 - table.freeSlots.size();
    return items + static_cast<std::size_t>(added) < kMaxLoadedItems;
}

MenuLoadResult LoadMenuFile(MenuTable& table, const SectionReader& readSection) {
    Reset(table);
    if (MenuLoadResult result = LoadMenus(table, readSection); !result.complete)
        return result;
    for (std::int32_t number = 1; number <= table.MenuCount(); ++number)
        if (MenuLoadResult result = LoadItems(table, number, readSection); !result.complete)
            return result;
    return {};
}

ProfileWrites SaveMenuFile(const MenuTable& table) {
    std::size_t items = 0;
    for (const std::vector<std::int32_t>& chain : table.chains)
        items += chain.size();
    ProfileWrites writes;
    writes.reserve(5 * static_cast<std::size_t>(table.MenuCount()) + 9 * items);
    const std::string menus(kMenusSection);
    for (std::int32_t number = 1; number <= table.MenuCount(); ++number) {
        const MenuRec& menu = table.menus[static_cast<std::size_t>(number)];
        writes.push_back({menus, NumberedKey("NAME", number), menu.NAME});
        writes.push_back({menus, NumberedKey("INHERIT", number), Text::BoolWord(menu.INHERIT)});
        writes.push_back({menus, NumberedKey("THEME", number), menu.THEME});
        writes.push_back({menus, NumberedKey("SOUNDPATH", number), menu.SOUNDPATH});
        writes.push_back({menus, NumberedKey("APPPATH", number), menu.APPPATH});
    }
    for (std::int32_t number = 1; number <= table.MenuCount(); ++number) {
        const std::string section = ItemSection(number);
        const std::int32_t last = LastItemPosition(table, number - 1);
        for (std::int32_t position = 0; position <= last; ++position)
            AddItemWrites(writes, section, position,
                          table.pool[static_cast<std::size_t>(FindItem(table, number - 1, position))]);
    }
    return writes;
}

} // namespace DataManager
