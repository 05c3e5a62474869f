// The menu file codec: the input's text up to its first NUL is a menu file, the bytes
// after it are steps of the menu editor. The table is loaded, edited, saved, loaded and
// saved again: the two saves must write the same keys, a saved table must load to its
// end, and the pool's index must agree with its links.
#include "fuzz_support.h"

#include "core/message_box.h"
#include "menus/data_manager.h"
#include "menus/menu_file.h"
#include "prefs/menu_editor.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace {

using Fuzz::Require;

constexpr std::size_t kStep = 5;

// Every chain names live slots whose owner and links match their place in it; every
// other slot but the reserved one is free and queued for reuse once.
void RequireConsistent(const MenuTable& table) {
    Require(!table.menus.empty() && !table.pool.empty() && table.pool[0].owner == kReservedSlot,
            "menu 0 and slot 0 are reserved");
    Require(table.chains.size() <= static_cast<std::size_t>(table.MenuCount()), "no chain beyond the last menu");
    std::vector<int> uses(table.pool.size());
    for (std::size_t menu = 0; menu < table.chains.size(); ++menu) {
        const std::vector<std::int32_t>& chain = table.chains[menu];
        for (std::size_t p = 0; p < chain.size(); ++p) {
            const std::int32_t slot = chain[p];
            Require(slot > 0 && static_cast<std::size_t>(slot) < table.pool.size(), "a chain names a pool slot");
            const MenuItemRec& item = table.pool[static_cast<std::size_t>(slot)];
            Require(item.owner == static_cast<std::int32_t>(menu), "an item's owner is its chain's menu");
            Require(item.previous == (p == 0 ? -1 : chain[p - 1]), "an item links back to its predecessor");
            Require(item.next == (p + 1 == chain.size() ? -1 : chain[p + 1]), "an item links on to its successor");
            ++uses[static_cast<std::size_t>(slot)];
        }
    }
    auto free = table.freeSlots;
    for (; !free.empty(); free.pop()) {
        const std::int32_t slot = free.top();
        Require(slot > 0 && static_cast<std::size_t>(slot) < table.pool.size(), "a free slot is a pool slot");
        Require(table.pool[static_cast<std::size_t>(slot)].owner == kFreeSlot, "a queued slot is free");
        ++uses[static_cast<std::size_t>(slot)];
    }
    for (std::size_t slot = 1; slot < uses.size(); ++slot)
        Require(uses[slot] == 1, "every slot is in one chain or queued free, once");
}

// One step of the menu editor, named by five bytes: what, menu, position, and for a move
// the menu and position it goes to. A refused step must leave the table as it was; the
// copy that shows it is made for small tables only, as it costs the whole table per step.
void Edit(MenuTable& table, const std::uint8_t* step) {
    const std::int32_t menus = table.MenuCount() + 1; // one past the last: no such menu
    const std::int32_t menu = step[1] % menus;
    const MenuEditor::Place item{menu, step[2]};
    const bool small = table.pool.size() + table.menus.size() <= 4096;
    const MenuTable before = small ? table : MenuTable{};
    MenuEditor::Outcome outcome;
    switch (step[0] % 9) {
    case 0:
        outcome = MenuEditor::AddMenu(table);
        break;
    case 1:
        outcome = MenuEditor::DeleteMenu(table, menu);
        break;
    case 2:
        outcome = MenuEditor::AddItem(table, menu);
        break;
    case 3:
        outcome = MenuEditor::InsertItem(table, menu, item.position);
        break;
    case 4:
        outcome = MenuEditor::DeleteItem(table, item);
        break;
    case 5:
        outcome = MenuEditor::CopyItem(table, item);
        break;
    case 6:
        outcome = MenuEditor::MoveItem(table, item, step[3] % menus, step[4]);
        break;
    case 7:
        outcome = MenuEditor::MoveUp(table, item);
        break;
    default:
        outcome = MenuEditor::MoveDown(table, item);
        break;
    }
    if (small && !outcome.Done())
        Require(MenuEditor::SameMenus(table, before), "a refused edit leaves the table as it was");
}

void RequireRoundTrip(const MenuTable& table) {
    const ProfileWrites saved = DataManager::SaveMenuFile(table);
    MenuTable reloaded;
    const MenuLoadResult result = DataManager::LoadMenuFile(reloaded, Fuzz::ReaderOf(Fuzz::SectionsOf(saved)));
    Require(result.complete, "a saved table loads to its end");
    RequireConsistent(reloaded);
    Require(DataManager::SaveMenuFile(reloaded) == saved, "a saved table loads back to the same table");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MessageBoxes::SetHandler([](const MessageBoxes::Request&) { return MessageBoxes::kYes; });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t nul = input.find('\0');
    const std::string_view text = input.substr(0, nul);
    const std::string_view edits = nul == std::string_view::npos ? std::string_view() : input.substr(nul + 1);

    MenuTable table;
    const MenuLoadResult loaded = DataManager::LoadMenuFile(table, Fuzz::ReaderOf(Fuzz::SectionsOf(text)));
    Require(loaded.complete == loaded.error.empty(), "a load that ends early says why");
    RequireConsistent(table);
    for (std::size_t i = 0; i + kStep <= edits.size(); i += kStep)
        Edit(table, reinterpret_cast<const std::uint8_t*>(edits.data() + i));
    RequireConsistent(table);
    RequireRoundTrip(table);
    return 0;
}
