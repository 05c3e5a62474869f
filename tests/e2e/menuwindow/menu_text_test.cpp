// What a user reads first: the shipped default menus, and labels in other scripts.
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"

#include <gtest/gtest.h>

#include <algorithm>

using MenuText = E2e::StartupMenuTest;
using namespace E2e;

// The default menus as a new user accepts them, in the default look.
TEST_F(MenuText, TheShippedMainMenuOpensInTheDefaultLook) {
    ASSERT_TRUE(folder.ready());
    folder.WriteBytes("TvMenus.ini", folder.ReadBytes("DefMenu.ini"));
    folder.WriteSettings("[TARVEX]\nGenShowInTray=False\nNoOfHotSpots=0\nGenStartupHotspot0=0\n"
                         "HotSpot0x1=48\nHotSpot0x2=1024\nHotSpot0y1=0\nHotSpot0y2=768\nHotSpot0App=Desktop\n"
                         "HotSpot0Type=1\nHotSpot0Menupath1=Main\nHotSpot0Menuleft=300\nHotSpot0Menutop=100\n");
    ASSERT_TRUE(tarvex.Start(folder));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu);
    Screenshot("default-main");
    EXPECT_EQ(menu->title, "Main");
}

// Labels in scripts the menu's font (Arial, or what stands in for it) lacks are drawn in
// an installed font that has them. The screenshot shows the three; the test sees that
// each row holds text, the Japanese one as wide as full-width characters are.
TEST_F(MenuText, LabelsInCyrillicJapaneseAndGreekAreDrawn) {
    const std::string russian = "\xD0\xA0\xD0\xB5\xD0\xB4\xD0\xB0\xD0\xBA\xD1\x82\xD0\xBE\xD1\x80"; // Редактор
    const std::string japanese = "\xE3\x83\x86\xE3\x82\xAD\xE3\x82\xB9\xE3\x83\x88\xE3\x82\xA8\xE3\x83\x87"
                                 "\xE3\x82\xA3\xE3\x82\xBF"; // テキストエディタ
    const std::string greek = "\xCE\x95\xCF\x80\xCE\xB5\xCE\xBE\xCE\xB5\xCF\x81\xCE\xB3\xCE\xB1\xCF\x83\xCF\x84"
                              "\xCE\xAE\xCF\x82"; // Επεξεργαστής
    std::optional<WindowInfo> menu = Start(StartupMenuSettings("Programs", 300, 100),
                                           MenuFileText({{"Programs", NotepadItems({russian, japanese, greek})}}));
    ASSERT_TRUE(menu);
    Screenshot("scripts");
    const COLORREF kText = 0x00302010; // the plain look's button text
    const RECT& r = menu->rect;
    for (int row = 0; row < 3; ++row) {
        int top = r.top + kPlainTitleHeight + row * kPlainButtonHeight;
        int left = r.right, right = r.left;
        for (int y = top; y < top + kPlainButtonHeight; ++y)
            for (int x = r.left; x < r.right; ++x)
                if (ReadPixel(x, y) == kText) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
        EXPECT_LT(left, right) << "row " << row << " shows its label";
        if (row == 1) {
            EXPECT_GE(right - left, 8 * 10) << "eight full-width characters";
        }
    }
}
