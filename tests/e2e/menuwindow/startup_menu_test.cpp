// Menus that open when the program starts: a start-up hotspot of type Show Menu or Show
// Folder opens its menu window, placed and painted as the settings say. Each test saves
// a screenshot of the look it checks in the screenshot folder.
#include "harness/dialogs.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"
#include "menuwindow/look/gradient.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace E2e;

// The plain look's colours, 0x00BBGGRR.
constexpr COLORREF kTitleColour = 0x00803010;
constexpr COLORREF kTitleTextColour = 0x0000E0FF;
constexpr COLORREF kButtonColour = 0x00F0E8E0;
constexpr COLORREF kButtonTextColour = 0x00302010;
constexpr int kTitleHeight = kPlainTitleHeight;
constexpr int kButtonHeight = kPlainButtonHeight;
constexpr int kMenuLeft = 240;
constexpr int kMenuTop = 130;

const std::vector<std::string> kLabels = {"Text Editor", "Calculator", "Paint", "Mail", "Web Browser"};

class StartupMenu : public StartupMenuTest {
protected:
    // The start-up hotspot's menu "Programs" in the plain look; extra lines come first and
    // so win over the plain ones.
    std::optional<WindowInfo> Open(const std::string& extra, const std::vector<std::string>& labels = kLabels) {
        return Start(StartupMenuSettings("Programs", kMenuLeft, kMenuTop, extra),
                     MenuFileText({{"Programs", NotepadItems(labels)}}));
    }
};

int Width(const RECT& r) {
    return r.right - r.left;
}

int Height(const RECT& r) {
    return r.bottom - r.top;
}

} // namespace

TEST_F(StartupMenu, AShowMenuHotspotOpensItsMenuAtItsPlaceInItsColours) {
    std::optional<WindowInfo> menu = Open("");
    ASSERT_TRUE(menu) << "no menu window opened at start";
    Screenshot("title-top");
    const RECT& r = menu->rect;
    EXPECT_EQ(r.left, kMenuLeft);
    EXPECT_EQ(r.top, kMenuTop);
    EXPECT_EQ(Height(r), kTitleHeight + 5 * kButtonHeight);
    EXPECT_EQ(menu->title, "Programs");
    EXPECT_EQ(WindowPixel(r, 1, 1), kTitleColour);
    EXPECT_EQ(WindowPixel(r, Width(r) - 2, kTitleHeight - 2), kTitleColour);
    EXPECT_GT(CountInWindow(r, {0, 0, Width(r), kTitleHeight}, kTitleTextColour), 0) << "the name is on the title bar";
    for (int button = 0; button < 5; ++button) {
        int middle = kTitleHeight + button * kButtonHeight + kButtonHeight / 2;
        EXPECT_EQ(WindowPixel(r, Width(r) - 3, middle), kButtonColour) << "button " << button;
        RECT row{0, middle - kButtonHeight / 2, Width(r), middle + kButtonHeight / 2};
        EXPECT_GT(CountInWindow(r, row, kButtonTextColour), 0) << "button " << button << " shows its label";
    }
    EXPECT_FALSE(::GetWindowLongPtrW(menu->hwnd, GWL_EXSTYLE) & WS_EX_APPWINDOW);
    EXPECT_TRUE(::GetWindowLongPtrW(menu->hwnd, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) << "it would get a taskbar button";
}

TEST_F(StartupMenu, AGradientTitlesFirstAndLastBandsHaveTheComputedColours) {
    constexpr COLORREF kFrom = 0x00400000;
    constexpr COLORREF kTo = 0x00FFC060;
    std::optional<WindowInfo> menu = Open("TitleColor=" + std::to_string(kFrom) + "\nTitleGradient=True\nTitleColor2=" +
                                          std::to_string(kTo) + "\nTitleGradientType=0\nTitleAlignment=1\n");
    ASSERT_TRUE(menu);
    Screenshot("title-gradient");
    const RECT& r = menu->rect;
    std::vector<MenuWindow::ColourBand> bands =
        MenuWindow::GradientBands({Width(r), kTitleHeight}, {static_cast<MenuWindow::Colour>(kFrom),
                                                             static_cast<MenuWindow::Colour>(kTo), 0, false});
    ASSERT_GE(bands.size(), 2u);
    EXPECT_EQ(WindowPixel(r, bands.front().rect.left, 1), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(WindowPixel(r, bands.back().rect.right - 1, kTitleHeight - 2),
              static_cast<COLORREF>(bands.back().colour));
    EXPECT_NE(bands.front().colour, bands.back().colour);
}

TEST_F(StartupMenu, TheTitleAtTheBottom) {
    std::optional<WindowInfo> menu = Open("TitlePosition=1\n");
    ASSERT_TRUE(menu);
    Screenshot("title-bottom");
    const RECT& r = menu->rect;
    EXPECT_EQ(menu->title, "Programs");
    EXPECT_EQ(WindowPixel(r, 1, Height(r) - 2), kTitleColour);
    EXPECT_EQ(WindowPixel(r, 1, Height(r) - kTitleHeight + 1), kTitleColour);
    EXPECT_EQ(WindowPixel(r, Width(r) - 3, kButtonHeight / 2), kButtonColour) << "the first button at the top";
    EXPECT_GT(CountInWindow(r, {0, Height(r) - kTitleHeight, Width(r), Height(r)}, kTitleTextColour), 0);
}

TEST_F(StartupMenu, TheTitleAtTheLeftReadsUpwards) {
    std::optional<WindowInfo> menu = Open("TitlePosition=2\n");
    ASSERT_TRUE(menu);
    Screenshot("title-left");
    const RECT& r = menu->rect;
    EXPECT_EQ(Height(r), 5 * kButtonHeight);
    EXPECT_EQ(WindowPixel(r, 1, 1), kTitleColour);
    EXPECT_EQ(WindowPixel(r, kTitleHeight - 2, Height(r) - 2), kTitleColour);
    EXPECT_EQ(WindowPixel(r, Width(r) - 3, kButtonHeight / 2), kButtonColour);
    // The turned name: a column of text taller than it is wide.
    int top = Height(r), bottom = -1, left = kTitleHeight, right = -1;
    for (int y = 0; y < Height(r); ++y)
        for (int x = 0; x < kTitleHeight; ++x)
            if (WindowPixel(r, x, y) == kTitleTextColour) {
                top = std::min(top, y);
                bottom = std::max(bottom, y);
                left = std::min(left, x);
                right = std::max(right, x);
            }
    ASSERT_GE(bottom, 0) << "no title text";
    EXPECT_GT(bottom - top, 2 * (right - left));
}

TEST_F(StartupMenu, AHorizontalMenuStandsItsButtonsInARow) {
    std::optional<WindowInfo> menu = Open("HotSpot0Horizontal=True\nHorzNoTitlebar=False\nMenuHorizontalStyle=1\n");
    ASSERT_TRUE(menu);
    Screenshot("horizontal");
    const RECT& r = menu->rect;
    EXPECT_EQ(Height(r), kButtonHeight);
    EXPECT_GT(Width(r), 5 * 40);
    EXPECT_EQ(WindowPixel(r, 1, 1), kTitleColour) << "the turned title at the row's left end";
    EXPECT_EQ(WindowPixel(r, Width(r) - 3, 2), kButtonColour);
    EXPECT_GT(CountInWindow(r, {Width(r) - Width(r) / 6, 0, Width(r), Height(r)}, kButtonTextColour), 0)
        << "the last button shows its label";
}

TEST_F(StartupMenu, AMenuLongerThanTheScreenEndsInAScrollButton) {
    std::vector<std::string> labels;
    for (int i = 1; i <= 60; ++i)
        labels.push_back("Program " + std::to_string(i));
    std::optional<WindowInfo> menu = Open("", labels);
    ASSERT_TRUE(menu);
    Screenshot("scroll");
    const RECT& r = menu->rect;
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_LE(Height(r), Height(work)) << "it fits on the screen";
    EXPECT_GE(r.top, work.top);
    EXPECT_LE(r.bottom, work.bottom);
    int slots = (Height(r) - kTitleHeight) / kButtonHeight;
    ASSERT_LT(slots, 60);
    RECT last{0, kTitleHeight + (slots - 1) * kButtonHeight, Width(r), kTitleHeight + slots * kButtonHeight};
    int middle = Width(r) / 2;
    EXPECT_GT(CountInWindow(r, {middle - 6, last.top, middle + 7, last.bottom}, kButtonColour), 0);
    EXPECT_LT(CountInWindow(r, {middle - 6, last.top, middle + 7, last.bottom}, kButtonColour), 13 * kButtonHeight)
        << "the arrow of the scroll button";
    EXPECT_EQ(CountInWindow(r, {0, last.top, middle - 10, last.bottom}, kButtonTextColour), 0)
        << "no button's label behind the scroll button";
    RECT before{0, last.top - kButtonHeight, Width(r), last.top};
    EXPECT_GT(CountInWindow(r, before, kButtonTextColour), 0) << "the slot before it is a button";
}

TEST_F(StartupMenu, AFolderHotspotListsAnEmptyFolderAsEmpty) {
    ASSERT_TRUE(folder.ready());
    std::string empty = folder.File("Nothing Here");
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(empty).c_str(), nullptr));
    std::optional<WindowInfo> menu = Open("HotSpot0Type=0\nHotSpot0Menupath1=" + empty + "\n");
    ASSERT_TRUE(menu);
    Screenshot("folder-empty");
    const RECT& r = menu->rect;
    EXPECT_EQ(menu->title, "Nothing Here");
    EXPECT_EQ(Height(r), kTitleHeight + kButtonHeight) << "one entry";
    EXPECT_GT(CountInWindow(r, {0, kTitleHeight, Width(r), Height(r)}, kButtonTextColour), 0)
        << "\"(Empty)\" is written";
    ASSERT_TRUE(Click((r.left + r.right) / 2, r.top + kTitleHeight + kButtonHeight / 2));
    Settle(1s);
    EXPECT_TRUE(WaitForNoVisibleWindow(kDialogClass, tarvex.processId(), 0ms)) << "\"(Empty)\" starts nothing";
    EXPECT_TRUE(WaitForVisibleWindow(kMenuClass, tarvex.processId(), 0ms)) << "and leaves the menu open";
}
