// Leaks under load: a three-level cascade (the hotspot's menu, a sub-menu, a folder in
// it) opened by the keyboard and closed again and again, and the mouse swept over a 40-item menu. The
// program's GDI and USER objects and its private memory, taken after a warm-up and at
// the end, must not grow. TARVEX_SOAK_CYCLES sets the cycles of each (150 by default;
// the README gives a run of 10,000).
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/process_usage.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace E2e;

constexpr int kMenuLeft = 100;
constexpr int kMenuTop = 40;
constexpr int kDesktopX = 700;
constexpr int kDesktopY = 600;

int Cycles() {
    const char* chosen = std::getenv("TARVEX_SOAK_CYCLES");
    return chosen ? std::max(30, std::atoi(chosen)) : 150;
}

class Soak : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"})
            files.WriteBytes(name, "x");
        TestHotspot desktop;
        desktop.target = "Programs";
        desktop.left = kMenuLeft;
        desktop.top = kMenuTop;
        desktop.mouseButton = 2;
        desktop.hotKey = VK_F5;
        folder.WriteSettings(HotspotSettings({desktop}, "GenAnimationOn=False\nGenSoundsOn=False\nSelBar=True\n"));
        std::vector<std::string> labels;
        for (int i = 2; i <= 40; ++i)
            labels.push_back("Program " + std::to_string(i));
        std::vector<TestItem> programs = NotepadItems(labels);
        programs.insert(programs.begin(), Item("Deeper", 3, "Second"));
        folder.WriteMenus(MenuFileText({{"Programs", programs}, {"Second", {Item("Files", 2, files.path())}}}));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    std::vector<WindowInfo> Shown() { return VisibleMenuWindows(tarvex.processId()); }

    bool ShownCount(std::size_t count) {
        return WaitUntil([&] { return Shown().size() == count; }, 10s);
    }

    // Keys go to the foreground window: the menu that opened last must be it first.
    bool MenuHasKeyboard() {
        return WaitUntil(
            [&] {
                const WindowInfo foreground = DescribeWindow(::GetForegroundWindow());
                return foreground.processId == tarvex.processId() && foreground.className == kMenuClass;
            },
            10s);
    }

    // A right click on the desktop: it opens the hotspot's menu.
    bool ClickDesktop(std::size_t menusAfter) {
        return tarvex.WaitUntilIdle() && Click(kDesktopX, kDesktopY, Button::Right, 100ms) && ShownCount(menusAfter);
    }

    // The hot key opens the hotspot's menu; Home and Enter open the first item of each
    // menu, the sub-menu and then the folder in it, and the sub-menu that opened last
    // has the keyboard.
    bool OpenCascade() {
        if (!tarvex.WaitUntilIdle())
            return false;
        // The hotspot samples the keys on a timer whose messages wait while the machine
        // is busy: a tap it missed (one in thousands here) is tapped again, and counted.
        TapKeys(VK_CONTROL, VK_F5, 60ms);
        if (!WaitUntil([&] { return Shown().size() == 1; }, 3s)) {
            ++missedTaps;
            TapKeys(VK_CONTROL, VK_F5, 100ms);
            if (!ShownCount(1))
                return false;
        }
        for (std::size_t level = 2; level <= 3; ++level) {
            if (!MenuHasKeyboard())
                return false;
            PressKey(VK_HOME);
            PressKey(VK_RETURN);
            if (!ShownCount(level))
                return false;
        }
        return MenuHasKeyboard();
    }

    // Escape closes the menus one by one, from the last.
    bool CloseCascade() {
        for (std::size_t level = 3; level >= 1; --level) {
            PressKey(VK_ESCAPE);
            if (!ShownCount(level - 1))
                return false;
        }
        return true;
    }

    ProcessUsage Usage() { return MeasureProcess(tarvex.processId(), "tarvex2.exe"); }

    static void Report(const char* what, int cycles, const ProcessUsage& before, const ProcessUsage& after) {
        std::printf("%s, %d cycles: GDI %ld -> %ld, USER %ld -> %ld, private %.1f -> %.1f MB\n", what, cycles,
                    before.gdiObjects, after.gdiObjects, before.userObjects, after.userObjects,
                    before.privateMegabytes, after.privateMegabytes);
    }

    static void ExpectFlat(const ProcessUsage& before, const ProcessUsage& after) {
        ASSERT_GT(before.gdiObjects, 0) << "the GDI objects could not be counted";
        ASSERT_GT(before.userObjects, 0);
        ASSERT_GT(before.privateMegabytes, 0);
        EXPECT_LE(after.gdiObjects, before.gdiObjects + 10);
        EXPECT_LE(after.userObjects, before.userObjects + 2);
        EXPECT_LE(after.privateMegabytes, before.privateMegabytes + 4);
    }

    int missedTaps = 0;
    TempFolder files;
    ProgramFolder folder;
    Tarvex tarvex;
};

} // namespace

TEST_F(Soak, ACascadeOpenedAndClosedAgainAndAgainHoldsNoMore) {
    const int cycles = Cycles();
    const int warmUp = std::min(100, cycles / 3);
    ProcessUsage before;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        if (cycle == warmUp)
            before = Usage();
        ASSERT_TRUE(OpenCascade()) << "cycle " << cycle;
        ASSERT_TRUE(CloseCascade()) << "cycle " << cycle;
    }
    ASSERT_TRUE(tarvex.WaitUntilIdle());
    const ProcessUsage after = Usage();
    Report("cascade", cycles, before, after);
    std::printf("hot key taps tried again: %d\n", missedTaps);
    ExpectFlat(before, after);
}

TEST_F(Soak, TheMouseSweptOverAFortyItemMenuHoldsNoMore) {
    const int cycles = Cycles();
    const int warmUp = std::min(100, cycles / 3);
    ASSERT_TRUE(ClickDesktop(1));
    const RECT menu = Shown().front().rect;
    // From the second item (the first opens a sub-menu when the pointer rests on it) to
    // the last that fits the screen; the rest wait behind the scroll button.
    const int shownItems = std::min(40, static_cast<int>((menu.bottom - menu.top - kPlainTitleHeight) /
                                                         kPlainButtonHeight) - 1);
    ProcessUsage before;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        if (cycle == warmUp)
            before = Usage();
        for (int item = 2; item <= shownItems; ++item) {
            const POINT at = PlainItemPoint(menu, item);
            ASSERT_TRUE(SweepMouseTo(at.x, at.y));
            ASSERT_TRUE(tarvex.WaitUntilIdle());
        }
    }
    const ProcessUsage after = Usage();
    Report("hover", cycles, before, after);
    ExpectFlat(before, after);
    EXPECT_EQ(Shown().size(), 1u) << "hovering chose nothing";
}
