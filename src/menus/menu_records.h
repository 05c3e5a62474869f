// The menus in memory: one table of menus and one pool of items shared by all of
// them, each menu's items chained into a doubly linked list through the pool.
#pragma once

#include <cstdint>
#include <functional>
#include <queue>
#include <string>
#include <vector>

// Item types, the numbers of the menu file's TYPE values.
inline constexpr std::uint8_t kItemFilename = 0;
inline constexpr std::uint8_t kItemCommandName = 1;
inline constexpr std::uint8_t kItemFolderPath = 2;
inline constexpr std::uint8_t kItemMenuName = 3;
inline constexpr std::uint8_t kItemTaskList = 4;

// Special owners of pool slots.
inline constexpr std::int32_t kFreeSlot = -1;
inline constexpr std::int32_t kReservedSlot = -2;

// The "none" result of pool queries: no such item, or no such position.
inline constexpr std::int32_t kNoItem = -1;

struct MenuRec {
    std::string NAME;
    bool INHERIT = false;
    std::string THEME;
    std::string SOUNDPATH;
    std::string APPPATH;
    bool operator==(const MenuRec&) const = default;
};

struct MenuItemRec {
    std::int32_t owner = kFreeSlot; // zero-based menu index (menu number - 1)
    std::int32_t next = -1;
    std::int32_t previous = -1;
    std::string LABEL;
    std::uint8_t TYPE = 0;
    std::string PATH;
    std::string STARTPATH;
    std::string ARG;
    std::uint8_t RUNSTATE = 0;
    std::string FILETYPEMASK;
    std::string ICONPATH;
    std::string HOTKEY;
    bool operator==(const MenuItemRec&) const = default;
};

inline MenuItemRec ReservedSlot() {
    MenuItemRec slot;
    slot.owner = kReservedSlot;
    return slot;
}

// The table and the pool. menus[0] and pool[0] exist but are never a menu or an item.
// chains and freeSlots are an index over the pool that DataManager keeps in step with
// it, so that position lookups and the free-slot search do not scan the pool; change
// the links and owners only through DataManager.
struct MenuTable {
    std::vector<MenuRec> menus = std::vector<MenuRec>(1);
    std::vector<MenuItemRec> pool = {ReservedSlot()};
    // chains[owner] lists the pool indices of that menu's items in chain order.
    std::vector<std::vector<std::int32_t>> chains;
    // Slots whose owner is kFreeSlot, lowest first.
    std::priority_queue<std::int32_t, std::vector<std::int32_t>, std::greater<>> freeSlots;

    // Number of menus (the table's upper bound).
    std::int32_t MenuCount() const { return static_cast<std::int32_t>(menus.size()) - 1; }
};
