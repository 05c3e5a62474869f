#include "desktop/task_filter.h"
#include "menuwindow/layout/item_list.h"

#include <gtest/gtest.h>

using namespace Tasks;

TEST(TaskFilter, ToolWindowsNeverOwnedOnlyAsApplicationWindowsVisibleAndTitledOnly) {
    struct Case {
        const char* what;
        std::uint32_t exStyle;
        bool owned;
        bool visible;
        const char* title;
        bool listed;
    };
    const Case cases[] = {
        {"a plain window", 0, false, true, "Notepad", true},
        {"a visible, titled tool window", kToolWindowStyle, false, true, "Palette", false},
        {"a tool window that also says application", kToolWindowStyle | kAppWindowStyle, false, true, "x", false},
        {"an owned application window", kAppWindowStyle, true, true, "Find", true},
        {"an owned window", 0, true, true, "Find", false},
        {"an untitled visible window", 0, false, true, "", false},
        {"a hidden titled window", 0, false, false, "Hidden", false},
        {"other extended styles", 0x100 | 0x8, false, true, "Topmost", true},
    };
    for (const Case& c : cases)
        EXPECT_EQ(IsTask({1, c.exStyle, c.owned, c.visible, c.title}), c.listed) << c.what;
}

TEST(TaskFilter, KeepsTheZOrderOfTheWalk) {
    std::vector<WindowRecord> windows = {
        {3, 0, false, true, "third"}, {1, kToolWindowStyle, false, true, "tool"}, {2, 0, false, true, "second"}};
    std::vector<WindowRecord> tasks = TasksOf(windows);
    ASSERT_EQ(tasks.size(), 2u);
    EXPECT_EQ(tasks[0].handle, 3u);
    EXPECT_EQ(tasks[1].handle, 2u);
}

TEST(TaskList, EntriesCarryTheWindowAndTheProgramAndAnEmptyListSaysSo) {
    MenuWindow::DisplayList list = MenuWindow::TaskList({{7, "Notepad", "C:\\windows\\notepad.exe"}, {9, "cmd", ""}});
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1).LABEL, "Notepad");
    EXPECT_EQ(list.Item(1).taskWindow, 7u);
    EXPECT_FALSE(MenuWindow::OpensSubMenu(list.Item(1).TYPE));
    EXPECT_EQ(MenuWindow::IconSourceOf(list.Item(1)), (MenuWindow::IconSource{"C:\\windows\\notepad.exe", 0, false}));
    EXPECT_EQ(MenuWindow::ShellIconSourceOf(list.Item(1)), (MenuWindow::IconSource{"C:\\windows\\notepad.exe", 0, true}))
        << "a program without icons of its own shows the shell's";
    EXPECT_EQ(MenuWindow::IconSourceOf(list.Item(2)), std::nullopt) << "a program that could not be opened";

    MenuWindow::DisplayList none = MenuWindow::TaskList({});
    EXPECT_TRUE(none.empty);
    EXPECT_EQ(none.Item(1).LABEL, "(Empty)");
}

TEST(TaskList, ATaskThatComesOrGoesChangesTheLengthAnotherTitleOnlyItsItem) {
    using MenuWindow::TaskList;
    MenuWindow::DisplayList before = TaskList({{1, "a", ""}, {2, "b", ""}});
    EXPECT_TRUE(MenuWindow::ChangeBetween(before, before).None());
    EXPECT_TRUE(MenuWindow::ChangeBetween(before, TaskList({{1, "a", ""}})).length);
    EXPECT_TRUE(MenuWindow::ChangeBetween(TaskList({{1, "a", ""}}), TaskList({})).length) << "one task to (Empty)";
    MenuWindow::ListChange retitled = MenuWindow::ChangeBetween(before, TaskList({{1, "a", ""}, {2, "b - saved", ""}}));
    EXPECT_FALSE(retitled.length);
    EXPECT_EQ(retitled.items, std::vector<int>{2});
    EXPECT_EQ(MenuWindow::ChangeBetween(before, TaskList({{2, "b", ""}, {1, "a", ""}})).items, (std::vector<int>{1, 2}))
        << "the Z-order changed";
}
