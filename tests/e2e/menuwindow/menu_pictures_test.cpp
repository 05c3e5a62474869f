// A start-up menu painted with the pictures of a theme folder: title and button bitmaps
// stretched and tiled, picture arrows and command-key symbols, and title-bar buttons
// drawn with pictures. The pictures are written into the program folder's "Theme"
// folder, named by a relative BitmapsFolder; the menu stands at Menuleft/Menutop, so
// each check reads the screen where a known pixel of a picture must be shown.
#include "harness/failure_screenshots.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "harness/windows.h"
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
constexpr int kTitleHeight = 26;
constexpr int kButtonHeight = 22;

constexpr COLORREF kRed = RGB(200, 30, 30);
constexpr COLORREF kGreen = RGB(30, 180, 60);
constexpr COLORREF kBlue = RGB(40, 60, 210);
constexpr COLORREF kYellow = RGB(230, 210, 40);
constexpr COLORREF kArrowColour = RGB(250, 120, 0);
constexpr COLORREF kKeyColour = RGB(0, 200, 220);
constexpr COLORREF kTitleColour = RGB(90, 90, 90);

// Every pixel of an 8 x 8 tile differs from its neighbours.
COLORREF Pattern(int x, int y) {
    return RGB(20 + x * 28, 20 + y * 28, 90);
}

std::string Number(int value) {
    return std::to_string(value);
}

// One start-up Show Menu hotspot opening "Programs" at a fixed place, a flat look without
// frames, and the pictures read from the "Theme" folder. look comes first, so its keys win.
std::string Settings(const std::string& look) {
    std::string text = "[TARVEX]\n";
    text += look;
    text += "GenShowInTray=False\nNoOfHotSpots=0\nGenStartupHotspot0=0\n";
    text += "HotSpot0x1=48\nHotSpot0x2=1024\nHotSpot0y1=0\nHotSpot0y2=768\n";
    text += "HotSpot0App=Desktop\nHotSpot0GroupName=Default\n";
    text += "HotSpot0Menuleft=";
    text += Number(kMenuLeft);
    text += "\nHotSpot0Menutop=";
    text += Number(kMenuTop);
    text += "\nHotSpot0Type=1\nHotSpot0Menupath1=Programs\n";
    text += "BitmapsFolder=Theme\n";
    text += "TitleColor=";
    text += Number(static_cast<int>(kTitleColour));
    text += "\nTitleGradient=False\nTitleFlat=True\nTitleOverlap=False\nTitleVSize=";
    text += Number(kTitleHeight);
    text += "\nButtonGradient=False\nButtonFlat=1\nButtonVSize=";
    text += Number(kButtonHeight);
    text += "\nMenuNoFrames=1\nTwinScrollButtons=False\n";
    return text;
}

// "Programs": a submenu entry (with an arrow), an entry with a command key, a plain one.
std::string Menus() {
    TestItem tools = Item("Tools", 3, "Tools");
    TestItem editor = Item("Text Editor", 0, "notepad.exe");
    editor.hotkey.assign(1, 'E'); // assigned so: GCC 12 warns falsely on = "E"
    TestItem calculator = Item("Calculator", 0, "calc.exe");
    return MenuFileText({{"Programs", {tools, editor, calculator}}, {"Tools", {Item("Paint", 0, "mspaint.exe")}}});
}

// A part of the menu in window coordinates, the right and bottom edges excluded.
struct Part {
    int left, top, right, bottom;
};

Part ItemPart(const RECT& window, int item) {
    int top = kTitleHeight + (item - 1) * kButtonHeight;
    return {0, top, window.right - window.left, top + kButtonHeight};
}

class MenuPictures : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.ready());
        ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder_.File("Theme")).c_str(), nullptr));
    }

    std::string Picture(const std::string& name) const {
        std::string path = folder_.File("Theme");
        path += "\\";
        path += name;
        return path;
    }

    // Starts the program and waits for its menu; saves "menuwindow-<name>.bmp".
    std::optional<WindowInfo> Start(const std::string& look, const std::string& screenshot) {
        folder_.WriteSettings(Settings(look));
        folder_.WriteMenus(Menus());
        if (!tarvex_.Start(folder_))
            return std::nullopt;
        std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex_.processId());
        if (!menu)
            return std::nullopt;
        EXPECT_TRUE(SaveNamedScreenshot("menuwindow-" + screenshot));
        return menu;
    }

    ProgramFolder folder_;
    Tarvex tarvex_;
};

COLORREF At(const RECT& window, int x, int y) {
    return ReadPixel(window.left + x, window.top + y);
}

int CountOf(const RECT& window, const Part& part, COLORREF colour) {
    int count = 0;
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            count += At(window, x, y) == colour ? 1 : 0;
    return count;
}

// The pixels of a row of a part that differ from the pattern tiled from the part's corner.
int MismatchesOfTiles(const RECT& window, const Part& part, int y) {
    int wrong = 0;
    for (int x = part.left; x < part.right; ++x)
        wrong += At(window, x, y) == Pattern((x - part.left) % 8, (y - part.top) % 8) ? 0 : 1;
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
    std::optional<WindowInfo> menu = Start(look, "pictures-stretched");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    ASSERT_EQ(r.left, kMenuLeft);
    ASSERT_EQ(r.top, kMenuTop);
    int width = r.right - r.left;
    int quarter = width / 4;
    EXPECT_EQ(At(r, quarter, 2), kRed);
    EXPECT_EQ(At(r, width - quarter, 2), kGreen);
    EXPECT_EQ(At(r, quarter, kTitleHeight - 3), kBlue);
    EXPECT_EQ(At(r, width - quarter, kTitleHeight - 3), kYellow);
    Part plain = ItemPart(r, 3);
    EXPECT_EQ(At(r, plain.left + 1, plain.top + 2), kYellow);
    EXPECT_EQ(At(r, plain.right - 3, plain.top + 2), kBlue);
    EXPECT_EQ(At(r, plain.left + 1, plain.bottom - 3), kGreen);
    EXPECT_EQ(At(r, plain.right - 3, plain.bottom - 3), kRed);
    EXPECT_GT(CountOf(r, ItemPart(r, 1), kArrowColour), 100) << "the arrow icon";
    EXPECT_EQ(CountOf(r, ItemPart(r, 2), kArrowColour), 0);
    EXPECT_GT(CountOf(r, ItemPart(r, 2), kKeyColour), 100) << "the command-key icon";
    EXPECT_EQ(CountOf(r, ItemPart(r, 3), kKeyColour), 0);
}

TEST_F(MenuPictures, TiledTitleAndButtonBitmapsRepeatFromTheCornerOfEachPart) {
    WriteBmp(Picture("TitleA.bmp"), 8, 8, Pattern);
    WriteBmp(Picture("ButtonA.bmp"), 8, 8, Pattern);
    std::string look = "TitleBitmap=True\nTitleTileBitmap=True\nButtonBitmap=True\nButtonTileBitmap=True\n";
    look += "CloseStatus=0\nRollUpStatus=0\nRotateStatus=0\nAlwaysOnTopStatus=0\n";
    std::optional<WindowInfo> menu = Start(look, "pictures-tiled");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    Part title{0, 0, r.right - r.left, kTitleHeight};
    ASSERT_GT(title.right, 16) << "more than one tile across";
    EXPECT_EQ(MismatchesOfTiles(r, title, 1), 0);
    EXPECT_EQ(MismatchesOfTiles(r, title, kTitleHeight - 2), 0);
    for (int item : {2, 3}) {
        Part button = ItemPart(r, item);
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
    std::optional<WindowInfo> menu = Start(look, "title-buttons-pictures");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    const RECT& r = menu->rect;
    const std::vector<COLORREF> colours{kClose, kRotate, kRollUp, kOnTop};
    std::vector<COLORREF> seen;
    for (int x = 0; x < r.right - r.left; ++x) {
        COLORREF c = At(r, x, kTitleHeight / 2);
        if (std::ranges::find(colours, c) != colours.end() && std::ranges::find(seen, c) == seen.end())
            seen.push_back(c);
    }
    EXPECT_EQ(seen, (std::vector<COLORREF>{kClose, kRollUp, kOnTop, kRotate}));
    Part bar{0, 0, r.right - r.left, kTitleHeight};
    EXPECT_GT(CountOf(r, bar, kClose), 50) << "the close icon fills its button";
}
