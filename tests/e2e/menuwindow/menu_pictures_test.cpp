// A start-up menu painted with the pictures of a theme folder: title and button bitmaps
// stretched and tiled, picture arrows and command-key symbols, and title-bar buttons
// drawn with pictures. The pictures are written into the program folder's "Theme"
// folder, named by a relative BitmapsFolder; the menu stands at Menuleft/Menutop, so
// each check reads the screen where a known pixel of a picture must be shown.
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"
#include "support/test_pictures.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace E2e;
using TestSupport::Quadrants;
using TestSupport::WriteBmp;
using TestSupport::WriteIcon;

constexpr int kMenuLeft = 260;
constexpr int kMenuTop = 140;
constexpr int kTitleHeight = kPlainTitleHeight;
constexpr int kButtonHeight = kPlainButtonHeight;

constexpr COLORREF kRed = RGB(200, 30, 30);
constexpr COLORREF kGreen = RGB(30, 180, 60);
constexpr COLORREF kBlue = RGB(40, 60, 210);
constexpr COLORREF kYellow = RGB(230, 210, 40);
constexpr COLORREF kArrowColour = RGB(250, 120, 0);
constexpr COLORREF kKeyColour = RGB(0, 200, 220);

// Every pixel of an 8 x 8 tile differs from its neighbours.
COLORREF Pattern(int x, int y) {
    return RGB(20 + x * 28, 20 + y * 28, 90);
}

// "Programs": a submenu entry (with an arrow), an entry with a command key, a plain one.
std::string Menus() {
    TestItem tools = Item("Tools", 3, "Tools");
    TestItem editor = Item("Text Editor", 0, "notepad.exe");
    editor.hotkey.assign(1, 'E'); // assigned so: GCC 12 warns falsely on = "E"
    TestItem calculator = Item("Calculator", 0, "calc.exe");
    return MenuFileText({{"Programs", {tools, editor, calculator}}, {"Tools", {Item("Paint", 0, "mspaint.exe")}}});
}

// An item's button in window coordinates.
RECT ItemPart(const RECT& window, int item) {
    int top = kTitleHeight + (item - 1) * kButtonHeight;
    return {0, top, window.right - window.left, top + kButtonHeight};
}

class MenuPictures : public StartupMenuTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.ready());
        ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("Theme")).c_str(), nullptr));
    }

    std::string Picture(const std::string& name) const { return folder.File("Theme\\" + name); }

    // The start-up menu in the plain look with the pictures of the "Theme" folder; look
    // comes first, so its keys win. Saves "menuwindow-<screenshot>.bmp".
    std::optional<WindowInfo> Open(const std::string& look, const std::string& screenshot) {
        std::optional<WindowInfo> menu =
            Start(StartupMenuSettings("Programs", kMenuLeft, kMenuTop, look + "BitmapsFolder=Theme\n"), Menus());
        if (menu)
            Screenshot(screenshot);
        return menu;
    }
};

// The pixels of a row of a part that differ from the pattern tiled from the part's corner.
int MismatchesOfTiles(const RECT& window, const RECT& part, int y) {
    int wrong = 0;
    for (int x = part.left; x < part.right; ++x)
        wrong += WindowPixel(window, x, y) == Pattern((x - part.left) % 8, (y - part.top) % 8) ? 0 : 1;
    return wrong;
}

} // namespace

TEST_F(MenuPictures, StretchedTitleAndButtonBitmapsWithPictureArrowAndCommandKey) {
    WriteBmp(Picture("TitleA.bmp"), 8, 8, Quadrants{kRed, kGreen, kBlue, kYellow});
    WriteBmp(Picture("buttona.BMP"), 8, 8, Quadrants{kYellow, kBlue, kGreen, kRed});
    WriteIcon(Picture("ArrowA.ico"), 16, kArrowColour);
    WriteIcon(Picture("ComSymbA.ico"), 16, kKeyColour);
    std::string look = "TitleBitmap=True\nButtonBitmap=True\nMenu3DArrows=2\nHotkeyStyle=2\n";
    look += "CloseStatus=0\nRollUpStatus=0\nRotateStatus=0\nAlwaysOnTopStatus=0\n";
    std::optional<WindowInfo> menu = Open(look, "pictures-stretched");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    ASSERT_EQ(r.left, kMenuLeft);
    ASSERT_EQ(r.top, kMenuTop);
    int width = r.right - r.left;
    int quarter = width / 4;
    EXPECT_EQ(WindowPixel(r, quarter, 2), kRed);
    EXPECT_EQ(WindowPixel(r, width - quarter, 2), kGreen);
    EXPECT_EQ(WindowPixel(r, quarter, kTitleHeight - 3), kBlue);
    EXPECT_EQ(WindowPixel(r, width - quarter, kTitleHeight - 3), kYellow);
    RECT plain = ItemPart(r, 3);
    EXPECT_EQ(WindowPixel(r, plain.left + 1, plain.top + 2), kYellow);
    EXPECT_EQ(WindowPixel(r, plain.right - 3, plain.top + 2), kBlue);
    EXPECT_EQ(WindowPixel(r, plain.left + 1, plain.bottom - 3), kGreen);
    EXPECT_EQ(WindowPixel(r, plain.right - 3, plain.bottom - 3), kRed);
    EXPECT_GT(CountInWindow(r, ItemPart(r, 1), kArrowColour), 100) << "the arrow icon";
    EXPECT_EQ(CountInWindow(r, ItemPart(r, 2), kArrowColour), 0);
    EXPECT_GT(CountInWindow(r, ItemPart(r, 2), kKeyColour), 100) << "the command-key icon";
    EXPECT_EQ(CountInWindow(r, ItemPart(r, 3), kKeyColour), 0);
}

TEST_F(MenuPictures, TiledTitleAndButtonBitmapsRepeatFromTheCornerOfEachPart) {
    WriteBmp(Picture("TitleA.bmp"), 8, 8, Pattern);
    WriteBmp(Picture("ButtonA.bmp"), 8, 8, Pattern);
    std::string look = "TitleBitmap=True\nTitleTileBitmap=True\nButtonBitmap=True\nButtonTileBitmap=True\n";
    look += "CloseStatus=0\nRollUpStatus=0\nRotateStatus=0\nAlwaysOnTopStatus=0\n";
    std::optional<WindowInfo> menu = Open(look, "pictures-tiled");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    RECT title{0, 0, r.right - r.left, kTitleHeight};
    ASSERT_GT(title.right, 16) << "more than one tile across";
    EXPECT_EQ(MismatchesOfTiles(r, title, 1), 0);
    EXPECT_EQ(MismatchesOfTiles(r, title, kTitleHeight - 2), 0);
    for (int item : {2, 3}) {
        RECT button = ItemPart(r, item);
        EXPECT_EQ(MismatchesOfTiles(r, button, button.top + 1), 0) << "item " << item;
        EXPECT_EQ(MismatchesOfTiles(r, button, button.bottom - 1), 0) << "item " << item;
    }
}

TEST_F(MenuPictures, PictureTitleButtonsStandInTheOrderOfTheirPositionsWithAnIconOnlyClose) {
    constexpr COLORREF kClose = RGB(210, 40, 40);
    constexpr COLORREF kRotate = RGB(40, 190, 60);
    constexpr COLORREF kRollUp = RGB(40, 70, 220);
    constexpr COLORREF kOnTop = RGB(230, 200, 30);
    WriteIcon(Picture("closeA.ico"), 32, kClose);
    WriteBmp(Picture("RotateA.bmp"), 8, 8, [](int, int) { return kRotate; });
    WriteBmp(Picture("rollupa.bmp"), 8, 8, [](int, int) { return kRollUp; });
    WriteBmp(Picture("ONTOPA.BMP"), 8, 8, [](int, int) { return kOnTop; });
    // All at the right end; the smallest number nearest it.
    std::string look = "ButtonStyle=2\nCloseStatus=3\nRollUpStatus=3\nRotateStatus=3\nAlwaysOnTopStatus=3\n";
    look += "ClosePosition=3\nRotatePosition=0\nRollUpPosition=2\nAlwaysOnTopPosition=1\n";
    std::optional<WindowInfo> menu = Open(look, "title-buttons-pictures");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    const std::vector<COLORREF> colours{kClose, kRotate, kRollUp, kOnTop};
    std::vector<COLORREF> seen;
    for (int x = 0; x < r.right - r.left; ++x) {
        COLORREF c = WindowPixel(r, x, kTitleHeight / 2);
        if (std::ranges::find(colours, c) != colours.end() && std::ranges::find(seen, c) == seen.end())
            seen.push_back(c);
    }
    EXPECT_EQ(seen, (std::vector<COLORREF>{kClose, kRollUp, kOnTop, kRotate}));
    RECT bar{0, 0, r.right - r.left, kTitleHeight};
    EXPECT_GT(CountInWindow(r, bar, kClose), 50) << "the close icon fills its button";
}
