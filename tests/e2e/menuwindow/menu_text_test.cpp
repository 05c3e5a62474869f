// What a user reads first: the shipped default menus.
#include "harness/failure_screenshots.h"
#include "harness/menu_window.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

namespace {

using namespace E2e;

void Screenshot(const std::string& name) {
    std::string screenshots = ScreenshotFolder();
    ::CreateDirectoryW(Win::Widen(screenshots).c_str(), nullptr);
    EXPECT_TRUE(SaveScreenshot(screenshots + "\\menuwindow-" + name + ".bmp"));
}

} // namespace

// The default menus as a new user accepts them, in the default look.
TEST(MenuText, TheShippedMainMenuOpensInTheDefaultLook) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteBytes("TvMenus.ini", folder.ReadBytes("DefMenu.ini"));
    folder.WriteSettings("[TARVEX]\nGenShowInTray=False\nNoOfHotSpots=0\nGenStartupHotspot0=0\n"
                         "HotSpot0x1=48\nHotSpot0x2=1024\nHotSpot0y1=0\nHotSpot0y2=768\nHotSpot0App=Desktop\n"
                         "HotSpot0Type=1\nHotSpot0Menupath1=Main\nHotSpot0Menuleft=300\nHotSpot0Menutop=100\n");
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu);
    Screenshot("default-main");
    EXPECT_EQ(menu->title, "Main");
}
