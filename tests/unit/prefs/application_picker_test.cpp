// The application picker's choice of title: the top-level window's, "Desktop" for the
// desktop and untitled windows, and a refusal for the program's own windows.
#include "prefs/application_picker.h"

#include <gtest/gtest.h>

#include <map>

using namespace Preferences;

namespace {

struct FakeWindow {
    std::uintptr_t parent;
    std::string title;
    bool ours = false;
};

// 1 is the desktop; 10 a program with a titled child 11 and its grandchild 12.
const std::map<std::uintptr_t, FakeWindow> kWindows = {
    {1, {0, ""}},
    {10, {1, "Untitled - Notepad"}},
    {11, {10, "OK"}},
    {12, {11, ""}},
    {20, {1, ""}},
    {30, {1, "Program Manager"}},
    {40, {1, "Tarvex Preferences", true}},
    {41, {40, "Add", true}},
    {50, {1, "TARVEX"}},
};

PickedApplication Pick(std::uintptr_t window) {
    Hotspots::WindowLookup lookup{[](std::uintptr_t w) { return kWindows.at(w).title; },
                                  [](std::uintptr_t w) { return kWindows.at(w).parent; }, 1};
    return PickApplication(window, lookup, [](std::uintptr_t w) { return kWindows.at(w).ours; });
}

} // namespace

TEST(ApplicationPicker, TakesTheTopLevelTitleOrDesktopAndRefusesTheProgramsOwnWindows) {
    struct Case {
        std::uintptr_t window;
        std::string app; // empty: refused
    } cases[] = {
        {10, "Untitled - Notepad"}, {12, "Untitled - Notepad"}, // a child's own title is not the window's
        {1, "Desktop"},             {0, "Desktop"},             {20, "Desktop"}, {30, "Desktop"},
        {41, ""},                   {50, ""},
    };
    for (const Case& c : cases) {
        PickedApplication picked = Pick(c.window);
        EXPECT_EQ(picked.app, c.app) << c.window;
        EXPECT_EQ(picked.refusal.empty(), !c.app.empty()) << c.window;
        EXPECT_NE(PickingNote(picked).find(c.app.empty() ? "own windows" : c.app), std::string::npos) << c.window;
    }
}
