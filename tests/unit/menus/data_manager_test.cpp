#include "menus/data_manager.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace DataManager;

namespace {

// The pool operations without an index: every lookup scans the pool for the menu's
// first item and walks the links. The indexed pool must answer exactly like this.
struct ScanningPool {
    std::vector<MenuItemRec> pool{ReservedSlot()};

    std::int32_t Head(std::int32_t menu) const {
        for (std::int32_t i = 0; i < static_cast<std::int32_t>(pool.size()); ++i) {
            if (pool[i].owner == menu) {
                while (pool[i].previous != -1)
                    i = pool[i].previous;
                return i;
            }
        }
        return -1;
    }
    std::int32_t FindItem(std::int32_t menu, std::int32_t position) const {
        std::int32_t i = Head(menu);
        for (std::int32_t k = 0; k < position && i != -1; ++k)
            i = pool[i].next;
        return position < 0 ? -1 : i;
    }
    std::int32_t LastItemPosition(std::int32_t menu) const {
        std::int32_t i = Head(menu), position = -1;
        for (; i != -1; i = pool[i].next)
            ++position;
        return position;
    }
    std::int32_t FreeSlot() {
        for (std::size_t i = 0; i < pool.size(); ++i)
            if (pool[i].owner == -1)
                return static_cast<std::int32_t>(i);
        pool.emplace_back();
        return static_cast<std::int32_t>(pool.size()) - 1;
    }
    std::int32_t Link(std::int32_t menu, std::int32_t before, std::int32_t after) {
        const std::int32_t n = FreeSlot();
        pool[n].owner = menu;
        pool[n].previous = before;
        pool[n].next = after;
        if (before != -1)
            pool[before].next = n;
        if (after != -1)
            pool[after].previous = n;
        return n;
    }
    std::int32_t AppendItem(std::int32_t menu) { return Link(menu, FindItem(menu, LastItemPosition(menu)), -1); }
    std::int32_t InsertItem(std::int32_t menu, std::int32_t position) {
        const std::int32_t a = FindItem(menu, position);
        return a == -1 ? -1 : Link(menu, pool[a].previous, a);
    }
    bool DeleteItem(std::int32_t menu, std::int32_t position) {
        const std::int32_t i = FindItem(menu, position);
        if (i == -1)
            return false;
        MenuItemRec& item = pool[i];
        item.owner = -1;
        item.ARG = item.ICONPATH = item.LABEL = item.PATH = "";
        item.HOTKEY = "0";
        item.RUNSTATE = item.TYPE = 0;
        if (item.previous != -1)
            pool[item.previous].next = item.next;
        if (item.next != -1)
            pool[item.next].previous = item.previous;
        return true;
    }
};

void RunRandomEditing(unsigned trial, int steps) {
    constexpr std::int32_t kMenus = 5;
    std::mt19937 random(trial);
    const auto pick = [&](std::int32_t below) { return static_cast<std::int32_t>(random() % below); };
    MenuTable table;
    ScanningPool plain;
    for (int step = 0; step < steps; ++step) {
        const std::int32_t menu = pick(kMenus);
        const std::int32_t position = pick(plain.LastItemPosition(menu) + 3); // at times past the tail
        switch (pick(5)) {
        case 0:
            ASSERT_EQ(AppendItem(table, menu), plain.AppendItem(menu));
            break;
        case 1:
            ASSERT_EQ(InsertItem(table, menu, position), plain.InsertItem(menu, position));
            break;
        case 2:
            ASSERT_EQ(DeleteItem(table, menu, position), plain.DeleteItem(menu, position));
            break;
        case 3: // fill an item, so that clearing and carry-over show in the pools
            if (const std::int32_t i = plain.FindItem(menu, position); i != -1) {
                for (MenuItemRec* item : {&table.pool[i], &plain.pool[i]}) {
                    item->LABEL = item->STARTPATH = item->FILETYPEMASK = item->HOTKEY = std::to_string(step);
                    item->TYPE = item->RUNSTATE = static_cast<std::uint8_t>(step);
                }
            }
            break;
        case 4: // remove a whole menu the way the editor does
            while (plain.DeleteItem(menu, 0))
                ASSERT_TRUE(DeleteItem(table, menu, 0));
            ASSERT_TRUE(ShiftMenuOwners(table, menu));
            for (MenuItemRec& item : plain.pool)
                item.owner -= item.owner > menu ? 1 : 0;
            break;
        }
        ASSERT_EQ(table.pool, plain.pool) << "step " << step;
        for (std::int32_t m = 0; m <= kMenus; ++m) {
            const std::int32_t last = plain.LastItemPosition(m);
            ASSERT_EQ(LastItemPosition(table, m), last) << "step " << step;
            ASSERT_EQ(LastItem(table, m), plain.FindItem(m, last));
            for (std::int32_t p = -1; p <= last + 1; ++p)
                ASSERT_EQ(FindItem(table, m, p), plain.FindItem(m, p)) << "step " << step;
        }
    }
}

} // namespace

TEST(DataManager, AnswersLikeThePlainScanThroughRandomEditing) {
    for (unsigned trial = 1; trial <= 30 && !HasFatalFailure(); ++trial) {
        SCOPED_TRACE(trial);
        RunRandomEditing(trial, 600);
    }
}

TEST(MenuNumberByName, ExactCaseSensitiveFirstMatchFrom1) {
    MenuTable menus;
    for (const char* name : {"Programs", "Tools", "programs", "Tools"})
        menus.menus.emplace_back().NAME = name;
    EXPECT_EQ(MenuNumberByName(menus, "Programs"), 1);
    EXPECT_EQ(MenuNumberByName(menus, "programs"), 3);
    EXPECT_EQ(MenuNumberByName(menus, "Tools"), 2);
    EXPECT_EQ(MenuNumberByName(menus, "TOOLS"), 0);
    EXPECT_EQ(MenuNumberByName(menus, "Tool"), 0);
    EXPECT_EQ(MenuNumberByName(menus, ""), 0) << "the unused slot 0 is never a menu";
}
