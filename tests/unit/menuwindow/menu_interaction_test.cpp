#include "menuwindow/interaction/menu_interaction.h"

#include "scene_support.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

// A menu of items; the first letter of each text gives the item's type and the rest is
// its label: "p..." a program, "c..." a command, "f..." a folder, "m..." a menu.
struct Menu {
    explicit Menu(std::vector<std::string> labels, MenuLook menuLook = PlainLook(), Rect workArea = {0, 0, 1024, 768})
        : look(menuLook) {
        DisplayList list = Items(labels);
        for (DisplayEntry& entry : list.entries) {
            entry.TYPE = TypeOf(entry.LABEL);
            entry.LABEL.erase(0, 1);
        }
        scene = Scene(look, std::move(list), "Tools", workArea);
    }
    static std::uint8_t TypeOf(const std::string& label) {
        switch (label.empty() ? 'p' : label[0]) {
        case 'c': return kItemCommandName;
        case 'f': return kItemFolderPath;
        case 'm': return kItemMenuName;
        default: return kItemFilename;
        }
    }
    Point At(int item) const {
        Rect button = ItemInWindow(scene, item);
        return {(button.left + button.right) / 2, (button.top + button.bottom) / 2};
    }
    Effects Click(int item, Modifiers modifiers = {}) {
        interaction.Press(scene, MouseButton::Left, modifiers, At(item));
        return interaction.Release(scene, MouseButton::Left, modifiers, At(item));
    }
    Effects Key(MenuWindow::Key key, char32_t character = 0, int level = 1, Modifiers modifiers = {}) {
        return interaction.KeyDown(scene, key, character, modifiers, level);
    }
    int Selected() const { return interaction.state().selected; }

    MenuLook look;
    MenuScene scene;
    MenuInteraction interaction;
};

const std::vector<std::string> kFive = {"pNotepad", "cShut down", "fDocuments", "mTools", "pnano"};

bool Orders(const Effects& effects, MenuTimer timer, int interval) {
    for (const TimerOrder& order : effects.timers)
        if (order.timer == timer && order.interval == interval)
            return true;
    return false;
}

bool Stops(const Effects& effects, MenuTimer timer) {
    return Orders(effects, timer, 0);
}

} // namespace

TEST(MenuKeys, ArrowsWrapRoundAndHomeAndEndJump) {
    struct Case {
        int from;
        Key key;
        int to;
    } cases[] = {
        {0, Key::Down, 1}, {1, Key::Down, 2}, {5, Key::Down, 1}, {0, Key::Up, 5}, {1, Key::Up, 5},
        {3, Key::Up, 2},   {4, Key::Home, 1}, {2, Key::End, 5},
    };
    for (const Case& c : cases) {
        Menu menu(kFive);
        while (menu.Selected() != c.from)
            menu.Key(Key::Down);
        Effects effects = menu.Key(c.key);
        EXPECT_EQ(menu.Selected(), c.to) << c.from << " key " << static_cast<int>(c.key);
        EXPECT_EQ(effects.bar, (SelectionState{c.to, false}));
    }
    EXPECT_EQ(StepUp(0, 0), 0);
    EXPECT_EQ(StepDown(0, 0), 0);
}

TEST(MenuKeys, KeysDoNothingWithoutTheSelectionBarOrWithAShiftKey) {
    MenuLook noBar = PlainLook();
    noBar.SelBar = false;
    Menu withoutBar(kFive, noBar);
    EXPECT_EQ(withoutBar.Key(Key::Down), Effects{});
    EXPECT_EQ(withoutBar.Selected(), 0);
    Menu menu(kFive);
    for (Modifiers held : {Modifiers{true, false, false}, Modifiers{false, true, false}, Modifiers{false, false, true}})
        EXPECT_EQ(menu.Key(Key::Down, 0, 1, held), Effects{});
    EXPECT_EQ(menu.Selected(), 0);
}

TEST(MenuKeys, ALetterSelectsTheNextItemStartingWithItWithoutChoosing) {
    Menu menu(kFive);
    Effects effects = menu.Key(Key::Other, U'N');
    EXPECT_EQ(menu.Selected(), 1);
    EXPECT_EQ(effects.action, MenuAction::None);
    menu.Key(Key::Other, U'N');
    EXPECT_EQ(menu.Selected(), 5) << "the search starts after the selection, any case";
    menu.Key(Key::Other, U'N');
    EXPECT_EQ(menu.Selected(), 1) << "then wraps round to the first";
    EXPECT_EQ(menu.Key(Key::Other, U'Z'), Effects{}) << "a letter no item starts with changes nothing";
    EXPECT_EQ(menu.Selected(), 1);
    EXPECT_EQ(menu.Key(Key::Other, 0), Effects{});

    Menu cyrillic({"pБлокнот", "pбраузер"});
    cyrillic.Key(Key::Other, U'б');
    EXPECT_EQ(cyrillic.Selected(), 1);
}

TEST(MenuKeys, AKeyboardSelectionScrollsALongMenuToShowIt) {
    std::vector<std::string> labels(40, "pItem");
    Menu menu(labels, PlainLook(), {0, 0, 1024, 300});
    ASSERT_TRUE(IsCut(menu.scene.view()));
    Effects effects = menu.Key(Key::End);
    ASSERT_TRUE(effects.first);
    EXPECT_EQ(*effects.first, LargestFirst(menu.scene.view()));
}

TEST(MenuKeys, EnterAndRightActAsAClickAndLeftAndEscapeClose) {
    Menu menu(kFive);
    EXPECT_EQ(menu.Key(Key::Enter), Effects{}) << "nothing selected";
    menu.Key(Key::Home);
    Effects chosen = menu.Key(Key::Enter);
    EXPECT_EQ(chosen.action, MenuAction::Choose);
    EXPECT_EQ(chosen.item, 1);
    EXPECT_FALSE(chosen.ctrlHeld);
    menu.Key(Key::Other, U't');
    Effects opened = menu.Key(Key::Right);
    EXPECT_EQ(opened.action, MenuAction::OpenSubMenu);
    EXPECT_EQ(opened.item, 4);
    EXPECT_EQ(menu.Key(Key::Left, 0, 1).action, MenuAction::None) << "Left closes sub-menus only";
    EXPECT_EQ(menu.Key(Key::Left, 0, 2).action, MenuAction::CloseMenu);
    EXPECT_EQ(menu.Key(Key::Escape, 0, 1).action, MenuAction::CloseMenu);
}

TEST(MenuHotKeys, CtrlWithAnItemsHotKeyChoosesIt) {
    std::vector<std::string> labels = {"pOne", "pTwo"};
    Menu menu(labels);
    menu.scene.list.entries[1].HOTKEY = "t";
    Modifiers ctrl{false, true, false};
    Effects effects = menu.interaction.KeyUp(menu.scene, U'T', ctrl);
    EXPECT_EQ(effects.action, MenuAction::Choose);
    EXPECT_EQ(effects.item, 2);
    EXPECT_FALSE(effects.ctrlHeld) << "the hot key's Ctrl does not keep the menus open";
    EXPECT_EQ(menu.interaction.KeyUp(menu.scene, U'T', {}), Effects{});
    EXPECT_EQ(menu.interaction.KeyUp(menu.scene, U'0', ctrl), Effects{}) << "\"0\" is no hot key";
    EXPECT_EQ(menu.interaction.KeyUp(menu.scene, U' ', ctrl), Effects{});
    menu.scene.look.MenuHotKeys = 0;
    EXPECT_EQ(menu.interaction.KeyUp(menu.scene, U'T', ctrl), Effects{});
}

TEST(MenuClicks, AReleaseElsewhereThanThePressChoosesNothing) {
    Menu menu(kFive);
    menu.interaction.Press(menu.scene, MouseButton::Left, {}, menu.At(1));
    Effects moved = menu.interaction.Release(menu.scene, MouseButton::Left, {}, menu.At(2));
    EXPECT_EQ(moved.action, MenuAction::None);
    EXPECT_EQ(moved.bar, SelectionState{});
    EXPECT_EQ(moved.capture, Capture::Release);
    menu.interaction.Press(menu.scene, MouseButton::Left, {}, menu.At(1));
    Point outside{menu.scene.layout.surface.right + 5, menu.At(1).y};
    EXPECT_EQ(menu.interaction.Release(menu.scene, MouseButton::Left, {}, outside).action, MenuAction::None);
    menu.interaction.Press(menu.scene, MouseButton::Right, {}, menu.At(1));
    EXPECT_EQ(menu.interaction.Release(menu.scene, MouseButton::Left, {}, menu.At(1)).action, MenuAction::None)
        << "the other button's release";
}

TEST(MenuClicks, ChoosingWithCtrlKeepsTheMenusOpenAndClosesAnotherSubMenu) {
    Menu menu(kFive);
    menu.interaction.SubMenuOpened(4);
    Effects effects = menu.Click(1, {false, true, false});
    EXPECT_EQ(effects.action, MenuAction::Choose);
    EXPECT_TRUE(effects.ctrlHeld);
    EXPECT_TRUE(effects.closeSubMenuFirst);
    EXPECT_EQ(menu.interaction.state().openSubMenu, 0);
}

TEST(MenuClicks, OneClickListsAFolderAndASecondQuickOneOpensIt) {
    Menu menu(kFive);
    Effects first = menu.Click(3);
    EXPECT_EQ(first.action, MenuAction::OpenSubMenu);
    EXPECT_TRUE(Orders(first, MenuTimer::DoubleClick, kDoubleClickInterval));
    menu.interaction.SubMenuOpened(3);
    Effects second = menu.Click(3);
    EXPECT_EQ(second.action, MenuAction::Choose) << "within the double-click time";
    EXPECT_TRUE(second.closeSubMenuFirst);

    Menu slow(kFive);
    slow.Click(3);
    slow.interaction.SubMenuOpened(3);
    EXPECT_TRUE(Stops(slow.interaction.DoubleClickTick(), MenuTimer::DoubleClick));
    EXPECT_EQ(slow.Click(3).action, MenuAction::None) << "a later click keeps the listing open";
    slow.scene.look.MenuToggleSubMenus = true;
    slow.interaction.DoubleClickTick();
    EXPECT_EQ(slow.Click(3).action, MenuAction::CloseSubMenu);
}

TEST(MenuHover, TheBarFollowsTheMouseOnlyWhenAskedAndLeavesWithIt) {
    Menu still(kFive);
    EXPECT_FALSE(still.interaction.Move(still.scene, still.At(2)).bar) << "SelBarFollowMouse is off by default";

    MenuLook follow = PlainLook();
    follow.SelBarFollowMouse = true;
    Menu menu(kFive, follow);
    Effects over = menu.interaction.Move(menu.scene, menu.At(2));
    EXPECT_EQ(over.bar, (SelectionState{2, false}));
    EXPECT_EQ(over.capture, Capture::Take) << "so that leaving the menu is seen";
    EXPECT_FALSE(menu.interaction.Move(menu.scene, menu.At(2)).bar) << "nothing to repaint";
    Effects left = menu.interaction.Move(menu.scene, {-1, menu.At(2).y});
    EXPECT_EQ(left.capture, Capture::Release);
    EXPECT_EQ(left.bar, SelectionState{});
    EXPECT_EQ(menu.Selected(), 2) << "the keyboard goes on from there";

    menu.interaction.Move(menu.scene, menu.At(4));
    menu.interaction.SubMenuOpened(4);
    EXPECT_FALSE(menu.interaction.Move(menu.scene, {-1, 0}).bar) << "the open sub-menu's item keeps the bar";
    menu.interaction.DiscardNextMove();
    EXPECT_EQ(menu.interaction.Move(menu.scene, menu.At(1)), Effects{});
    EXPECT_EQ(menu.interaction.Move(menu.scene, menu.At(1)).bar, (SelectionState{1, false}));
}

TEST(MenuHover, APressIsDraggedAlongTheMenu) {
    Menu menu(kFive);
    EXPECT_EQ(menu.interaction.Press(menu.scene, MouseButton::Left, {}, menu.At(1)).bar, (SelectionState{1, true}));
    EXPECT_EQ(menu.interaction.Move(menu.scene, menu.At(2)).bar, (SelectionState{2, true}));
    EXPECT_EQ(menu.interaction.Release(menu.scene, MouseButton::Left, {}, menu.At(2)).action, MenuAction::Choose);
}

TEST(MenuHover, RestingOpensASubMenuAfterTheDelayAndAProgramClosesIt) {
    MenuLook look = PlainLook();
    look.MenuAutoDropDown = true;
    look.MenuDropDownDelay = 300;
    Menu menu(kFive, look);
    Effects arrived = menu.interaction.Move(menu.scene, menu.At(4));
    EXPECT_TRUE(Orders(arrived, MenuTimer::DropDown, 300));
    EXPECT_EQ(arrived.action, MenuAction::None);
    Effects rested = menu.interaction.DropDownTick(menu.scene, menu.At(4));
    EXPECT_EQ(rested.action, MenuAction::OpenSubMenu);
    EXPECT_EQ(rested.item, 4);
    menu.interaction.SubMenuOpened(4);

    menu.interaction.Move(menu.scene, menu.At(1));
    EXPECT_EQ(menu.interaction.DropDownTick(menu.scene, menu.At(1)).action, MenuAction::CloseSubMenu);
    menu.interaction.SubMenuClosed();

    menu.interaction.Move(menu.scene, menu.At(3));
    EXPECT_EQ(menu.interaction.DropDownTick(menu.scene, std::nullopt).action, MenuAction::None)
        << "the cursor went to another window";
    EXPECT_EQ(menu.interaction.state().timed, 0);
}

TEST(MenuScrolling, RestingOnAScrollButtonScrollsToTheEndAndStopsByItself) {
    MenuLook look = PlainLook();
    look.MenuAutoScroll = true;
    look.MenuScrollSpeed = 30;
    Menu menu(std::vector<std::string>(30, "pItem"), look, {0, 0, 1024, 300});
    std::vector<ScrollButton> buttons = ScrollButtons(menu.scene.layout.buttons);
    ASSERT_EQ(buttons.size(), 1u);
    const Rect& surface = menu.scene.layout.surface;
    Point onButton{surface.left + buttons[0].rect.left + 5, surface.top + buttons[0].rect.top + 5};
    menu.Key(Key::Home);
    EXPECT_TRUE(Orders(menu.interaction.Move(menu.scene, onButton), MenuTimer::Scroll, 30));

    std::vector<int> intervals;
    int ticks = 0;
    for (; ticks < 100; ++ticks) {
        Effects step = menu.interaction.ScrollTick(menu.scene, onButton);
        for (const TimerOrder& order : step.timers)
            intervals.push_back(order.interval);
        if (step.first)
            ScrollTo(menu.scene, *step.first);
        if (Stops(step, MenuTimer::Scroll))
            break;
        if (ticks == 0) {
            EXPECT_EQ(step.bar, SelectionState{}) << "the bar hides while the menu scrolls";
        }
    }
    EXPECT_EQ(menu.scene.view().first, LargestFirst(menu.scene.view()));
    EXPECT_EQ(ticks + 1, LargestFirst(menu.scene.view())) << "one item per tick, stopping at the last";
    ASSERT_GE(intervals.size(), 3u);
    EXPECT_EQ(intervals[0], kScrollPause);
    EXPECT_EQ(intervals[1], 30);
    EXPECT_EQ(intervals.back(), 0);
}

TEST(MenuScrolling, WithoutAutoScrollAPressScrollsUntilTheCursorLeavesOrLetsGo) {
    Menu menu(std::vector<std::string>(30, "pItem"), PlainLook(), {0, 0, 1024, 300});
    Rect button = ScrollButtons(menu.scene.layout.buttons)[0].rect;
    const Rect& surface = menu.scene.layout.surface;
    Point onButton{surface.left + button.left + 5, surface.top + button.top + 5};
    EXPECT_TRUE(menu.interaction.Move(menu.scene, onButton).timers.empty());
    EXPECT_FALSE(menu.interaction.Press(menu.scene, MouseButton::Left, {}, onButton).timers.empty());
    EXPECT_TRUE(menu.interaction.ScrollTick(menu.scene, onButton).first);
    EXPECT_TRUE(Stops(menu.interaction.ScrollTick(menu.scene, menu.At(1)), MenuTimer::Scroll));
    menu.interaction.Press(menu.scene, MouseButton::Left, {}, onButton);
    EXPECT_TRUE(Stops(menu.interaction.Release(menu.scene, MouseButton::Left, {}, onButton), MenuTimer::Scroll));
}

TEST(MenuFlash, TheBarFlashesForFiveTicksAndEndsAsTheSelectionHasIt) {
    MenuLook look = PlainLook();
    look.SelBarBlink = true;
    Menu menu(kFive, look);
    EXPECT_TRUE(Orders(menu.interaction.Press(menu.scene, MouseButton::Left, {}, menu.At(2)), MenuTimer::FlashSelBar,
                       kFlashInterval));
    menu.interaction.Release(menu.scene, MouseButton::Left, {}, {-5, -5});
    menu.Key(Key::Home);
    std::vector<ButtonState> drawn;
    Effects tick;
    for (int i = 0; i < kFlashTicks; ++i) {
        tick = menu.interaction.FlashTick();
        ASSERT_TRUE(tick.flash);
        drawn.push_back(tick.flash->second);
    }
    EXPECT_EQ(drawn, (std::vector<ButtonState>{ButtonState::Selected, ButtonState::Normal, ButtonState::Selected,
                                               ButtonState::Normal, ButtonState::Selected}));
    EXPECT_TRUE(Stops(tick, MenuTimer::FlashSelBar));
}

TEST(MenuInteractionTypeAhead, QuickLettersExtendTheSearchAndSlowOnesSearchAlone) {
    MenuLook look = PlainLook();
    look.SelBar = true;
    Menu menu({"pCalculator", "pCards", "pConsole", "pcontrol", "pЖурнал", "pЖёлудь"}, look);
    struct Step {
        char32_t character;
        std::uint32_t time;
        int selected;
    };
    const Step steps[] = {
        {U'c', 1000, 1},  // a single letter: the first-letter search
        {U'o', 1500, 3},  // "co", 500 ms later: Console, past Calculator and Cards
        {U'n', 2100, 3},  // "con" stays on Console
        {U't', 2700, 4},  // "cont": control, in any case
        {U'x', 3300, 4},  // "contx": none, nor 'x' alone: the selection stays
        {U'c', 3700, 1},  // "xc" leads nowhere: 'c' alone, from the item after control
        {U'c', 5000, 2},  // 1.3 s later a new search: Cards
        {U'c', 5600, 3},  // "cc": the same letter again steps on, as it does alone
        {U'c', 6000, 4},
        {U'ж', 7000, 5},  // Cyrillic, folded
        {U'Ё', 7400, 6},  // "жё"
    };
    for (const Step& step : steps) {
        menu.interaction.KeyDown(menu.scene, Key::Other, step.character, {}, 1, step.time);
        EXPECT_EQ(menu.Selected(), step.selected) << "at " << step.time << " ms";
    }
    menu.interaction.KeyDown(menu.scene, Key::Home, 0, {}, 1, 7500);
    menu.interaction.KeyDown(menu.scene, Key::Other, U'o', {}, 1, 7600);
    EXPECT_EQ(menu.Selected(), 1) << "a key that is no letter ends the search: 'o' alone finds nothing";

    look.MenuTypeAhead = false;
    Menu off({"pCalculator", "pCards", "pConsole"}, look);
    off.interaction.KeyDown(off.scene, Key::Other, U'c', {}, 1, 1000);
    off.interaction.KeyDown(off.scene, Key::Other, U'o', {}, 1, 1100);
    EXPECT_EQ(off.Selected(), 1) << "off, 'o' searches alone and finds nothing";
}

namespace {

// A menu whose first item's sub-menu is open beside it, the mouse having come from that
// item; the bar follows the mouse and sub-menus drop down after 300 ms.
struct AimingMenu : Menu {
    explicit AimingMenu(bool aim = true, bool towardsStart = false) : Menu(kItems, Look(aim)) {
        const int width = scene.layout.window.width;
        const Rect subMenu = towardsStart ? Rect{-150, 0, 0, 400} : Rect{width, 0, width + 150, 400};
        interaction.Move(scene, At(1));
        interaction.SubMenuOpened(1, NearEdge(subMenu, false, towardsStart));
    }
    static MenuLook Look(bool aim) {
        MenuLook look = PlainLook();
        look.SelBarFollowMouse = true;
        look.MenuAutoDropDown = true;
        look.MenuDropDownDelay = 300;
        look.MenuAimAtSubMenus = aim;
        return look;
    }
    // On an item's button, near this window's right or left side.
    Point Near(int item, bool right) const {
        Rect button = ItemInWindow(scene, item);
        return {right ? button.right - 2 : button.left + 2, (button.top + button.bottom) / 2};
    }
    inline static const std::vector<std::string> kItems = {"mTools", "pNotepad", "pnano", "pEditor"};
};

} // namespace

TEST(MenuAim, CrossingItemsTowardsTheOpenSubMenuChangesNothingInsideTheTriangle) {
    struct Case {
        const char* what;
        bool aim;
        bool towardsStart;
        int item;
        bool right;
        bool deferred;
    } cases[] = {
        {"on the way to a sub-menu on the right", true, false, 2, true, true},
        {"further on the way", true, false, 3, true, true},
        {"away from it, outside the triangle", true, false, 2, false, false},
        {"on the way to a sub-menu on the left", true, true, 2, false, true},
        {"away from a sub-menu on the left", true, true, 2, true, false},
        {"the setting off", false, false, 2, true, false},
    };
    for (const Case& c : cases) {
        AimingMenu menu(c.aim, c.towardsStart);
        Effects moved = menu.interaction.Move(menu.scene, menu.Near(c.item, c.right));
        if (c.deferred) {
            EXPECT_FALSE(moved.bar) << c.what;
            EXPECT_TRUE(Orders(moved, MenuTimer::AimRest, 300)) << c.what;
            EXPECT_EQ(menu.Selected(), 1) << c.what;
        } else {
            EXPECT_EQ(moved.bar, (SelectionState{c.item, false})) << c.what;
            EXPECT_TRUE(Orders(moved, MenuTimer::DropDown, 300)) << c.what;
            EXPECT_FALSE(Orders(moved, MenuTimer::AimRest, 300)) << c.what;
        }
    }
}

TEST(MenuAim, WhereTheCursorRestsCountsAndTheAimCanSetOutAgainFromThere) {
    AimingMenu menu;
    const Point rest = menu.Near(2, true);
    menu.interaction.Move(menu.scene, rest);
    EXPECT_EQ(menu.interaction.DropDownTick(menu.scene, rest).action, MenuAction::None)
        << "the sub-menu stays while aiming";
    Effects rested = menu.interaction.AimRestTick(menu.scene, rest);
    EXPECT_EQ(rested.bar, (SelectionState{2, false}));
    EXPECT_TRUE(Stops(rested, MenuTimer::AimRest));

    Effects onwards = menu.interaction.Move(menu.scene, {rest.x + 1, rest.y + 1});
    EXPECT_FALSE(onwards.bar) << "an aim from the rest point";
    EXPECT_EQ(menu.interaction.DropDownTick(menu.scene, Point{rest.x + 1, rest.y + 1}).action, MenuAction::None);
    Effects onlyStopped;
    onlyStopped.timers = {{MenuTimer::AimRest, 0}};
    EXPECT_EQ(menu.interaction.AimRestTick(menu.scene, std::nullopt), onlyStopped)
        << "the cursor went on into the sub-menu";
}
