#include "menus/menu_editing.h"

#include "menus/data_manager.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <string>

using namespace DataManager;

namespace {

// Menus "One", "Two", "Three", each with two items named after it, interleaved in the pool.
MenuTable ThreeMenus() {
    MenuTable table;
    for (const char* name : {"One", "Two", "Three"})
        table.menus[AddMenu(table)].NAME = name;
    for (int round = 0; round < 2; ++round)
        for (std::int32_t menu = 0; menu < 3; ++menu)
            table.pool[AppendItem(table, menu)].LABEL = table.menus[menu + 1].NAME + std::to_string(round);
    return table;
}

} // namespace

TEST(MenuEditing, ANewMenuIsNamedNewMenu1AndComesLast) {
    MenuTable table = ThreeMenus();
    EXPECT_EQ(AddMenu(table), 4);
    EXPECT_EQ(table.menus[4].NAME, "NewMenu1");
    EXPECT_EQ(LastItemPosition(table, 3), kNoItem);
}

TEST(MenuEditing, RemovingAMenuAsksFirstAndKeepsEveryOtherMenuWithItsItems) {
    MenuTable table = ThreeMenus();
    const MenuTable before = table;
    {
        FakeMessageBoxes no(MessageBoxes::kNo);
        EXPECT_FALSE(RemoveMenu(table, 2));
        ASSERT_EQ(no.requests.size(), 1u);
        EXPECT_EQ(no.requests[0].text, "This will delete the 'Two' menu!\n\nAre you sure?");
        EXPECT_EQ(no.requests[0].style, 4 + 48 + 256);
        EXPECT_EQ(table.menus, before.menus);
        EXPECT_EQ(table.pool, before.pool);
    }
    FakeMessageBoxes yes(MessageBoxes::kYes);
    EXPECT_TRUE(RemoveMenu(table, 2));
    ASSERT_EQ(table.MenuCount(), 2);
    EXPECT_EQ(table.menus[2].NAME, "Three");
    EXPECT_EQ(table.pool[FindItem(table, 0, 1)].LABEL, "One1");
    EXPECT_EQ(table.pool[FindItem(table, 1, 1)].LABEL, "Three1");
    EXPECT_EQ(LastItemPosition(table, 2), kNoItem);
    EXPECT_FALSE(RemoveMenu(table, 3)); // no such menu: nothing is asked
    EXPECT_EQ(yes.requests.size(), 1u);
}
