#include "menuwindow/interaction/menu_access.h"

#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

DisplayEntry Entry(std::string label, std::uint8_t type, std::string hotkey = "0") {
    DisplayEntry entry;
    entry.LABEL = std::move(label);
    entry.TYPE = type;
    entry.HOTKEY = std::move(hotkey);
    return entry;
}

MenuScene SceneOf(std::vector<DisplayEntry> entries, Rect workArea = {0, 0, 1024, 768}) {
    DisplayList list;
    list.entries = std::move(entries);
    return Scene(PlainLook(), std::move(list), "Tools", workArea);
}

} // namespace

TEST(MenuAccessibility, EachKindOfItemHasItsRoleStatesActionAndShortcutAndTheEmptyEntryNone) {
    struct Case {
        DisplayEntry entry;
        bool hasPopup;
        const char* action;
        const char* shortcut;
    } cases[] = {
        {Entry("Notepad", kItemFilename, "n"), false, "Execute", "Ctrl+N"},
        {Entry("Date & Time", kItemCommandName), false, "Execute", ""},
        {Entry("Documents", kItemFolderPath), true, "Open", ""},
        {Entry("Tools", kItemMenuName, "0"), true, "Open", ""},
        {Entry("Tasks", kItemTaskList, ""), true, "Open", ""},
    };
    std::vector<DisplayEntry> entries;
    for (const Case& c : cases)
        entries.push_back(c.entry);
    MenuAccess access = DescribeMenu(SceneOf(entries), {}, {});
    EXPECT_EQ(access.menu.name, "Tools");
    EXPECT_EQ(access.menu.role, AccessRole::Menu);
    ASSERT_EQ(access.items.size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const AccessObject& item = access.items[i];
        SCOPED_TRACE(item.name);
        EXPECT_EQ(item.name, cases[i].entry.LABEL) << "the label as painted, an ampersand and all";
        EXPECT_EQ(item.role, AccessRole::MenuItem);
        EXPECT_EQ(item.states.hasPopup, cases[i].hasPopup);
        EXPECT_TRUE(item.states.focusable);
        EXPECT_FALSE(item.states.unavailable);
        EXPECT_EQ(item.defaultAction, cases[i].action);
        EXPECT_EQ(item.shortcut, cases[i].shortcut);
    }

    MenuLook noHotkeys = PlainLook();
    noHotkeys.MenuHotKeys = 0;
    DisplayList one;
    one.entries = {cases[0].entry};
    EXPECT_EQ(DescribeMenu(Scene(noHotkeys, one), {}, {}).items[0].shortcut, "") << "hot keys switched off";

    DisplayList empty = Items({"(Empty)"});
    empty.empty = true;
    const AccessObject nothing = DescribeMenu(Scene(PlainLook(), empty), {}, {}).items.at(0);
    EXPECT_TRUE(nothing.states.unavailable) << "the entry of an empty folder or task list";
    EXPECT_FALSE(nothing.states.focusable);
    EXPECT_EQ(nothing.defaultAction, "");
}

TEST(MenuAccessibility, TheFocusFollowsTheSelectionBarOfTheWindowWithTheKeyboard) {
    MenuScene scene = SceneOf({Entry("A", 0), Entry("B", 0), Entry("C", 0)});
    MenuAccess access = DescribeMenu(scene, {2, false}, {.hasKeyboard = true});
    EXPECT_EQ(access.focus, 2);
    for (int item = 1; item <= 3; ++item) {
        EXPECT_EQ(access.items[item - 1].states.selected, item == 2) << item;
        EXPECT_EQ(access.items[item - 1].states.focused, item == 2) << item;
    }
    EXPECT_FALSE(access.menu.states.focused);

    access = DescribeMenu(scene, {2, false}, {.hasKeyboard = false});
    EXPECT_EQ(access.focus, std::nullopt) << "a parent whose sub-menu has the keyboard";
    EXPECT_TRUE(access.items[1].states.selected);
    EXPECT_FALSE(access.items[1].states.focused);

    access = DescribeMenu(scene, {}, {.hasKeyboard = true});
    EXPECT_EQ(access.focus, 0) << "no item selected: the menu itself";
    EXPECT_TRUE(access.menu.states.focused);

    struct Move {
        int from, to, event;
    } moves[] = {{0, 1, 1}, {1, 3, 3}, {3, 3, 0}, {3, 0, 0}};
    for (const Move& move : moves)
        EXPECT_EQ(FocusEventFor({move.from, false}, {move.to, true}), move.event) << move.from << " to " << move.to;
}

TEST(MenuAccessibility, PlacesAreTheDrawnButtonsAndHiddenItemsAreOffscreen) {
    std::vector<DisplayEntry> entries;
    for (const char* label : {"A", "B", "C", "D", "E", "F", "G", "H"})
        entries.push_back(Entry(label, 0));
    MenuScene scene = SceneOf(entries, {0, 0, 1024, 120});
    ASSERT_LT(scene.view().slots, 8) << "the work area cuts the menu";
    MenuAccess access = DescribeMenu(scene, {}, {});
    for (int item = 1; item <= 8; ++item) {
        const AccessObject& object = access.items[item - 1];
        EXPECT_EQ(object.place, ItemInWindow(scene, item)) << item;
        EXPECT_EQ(object.states.offscreen, ItemInWindow(scene, item).Empty()) << item;
    }
    EXPECT_TRUE(access.items.back().states.offscreen) << "behind the scroll button";
    const Rect second = access.items[1].place;
    EXPECT_EQ(ChildAt(access, {second.left + 1, second.bottom - 1}), 2);
    EXPECT_EQ(ChildAt(access, {1, 1}), 0) << "the title bar is the menu's own";

    MenuAccess rolled = DescribeMenu(scene, {}, {.rolledUp = true});
    EXPECT_TRUE(rolled.items[0].states.offscreen);
    EXPECT_EQ(ChildAt(rolled, {second.left + 1, second.bottom - 1}), 0);
}

TEST(MenuAccessibility, NavigationStepsAlongTheMenusOwnDirectionWithoutWrapping) {
    using enum AccessDirection;
    struct Case {
        bool horizontal;
        int from;
        AccessDirection direction;
        int to;
    } cases[] = {
        {false, 0, First, 1}, {false, 0, Last, 3},     {false, 2, First, 0}, {false, 0, Next, 0}, {false, 1, Next, 2},
        {false, 3, Next, 0},  {false, 1, Previous, 0}, {false, 2, Down, 3},  {false, 2, Up, 1},   {false, 2, Right, 0},
        {true, 2, Right, 3},  {true, 2, Left, 1},      {true, 2, Down, 0},   {false, 4, Next, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Navigate(3, c.horizontal, c.from, c.direction), c.to)
            << c.from << " direction " << static_cast<int>(c.direction) << (c.horizontal ? " across" : "");
    EXPECT_EQ(Navigate(0, false, 0, First), 0) << "an empty menu";
}
