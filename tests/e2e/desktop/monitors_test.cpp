// Screens as a user meets them: a menu sized for the screen's dots per inch, a corner
// hotspot kept to one monitor, and corners that stay quiet while a program fills the
// screen.
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/other_program.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"
#include "menuwindow/look/dpi_scale.h"
#include "win/handles.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace E2e;

// A corner bump waits GenBumpDelay ticks and Timer1's next tick: one that was going to
// fire has fired by then.
constexpr Duration kNothingFires = 800ms;

const std::vector<TestMenu> kMenus = {{"Programs", NotepadItems({"Text Editor", "Calculator", "Console"})},
                                      {"Corner", NotepadItems({"Text Editor"})}};

class Monitors : public ::testing::Test {
protected:
    void Start(const std::vector<TestHotspot>& spots, const std::string& extra = "") {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(HotspotSettings(spots, extra));
        folder.WriteMenus(MenuFileText(kMenus));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    static TestHotspot CornerSpot(int code = kTopLeft, int monitor = 0) {
        TestHotspot spot;
        spot.target = "Corner";
        spot.mouseButton = code;
        spot.left = 300;
        spot.top = 200;
        spot.monitor = monitor;
        return spot;
    }

    // Pushes into a corner after leaving it; whether a menu opens.
    bool CornerOpensMenu(int x, int y) {
        if (!MoveMouse(500, 400) || !MoveMouse(x, y))
            return false;
        if (WaitForMenuCount(tarvex.processId(), 1, 5s))
            return true;
        Settle(kNothingFires);
        return false;
    }

    static constexpr int kTopLeft = 3;
    static constexpr int kBottomLeft = 4;
    ProgramFolder folder;
    Tarvex tarvex;
};

int ScreenDpi() {
    Win::WindowDc screen(nullptr);
    return ::GetDeviceCaps(screen.get(), LOGPIXELSY);
}

} // namespace

// Run once in each of three prefixes, at 96, 144 and 192 dots per inch.
TEST_F(Monitors, AMenuIsSizedForTheDpiOfItsScreenAndOfTheOneItIsMovedTo) {
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(StartupMenuSettings("Programs", 100, 80));
    folder.WriteMenus(MenuFileText(kMenus));
    ASSERT_TRUE(tarvex.Start(folder));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu);
    const int dpi = ScreenDpi();
    // The plain look has no frame: the title and three buttons, each scaled from 96 DPI.
    const int height = Dpi::Scale(kPlainTitleHeight, dpi) + 3 * Dpi::Scale(kPlainButtonHeight, dpi);
    EXPECT_EQ(menu->rect.bottom - menu->rect.top, height) << "at " << dpi << " DPI";
    EXPECT_EQ(menu->rect.left, 100) << "places stay in pixels";
    EXPECT_TRUE(SaveNamedScreenshot("menu-at-" + std::to_string(dpi) + "-dpi"));

    // Dragged onto a monitor of half as many dots per inch again, it lays itself out anew
    // where it stands.
    const int to = dpi * 3 / 2;
    const int grown = Dpi::Scale(kPlainTitleHeight, to) + 3 * Dpi::Scale(kPlainButtonHeight, to);
    ::PostMessageW(menu->hwnd, WM_DPICHANGED, MAKEWPARAM(to, to), 0);
    EXPECT_TRUE(WaitUntil([&] { return DescribeWindow(menu->hwnd).rect.bottom - menu->rect.top == grown; }, 10s));
    EXPECT_EQ(DescribeWindow(menu->hwnd).rect.left, 100);
}

TEST_F(Monitors, ACornerHotspotOfAnotherMonitorLeavesThisMonitorsCornerAlone) {
    TestHotspot programs;
    programs.target = "Programs";
    ASSERT_NO_FATAL_FAILURE(Start({programs, CornerSpot(kTopLeft, 2), CornerSpot(kBottomLeft, 1)}));
    EXPECT_FALSE(CornerOpensMenu(0, 0)) << "the hotspot is monitor 2's, and there is one monitor";
    EXPECT_TRUE(CornerOpensMenu(0, ::GetSystemMetrics(SM_CYSCREEN) - 1)) << "monitor 1's";
}

TEST_F(Monitors, CornersStayQuietWhileAProgramFillsTheScreenAndClicksStillWork) {
    OtherProgram notepad;
    ASSERT_TRUE(notepad.Start(L"notepad.exe", "Notepad")) << "notepad did not start";
    TestHotspot programs;
    programs.target = "Programs";
    ASSERT_NO_FATAL_FAILURE(Start({programs, CornerSpot()}));

    // As a video player goes full screen: no caption, the whole screen, in front.
    const HWND player = notepad.hwnd();
    const LONG_PTR captioned = ::GetWindowLongPtrW(player, GWL_STYLE);
    ::SetWindowLongPtrW(player, GWL_STYLE, (captioned & ~WS_OVERLAPPEDWINDOW) | WS_POPUP);
    ASSERT_TRUE(::SetWindowPos(player, HWND_TOP, 0, 0, ::GetSystemMetrics(SM_CXSCREEN),
                               ::GetSystemMetrics(SM_CYSCREEN), SWP_FRAMECHANGED | SWP_SHOWWINDOW));
    ASSERT_TRUE(Click(500, 400)); // the player takes the foreground as a user's click gives it
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == player; }, 5s));
    EXPECT_FALSE(CornerOpensMenu(0, 0)) << "a bump while a program fills the screen";
    EXPECT_TRUE(SaveNamedScreenshot("monitors-full-screen-quiet"));

    // Back in a window with a caption, the corner works again.
    ::SetWindowLongPtrW(player, GWL_STYLE, captioned);
    ASSERT_TRUE(::SetWindowPos(player, HWND_TOP, 100, 100, 500, 400, SWP_FRAMECHANGED | SWP_SHOWWINDOW));
    EXPECT_TRUE(CornerOpensMenu(0, 0));
}
