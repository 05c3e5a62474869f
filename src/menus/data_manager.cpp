#include "menus/data_manager.h"

#include <cstddef>
#include <vector>

namespace DataManager {

int MenuNumberByName(const MenuTable& table, std::string_view name) {
    for (int number = 1; number <= table.MenuCount(); ++number) {
        if (table.menus[static_cast<std::size_t>(number)].NAME == name)
            return number;
    }
    return 0;
}

namespace {

using Chain = std::vector<std::int32_t>;

const Chain* ChainOf(const MenuTable& table, std::int32_t menu) {
    if (menu < 0 || static_cast<std::size_t>(menu) >= table.chains.size())
        return nullptr;
    return &table.chains[static_cast<std::size_t>(menu)];
}

Chain& GrowChainsTo(MenuTable& table, std::int32_t menu) {
    const auto needed = static_cast<std::size_t>(menu) + 1;
    if (table.chains.size() < needed)
        table.chains.resize(needed);
    return table.chains[static_cast<std::size_t>(menu)];
}

// The lowest free slot, or a new one at the end: the pool never shrinks, so freed
// slots are reused before it grows.
std::int32_t TakeFreeSlot(MenuTable& table) {
    if (!table.freeSlots.empty()) {
        const std::int32_t slot = table.freeSlots.top();
        table.freeSlots.pop();
        return slot;
    }
    table.pool.emplace_back();
    return static_cast<std::int32_t>(table.pool.size()) - 1;
}

MenuItemRec& Slot(MenuTable& table, std::int32_t index) {
    return table.pool[static_cast<std::size_t>(index)];
}

} // namespace

void Reset(MenuTable& table) {
    table = MenuTable{};
}

std::int32_t AppendItem(MenuTable& table, std::int32_t menu) {
    if (menu < 0)
        return kNoItem;
    const std::int32_t tail = LastItem(table, menu);
    const std::int32_t slot = TakeFreeSlot(table);
    if (tail != kNoItem)
        Slot(table, tail).next = slot;
    MenuItemRec& item = Slot(table, slot);
    item.owner = menu;
    item.previous = tail;
    item.next = -1;
    GrowChainsTo(table, menu).push_back(slot);
    return slot;
}

std::int32_t InsertItem(MenuTable& table, std::int32_t menu, std::int32_t position) {
    const std::int32_t after = FindItem(table, menu, position);
    if (after == kNoItem)
        return kNoItem;
    const std::int32_t slot = TakeFreeSlot(table);
    const std::int32_t before = Slot(table, after).previous;
    Slot(table, after).previous = slot;
    MenuItemRec& item = Slot(table, slot);
    item.owner = menu;
    item.previous = before;
    item.next = after;
    if (before != -1)
        Slot(table, before).next = slot;
    Chain& chain = table.chains[static_cast<std::size_t>(menu)];
    chain.insert(chain.begin() + position, slot);
    return slot;
}

bool DeleteItem(MenuTable& table, std::int32_t menu, std::int32_t position) {
    const std::int32_t slot = FindItem(table, menu, position);
    if (slot == kNoItem)
        return false;
    MenuItemRec& item = Slot(table, slot);
    item.owner = kFreeSlot;
    item.ARG.clear();
    item.ICONPATH.clear();
    item.LABEL.clear();
    item.PATH.clear();
    item.HOTKEY.assign(1, '0'); // "0": no hot key
    item.RUNSTATE = 0;
    item.TYPE = 0;
    // STARTPATH and FILETYPEMASK stay: the next item to reuse the slot inherits them,
    // which saved menu files depend on. The slot's own links stay as they were too.
    const std::int32_t previous = item.previous;
    const std::int32_t next = item.next;
    if (previous != -1)
        Slot(table, previous).next = next;
    if (next != -1)
        Slot(table, next).previous = previous;
    Chain& chain = table.chains[static_cast<std::size_t>(menu)];
    chain.erase(chain.begin() + position);
    table.freeSlots.push(slot);
    return true;
}

std::int32_t FindItem(const MenuTable& table, std::int32_t menu, std::int32_t position) {
    const Chain* chain = ChainOf(table, menu);
    if (chain == nullptr || position < 0 || static_cast<std::size_t>(position) >= chain->size())
        return kNoItem;
    return (*chain)[static_cast<std::size_t>(position)];
}

std::int32_t LastItem(const MenuTable& table, std::int32_t menu) {
    const Chain* chain = ChainOf(table, menu);
    return (chain == nullptr || chain->empty()) ? kNoItem : chain->back();
}

std::int32_t LastItemPosition(const MenuTable& table, std::int32_t menu) {
    const Chain* chain = ChainOf(table, menu);
    return chain == nullptr ? kNoItem : static_cast<std::int32_t>(chain->size()) - 1;
}

bool ShiftMenuOwners(MenuTable& table, std::int32_t menu) {
    if (menu < 0)
        return false;
    const Chain* chain = ChainOf(table, menu);
    if (chain != nullptr && !chain->empty())
        return false;
    for (MenuItemRec& item : table.pool)
        if (item.owner > menu)
            --item.owner;
    if (chain != nullptr)
        table.chains.erase(table.chains.begin() + menu);
    return true;
}

} // namespace DataManager
