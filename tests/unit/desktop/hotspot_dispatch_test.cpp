#include "desktop/click_tracker.h"
#include "desktop/hotspot_dispatch.h"
#include "desktop/hotspots.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace Hotspots;

namespace {

constexpr int kF5 = 0x74;
constexpr int kF6 = 0x75;

HotspotRec WithHotKey(int key, bool shift) {
    HotspotRec hotspot;
    hotspot.UseHotKey = 1;
    hotspot.Hotkey = static_cast<std::int16_t>(key);
    hotspot.ShiftHotKey = shift;
    return hotspot;
}

KeyDown Keys(std::set<int> down) {
    return [down](int key) { return down.count(key) > 0; };
}

HotspotRec Rectangle(const char* app, std::int16_t code, std::int16_t x1, std::int16_t y1, std::int16_t x2,
                     std::int16_t y2) {
    HotspotRec hotspot;
    hotspot.App = app;
    hotspot.MouseButton = code;
    hotspot.x1 = x1;
    hotspot.y1 = y1;
    hotspot.x2 = x2;
    hotspot.y2 = y2;
    return hotspot;
}

std::function<ClickedWindow()> On(const char* title, MenuWindow::Point origin = {0, 0}, bool ours = false) {
    return [=] { return ClickedWindow{title, origin, ours}; };
}

std::optional<int> Chosen(const std::vector<HotspotRec>& hotSpots, std::int16_t code, MenuWindow::Point at,
                          const std::function<ClickedWindow()>& window) {
    std::optional<Choice> choice = ChooseHotspot(hotSpots, code, at, 1, window);
    return choice ? std::optional<int>(choice->hotspot) : std::nullopt;
}

} // namespace

TEST(HotKeys, TheFirstHotspotWhoseKeysArePressedFiresOncePerPress) {
    std::vector<HotspotRec> hotSpots = {HotspotRec{}, WithHotKey(kF5, true), WithHotKey(kF5, false),
                                        WithHotKey(kF6, false), WithHotKey(kF6, false)};
    hotSpots[0].Hotkey = kF5; // UseHotKey off
    HotKeyWatch watch;
    KeyDown ctrlF5 = Keys({kControlKey, kF5});
    EXPECT_EQ(HotspotByHotKey(hotSpots, watch, Keys({kF5})), std::nullopt) << "no modifier";
    EXPECT_EQ(HotspotByHotKey(hotSpots, watch, Keys({kShiftKey, kF5})), 1);
    EXPECT_EQ(HotspotByHotKey(hotSpots, watch, ctrlF5), 2) << "Ctrl is a different hot key";
    EXPECT_EQ(HotspotByHotKey(hotSpots, watch, ctrlF5), std::nullopt) << "held down, it fires once";
    EXPECT_EQ(HotspotByHotKey(hotSpots, watch, Keys({kControlKey, kF6})), 3) << "the first of two equal hot keys";
}

// Timer3 samples every 10 ms, Timer1 looks every 100 ms.
TEST(HotKeys, AHotKeyTappedBetweenTwoLooksFiresAndOneLetGoFiresAgain) {
    SettingsRec settings;
    settings.HotSpots = {WithHotKey(kF5, false)};
    KeyDown none = Keys({});
    KeyDown ctrlF5 = Keys({kControlKey, kF5});
    HotKeyWatch watch;
    auto look = [&](KeyDown now) {
        std::optional<int> fired = HotspotByHotKey(settings.HotSpots, watch, now);
        watch.EndTick();
        return fired;
    };
    watch.Sample(settings, ctrlF5);
    watch.Sample(settings, none);
    EXPECT_EQ(look(none), 0) << "tapped between two looks";
    EXPECT_EQ(look(none), std::nullopt) << "a tap fires once";
    watch.Sample(settings, none);
    watch.Sample(settings, ctrlF5);
    EXPECT_EQ(look(ctrlF5), 0);
    watch.Sample(settings, ctrlF5);
    EXPECT_EQ(look(ctrlF5), std::nullopt) << "held";
    watch.Sample(settings, Keys({kControlKey}));
    watch.Sample(settings, ctrlF5);
    EXPECT_EQ(look(ctrlF5), 0) << "let go and pressed again between two looks";
    watch.Sample(settings, Keys({kControlKey}));
    watch.Sample(settings, Keys({kF5}));
    EXPECT_EQ(look(none), std::nullopt) << "Ctrl and then F5 alone are not the hot key";
    watch.Sample(settings, ctrlF5);
    EXPECT_EQ(look(ctrlF5), 0);
    watch.Sample(settings, ctrlF5);
    watch.Sample(settings, none);
    EXPECT_EQ(look(none), std::nullopt) << "a tap still down after the look that fired it fires once";
}

TEST(HotKeys, TheGeneralHotKeyIsCtrlOrShiftWithItsKeyWhenSwitchedOn) {
    SettingsRec settings;
    EXPECT_EQ(GeneralHotKey(settings), (HotKey{123, false})) << "Ctrl+F12 by default";
    settings.GenShiftHotKey = true;
    EXPECT_EQ(GeneralHotKey(settings), (HotKey{123, true}));
    settings.GenUseHotKey = false;
    EXPECT_EQ(GeneralHotKey(settings), std::nullopt);
}

TEST(ChooseHotspot, ClicksTakeTheFirstHotspotOfTheirWindowWhoseRectangleHoldsThePoint) {
    std::vector<HotspotRec> hotSpots = {DefaultHotspot(1024, 768, MenuTable{}), Rectangle("Notepad", kRightClick, 10, 20, 30, 40),
                                        Rectangle("Desktop", kRightClick, 0, 0, 100, 100),
                                        Rectangle("Desktop", kLeftClick, 40, 0, 0, 768)};
    struct Case {
        std::int16_t code;
        MenuWindow::Point at;
        std::function<ClickedWindow()> window;
        std::optional<int> expected;
        const char* what;
    } cases[] = {
        {kLeftClick, {47, 300}, On("Desktop"), std::nullopt, "left of the icon column's edge"},
        {kLeftClick, {48, 300}, On("Desktop"), 0, "on the default hotspot's edge"},
        {kLeftClick, {20, 300}, On("Desktop"), std::nullopt, "x1 > x2 holds nothing"},
        {kLeftClick, {1024, 768}, On("Desktop"), 0, "bounds are inside"},
        {kLeftClick, {500, 300}, On("Program Manager"), 0, "the shell's desktop is the desktop"},
        {kLeftClick, {500, 300}, On("Untitled - Notepad"), std::nullopt, "another window"},
        {kRightClick, {120, 140}, On("Notepad", {100, 100}), 1, "relative to the window"},
        {kRightClick, {50, 50}, On("Notepad", {100, 100}), std::nullopt, "outside the window's rectangle"},
        {kRightClick, {50, 50}, On("Desktop"), 2, "the first match of the code"},
        {kLeftClick, {500, 300}, On("Desktop", {0, 0}, true), std::nullopt, "a window of ours"},
        {kLeftClick, {500, 300}, On("TarVex"), std::nullopt, "a window titled as ours"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Chosen(hotSpots, c.code, c.at, c.window), c.expected) << c.what;
    std::optional<Choice> choice = ChooseHotspot(hotSpots, kRightClick, {120, 140}, 1, On("Notepad", {100, 100}));
    ASSERT_TRUE(choice);
    EXPECT_EQ(choice->origin, (MenuWindow::Point{100, 100}));
}

TEST(ChooseHotspot, BumpsAndMiddleClicksAnywhereTakeTheFirstHotspotOfTheirCodeWithoutLookingAtTheWindow) {
    std::vector<HotspotRec> hotSpots = {Rectangle("Desktop", kMiddleClick, 0, 0, 100, 100),
                                        Rectangle("Other", kTopLeftCorner, 500, 500, 400, 400),
                                        Rectangle("Other", kMiddleAnywhere, 500, 500, 400, 400)};
    std::function<ClickedWindow()> noWindow = [] {
        ADD_FAILURE() << "the window is not looked at";
        return ClickedWindow{};
    };
    EXPECT_EQ(Chosen(hotSpots, kTopLeftCorner, {0, 0}, noWindow), 1);
    EXPECT_EQ(Chosen(hotSpots, kMiddleClick, {900, 900}, noWindow), 2);
    EXPECT_EQ(Chosen(hotSpots, kBottomEdge, {0, 767}, noWindow), std::nullopt);
    hotSpots.pop_back();
    EXPECT_EQ(Chosen(hotSpots, kMiddleClick, {50, 50}, On("Desktop")), 0) << "no code 11: a middle click in the rectangle";
}

TEST(ChooseHotspot, TheClickedWindowIsTheFirstWithATitleClimbingToItsParents) {
    // 4 (desktop, no title) <- 3 "Notepad" <- 2 "" <- 1 ""; 5 has no title and no parent.
    std::map<std::uintptr_t, std::pair<std::string, std::uintptr_t>> windows = {
        {1, {"", 2}}, {2, {"", 3}}, {3, {"Notepad", 4}}, {4, {"", 0}}, {5, {"", 0}}};
    WindowLookup lookup{[&](std::uintptr_t w) { return windows[w].first; },
                        [&](std::uintptr_t w) { return windows[w].second; }, 4};
    EXPECT_EQ(ReferenceWindow(1, lookup), 3u);
    EXPECT_EQ(HotspotTitle(ReferenceWindow(1, lookup), lookup), "Notepad");
    EXPECT_EQ(HotspotTitle(ReferenceWindow(4, lookup), lookup), "Desktop");
    EXPECT_EQ(HotspotTitle(ReferenceWindow(5, lookup), lookup), "") << "an untitled window that is not the desktop";
}

TEST(DecideToggle, FiringClosesItsOwnMenuOrASameGroupMenuUnlessItStaysOpen) {
    struct Open {
        int hotspot;
        const char* group;
        bool alwaysOpen;
        bool byHotspot = true;
    };
    struct Case {
        std::vector<Open> open;
        Toggle expected;
        const char* what;
    } cases[] = {
        {{}, {{}, 0, true}, "nothing open"},
        {{{0, "A", false}}, {{}, 1, false}, "its own menu closes"},
        {{{0, "A", true}}, {{1}, 0, false}, "its AlwaysOpen menu comes forward"},
        {{{1, "A", false}, {0, "A", false}}, {{}, 1, false}, "a menu of its group closes and the firing stops"},
        {{{1, "A", true}, {2, "B", false}}, {{}, 0, true}, "AlwaysOpen and other groups stay"},
        {{{0, "A", true}, {1, "A", false}}, {{1}, 2, false}, "forward, then the group's menu closes"},
        {{{0, "A", false, false}}, {{}, 0, true}, "a sub-menu or torn-off menu is not the hotspot's"},
    };
    for (const Case& c : cases) {
        MenuWindow::CascadeList list;
        for (const Open& open : c.open) {
            MenuWindow::CascadeRec& record = list.At(list.Append());
            record.hotspot = open.hotspot;
            record.groupName = open.group;
            record.alwaysOpen = open.alwaysOpen;
            record.openedByHotspot = open.byHotspot;
        }
        Toggle toggle = DecideToggle(list, 0, "A");
        EXPECT_EQ(toggle.bringForward, c.expected.bringForward) << c.what;
        EXPECT_EQ(toggle.close, c.expected.close) << c.what;
        EXPECT_EQ(toggle.fire, c.expected.fire) << c.what;
    }
}
