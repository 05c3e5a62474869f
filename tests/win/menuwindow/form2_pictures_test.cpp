// The theme's pictures in a painted menu, beyond what the end-to-end tests show: a button
// picture over the whole body, transparent buttons, a JPEG title, and the inactive
// title-bar button picture falling back to the active one.
#include "menu_window_fixture.h"
#include "menuwindow/paint/paint_title_buttons.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace MenuWindowTests;
using namespace TestSupport;
using MenuWindow::Rect;

namespace {

constexpr COLORREF kRed = RGB(200, 30, 30);
constexpr COLORREF kGreen = RGB(30, 180, 60);
constexpr COLORREF kBlue = RGB(40, 60, 210);
constexpr COLORREF kYellow = RGB(230, 210, 40);
constexpr COLORREF kKey = RGB(255, 0, 255);

class PicturesTest : public MenuWindowTest {
protected:
    void SetUp() override { settings.BitmapsFolder = folder.path(); }
    std::string File(const std::string& name) const { return folder.File(name); }

    TestSupport::TempFolder folder;
};

bool Near(COLORREF a, COLORREF b) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= 6 && std::abs(GetGValue(a) - GetGValue(b)) <= 6 &&
           std::abs(GetBValue(a) - GetBValue(b)) <= 6;
}

} // namespace

TEST_F(PicturesTest, ABitmapOverTheMenuSpansTheWholeBody) {
    WriteBmp(File("ButtonA.bmp"), 8, 8, Quadrants{kRed, kGreen, kBlue, kYellow});
    settings.ButtonBitmap = true;
    settings.ButtonBitmapToMenu = true;
    Form2* form = Open(MenuRecord(AddMenu("M", {"A", "B", "C", "D"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect body = form->scene().layout.surface;
    Rect first = MenuWindow::ItemInWindow(form->scene(), 1);
    Rect last = MenuWindow::ItemInWindow(form->scene(), 4);
    EXPECT_EQ(picture.At(first.right - 3, first.top + 2), kGreen);
    EXPECT_EQ(picture.At(last.right - 3, last.bottom - 3), kYellow);
    EXPECT_EQ(picture.At(body.left + 1, body.bottom - 3), kBlue);
}

TEST_F(PicturesTest, ATransparentButtonPictureLetsTheMenuColourThroughItsKeyColour) {
    WriteBmp(File("ButtonA.bmp"), 8, 8, [](int x, int y) { return x >= 2 && x < 6 && y >= 2 && y < 6 ? kBlue : kKey; });
    settings.ButtonBitmap = true;
    settings.ButtonTransparent = true;
    Form2* form = Open(MenuRecord(AddMenu("M", {"A", "B"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect b = MenuWindow::ItemInWindow(form->scene(), 2);
    EXPECT_EQ(picture.At(b.left + 1, b.top + 1), kButtonColour);
    EXPECT_EQ(picture.At(b.right - 2, b.bottom - 2), kButtonColour);
    EXPECT_EQ(picture.At(b.right - b.Width() / 3, b.top + b.Height() / 2), kBlue);
    EXPECT_EQ(picture.Count(b, kKey), 0);
}

TEST_F(PicturesTest, AJpegTitlePictureShowsItsColourOverTheBar) {
    ASSERT_TRUE(WriteJpeg(File("TitleA.jpg"), 16, 16, kGreen));
    settings.TitleBitmap = true;
    Form2* form = Open(MenuRecord(AddMenu("M", {"A long enough label"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect bar = form->scene().layout.title;
    for (int x : {bar.left + 2, bar.left + bar.Width() / 2, bar.right - bar.Width() / 4}) {
        COLORREF shown = picture.At(x, bar.top + 2);
        EXPECT_TRUE(Near(shown, kGreen)) << "at x " << x << ": 0x" << std::hex << shown;
    }
}

// The lookup falls back from the inactive name to the active one: a theme with only
// closeA.ico still shows its close button on a parent menu.
TEST_F(PicturesTest, AnActiveOnlyCloseIconServesTheInactiveMenuToo) {
    settings.ButtonStyle = 2;
    settings.CloseStatus = 3;
    settings.RotateStatus = 0;
    settings.RollUpStatus = 0;
    settings.AlwaysOnTopStatus = 0;
    settings.TitleShowInactive = true;
    WriteIcon(File("closeA.ico"), 32, kRed);
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor"})));
    ASSERT_TRUE(form);
    std::vector<MenuWindow::PlacedTitleButton> placed = MenuWindow::PlacedTitleButtons(form->scene());
    ASSERT_EQ(placed.size(), 1u);
    Rect close = placed.front().rect;
    int side = std::min(close.Width(), close.Height());
    EXPECT_GT(WindowPicture(form->hwnd()).Count(close, kRed), side * side / 2);
    form->SetInactive(true);
    EXPECT_GT(WindowPicture(form->hwnd()).Count(close, kRed), side * side / 2);
}
