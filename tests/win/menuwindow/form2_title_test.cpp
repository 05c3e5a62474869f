// The title bar as painted: its colour, gradient, edge, text and the three places it
// can stand, and the inactive look.
#include "menu_window_fixture.h"

#include "menuwindow/gradient.h"

using namespace MenuWindowTests;
using MenuWindow::Rect;

namespace {

// Pixels of a colour in a rectangle of a picture, at least one.
::testing::AssertionResult Shows(const WindowPicture& picture, const Rect& area, COLORREF colour) {
    int count = picture.Count(area, colour);
    if (count > 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "no pixel of colour 0x" << std::hex << colour << " in the area";
}

constexpr const char* kMenuName = "Programs";

} // namespace

TEST_F(MenuWindowTest, TitleBarPixelsHaveTheTitleColourAndItsTextTheFontColour) {
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-top");
    Rect title = form->scene().layout.title;
    EXPECT_EQ(title, (Rect{0, 0, picture.width(), 24}));
    EXPECT_EQ(picture.At(1, 1), kTitleColour);
    EXPECT_EQ(picture.At(title.right - 2, title.bottom - 2), kTitleColour);
    EXPECT_TRUE(Shows(picture, title, kTitleTextColour)) << "the menu's name is written on the bar";
    EXPECT_EQ(picture.Count(form->scene().layout.surface, kTitleColour), 0);
}

TEST_F(MenuWindowTest, TitleGradientFirstAndLastBandsHaveTheComputedColours) {
    settings.TitleGradient = true;
    settings.TitleColor = 0x00200000;
    settings.TitleColor2 = 0x00F0C080;
    settings.TitleGradientType = MenuWindow::kGradientLeftToRight;
    settings.TitleAlignment = 1; // centred, away from the ends
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-gradient");
    Rect title = form->scene().layout.title;
    std::vector<MenuWindow::ColourBand> bands =
        MenuWindow::GradientBands({title.Width(), title.Height()},
                                  {settings.TitleColor, settings.TitleColor2, settings.TitleGradientType, false});
    ASSERT_GE(bands.size(), 2u);
    const MenuWindow::ColourBand& first = bands.front();
    const MenuWindow::ColourBand& last = bands.back();
    EXPECT_EQ(picture.At(title.left + first.rect.left, title.top + 1), static_cast<COLORREF>(first.colour));
    EXPECT_EQ(picture.At(title.left + last.rect.right - 1, title.bottom - 2), static_cast<COLORREF>(last.colour));
    EXPECT_NE(first.colour, last.colour);
}

TEST_F(MenuWindowTest, ARaisedTitleEdgeUsesItsLightAndDarkColours) {
    settings.TitleFlat = false;
    settings.Title3DColor1 = 0x00E0E0E0;
    settings.Title3DColor2 = 0x00101010;
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect title = form->scene().layout.title;
    EXPECT_EQ(picture.At(5, title.top), 0x00E0E0E0u) << "top line light";
    EXPECT_EQ(picture.At(title.left, 5), 0x00E0E0E0u) << "left line light";
    EXPECT_EQ(picture.At(5, title.bottom - 1), 0x00101010u) << "bottom line dark";
    EXPECT_EQ(picture.At(title.right - 1, 5), 0x00101010u) << "right line dark";
    EXPECT_EQ(picture.At(2, 2), kTitleColour);
}

TEST_F(MenuWindowTest, TitleAtTheBottomStandsBelowTheButtons) {
    settings.TitlePosition = 1;
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-bottom");
    EXPECT_EQ(form->scene().layout.title, (Rect{0, 44, picture.width(), 68}));
    EXPECT_EQ(picture.At(1, 45), kTitleColour);
    EXPECT_EQ(picture.At(1, 1), kButtonColour);
    EXPECT_TRUE(Shows(picture, form->scene().layout.title, kTitleTextColour));
}

TEST_F(MenuWindowTest, TitleAtTheLeftIsAColumnWithTurnedText) {
    settings.TitlePosition = 2;
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor", "Calculator", "Paint", "Notepad", "Mail"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-left");
    Rect title = form->scene().layout.title;
    EXPECT_EQ(title, (Rect{0, 0, 24, 5 * 22}));
    EXPECT_EQ(picture.At(1, 1), kTitleColour);
    EXPECT_EQ(picture.At(30, 1), kButtonColour);
    // Turned text runs up the column: it is taller than wide.
    int top = picture.height(), bottom = -1, left = picture.width(), right = -1;
    for (int y = title.top; y < title.bottom; ++y)
        for (int x = title.left; x < title.right; ++x)
            if (picture.At(x, y) == kTitleTextColour) {
                top = std::min(top, y);
                bottom = std::max(bottom, y);
                left = std::min(left, x);
                right = std::max(right, x);
            }
    ASSERT_GE(bottom, 0) << "no title text";
    EXPECT_GT(bottom - top, 2 * (right - left)) << "the text reads upwards";
}

TEST_F(MenuWindowTest, ATitleTooLongForItsBarIsShortenedWithinTheBar) {
    settings.ButtonMinWidth = 120;
    settings.ButtonMaxWidth = 120;
    std::string name = "A menu name far too long for a bar this narrow";
    Form2* form = Open(MenuRecord(AddMenu(name, {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-ellipsis");
    Rect title = form->scene().layout.title;
    ASSERT_EQ(title.Width(), 120);
    // The padding at the right end stays clear: the text was cut to its room.
    Rect padding{title.right - 5, title.top, title.right, title.bottom};
    EXPECT_EQ(picture.Count(padding, kTitleTextColour), 0);
    EXPECT_TRUE(Shows(picture, {title.right - 30, title.top, title.right - 5, title.bottom}, kTitleTextColour))
        << "the dots stand near the end";
}

TEST_F(MenuWindowTest, TheInactiveLookIsUsedOnlyWhenItsSwitchIsOn) {
    settings.TitleInactiveColor = 0x00406080;
    settings.TitleInactiveFlat = true;
    settings.TitleInactiveOverlap = false;
    Form2* form = Open(MenuRecord(AddMenu(kMenuName, {"Editor"})));
    ASSERT_TRUE(form);
    form->SetInactive(true);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(1, 1), kTitleColour) << "TitleShowInactive is off";

    settings.TitleShowInactive = true;
    form->SetLocalVariables();
    form->SetInactive(true);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(1, 1), 0x00406080u);
    form->SetInactive(false);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(1, 1), kTitleColour);
}
