// The title-bar buttons as painted: their order by position in the drawn styles and with
// pictures, the inactive picture falling back to the active one, and the title text
// kept clear of them.
#include "menu_window_fixture.h"
#include "menuwindow/paint_title_buttons.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"

#include <algorithm>

using namespace MenuWindowTests;
using namespace TestSupport;
using MenuWindow::Rect;
using MenuWindow::TitleButton;

namespace {

constexpr COLORREF kCloseColour = RGB(210, 40, 40);
constexpr COLORREF kRotateColour = RGB(40, 190, 60);
constexpr COLORREF kRollUpColour = RGB(40, 70, 220);
constexpr COLORREF kOnTopColour = RGB(230, 200, 30);

// The colours of the list in the order they first appear along the title's middle row,
// read from left to right.
std::vector<COLORREF> OrderAlongTitle(const WindowPicture& picture, const Rect& bar,
                                      const std::vector<COLORREF>& colours) {
    std::vector<COLORREF> seen;
    int y = bar.top + bar.Height() / 2;
    for (int x = bar.left; x < bar.right; ++x) {
        COLORREF c = picture.At(x, y);
        if (std::find(colours.begin(), colours.end(), c) != colours.end() &&
            std::find(seen.begin(), seen.end(), c) == seen.end())
            seen.push_back(c);
    }
    return seen;
}

class TitleButtonsTest : public MenuWindowTest {
protected:
    void SetUp() override {
        settings.BitmapsFolder = folder.path();
        settings.CloseStatus = 3;
        settings.RotateStatus = 3;
        settings.RollUpStatus = 3;
        settings.AlwaysOnTopStatus = 3;
    }
    std::string File(const std::string& name) const { return folder.File(name); }

    TestSupport::TempFolder folder;
};

} // namespace

TEST_F(TitleButtonsTest, PictureButtonsStandInTheOrderOfTheirPositions) {
    settings.ButtonStyle = 2;
    WriteBmp(File("CloseA.bmp"), 8, 8, [](int, int) { return kCloseColour; });
    WriteBmp(File("rotatea.bmp"), 8, 8, [](int, int) { return kRotateColour; });
    WriteBmp(File("ROLLUPA.BMP"), 8, 8, [](int, int) { return kRollUpColour; });
    WriteBmp(File("OnTopA.bmp"), 8, 8, [](int, int) { return kOnTopColour; });
    // All at the right end; the smallest number nearest it.
    settings.ClosePosition = 3;
    settings.RotatePosition = 0;
    settings.RollUpPosition = 2;
    settings.AlwaysOnTopPosition = 1;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-buttons-pictures");
    EXPECT_EQ(OrderAlongTitle(picture, form->scene().layout.title,
                              {kCloseColour, kRotateColour, kRollUpColour, kOnTopColour}),
              (std::vector<COLORREF>{kCloseColour, kRollUpColour, kOnTopColour, kRotateColour}));
}

TEST_F(TitleButtonsTest, RoundButtonsStandAtBothEndsByTheSignOfTheirPositions) {
    settings.ButtonStyle = 1;
    settings.ClosePosition = -1;
    settings.RollUpPosition = -2;
    settings.AlwaysOnTopPosition = 1;
    settings.RotatePosition = 0;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-buttons-round");
    auto colour = [](TitleButton b) { return static_cast<COLORREF>(MenuWindow::RoundButtonColour(b)); };
    std::vector<COLORREF> all{colour(TitleButton::Close), colour(TitleButton::Rotate), colour(TitleButton::RollUp),
                              colour(TitleButton::OnTop)};
    EXPECT_EQ(OrderAlongTitle(picture, form->scene().layout.title, all),
              (std::vector<COLORREF>{colour(TitleButton::Close), colour(TitleButton::RollUp),
                                     colour(TitleButton::OnTop), colour(TitleButton::Rotate)}));
}

TEST_F(TitleButtonsTest, SquareButtonsShowTheirFaceAndGlyphAndTheTitleTextStaysClear) {
    settings.ButtonStyle = 0;
    Form2* form = Open(MenuRecord(AddMenu("A rather long menu name that must be cut short", {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("title-buttons-square");
    std::vector<MenuWindow::PlacedTitleButton> placed = MenuWindow::PlacedTitleButtons(form->scene());
    ASSERT_EQ(placed.size(), 4u);
    Rect bar = form->scene().layout.title;
    EXPECT_GT(picture.Count(bar, kTitleTextColour), 0) << "the name is written";
    for (const MenuWindow::PlacedTitleButton& button : placed) {
        EXPECT_GT(picture.Count(button.rect, MenuWindow::kSquareButtonFace), 20);
        EXPECT_GT(picture.Count(button.rect, MenuWindow::kSquareButtonGlyph), 4);
        EXPECT_EQ(picture.Count(button.rect, kTitleTextColour), 0) << "no text under a button";
    }
}

TEST_F(TitleButtonsTest, AnActiveOnlyCloseIconServesTheInactiveMenuToo) {
    settings.ButtonStyle = 2;
    settings.RotateStatus = 0;
    settings.RollUpStatus = 0;
    settings.AlwaysOnTopStatus = 0;
    settings.TitleShowInactive = true;
    WriteIcon(File("closeA.ico"), 32, kCloseColour);
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor"})));
    ASSERT_TRUE(form);
    std::vector<MenuWindow::PlacedTitleButton> placed = MenuWindow::PlacedTitleButtons(form->scene());
    ASSERT_EQ(placed.size(), 1u);
    Rect close = placed.front().rect;
    int side = std::min(close.Width(), close.Height());
    {
        WindowPicture active(form->hwnd());
        EXPECT_GT(active.Count(close, kCloseColour), side * side / 2);
    }
    form->SetInactive(true);
    WindowPicture inactive(form->hwnd());
    inactive.Save("title-buttons-inactive-close");
    EXPECT_GT(inactive.Count(close, kCloseColour), side * side / 2);
}
