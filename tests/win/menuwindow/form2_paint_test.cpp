// The menu as painted, beyond what the end-to-end tests show: the selection bar,
// repainting only what changed, a gradient over the body, the arrow and hot-key columns,
// scrolling to an item, the title's name cut to its bar, the inactive look, the drawn
// title-bar buttons, and the look a user meets before changing anything.
#include "menu_window_fixture.h"

#include "menuwindow/gradient.h"
#include "menuwindow/menu_scene.h"
#include "menuwindow/paint_title_buttons.h"

using namespace MenuWindowTests;
using MenuWindow::ItemInWindow;
using MenuWindow::Rect;

namespace {

std::vector<std::string> Labels(int count) {
    std::vector<std::string> labels;
    for (int i = 1; i <= count; ++i)
        labels.push_back("Item " + std::to_string(i));
    return labels;
}

// The right end of a button: no text, no arrow, only its background.
Rect RightEnd(const Rect& button) {
    return {button.right - 4, button.top + 2, button.right - 1, button.bottom - 2};
}

} // namespace

TEST_F(MenuWindowTest, DrawButtonPaintsTheSelectionBarWithItsTextColourAndTakesItAway) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"})));
    ASSERT_TRUE(form);
    const MenuWindow::MenuScene& scene = form->scene();
    EXPECT_EQ(WindowPicture(form->hwnd()).Count(scene.layout.surface, kSelBarColour), 0) << "nothing is selected";
    form->DrawButton(2, true);
    Rect selected = ItemInWindow(scene, 2);
    {
        WindowPicture picture(form->hwnd());
        EXPECT_TRUE(AllOf(picture, RightEnd(selected), kSelBarColour));
        EXPECT_GT(picture.Count(selected, kSelBarTextColour), 0);
        EXPECT_EQ(picture.Count(selected, kButtonTextColour), 0);
        EXPECT_TRUE(AllOf(picture, RightEnd(ItemInWindow(scene, 1)), kButtonColour));
    }
    form->DrawButton(2, false);
    WindowPicture picture(form->hwnd());
    EXPECT_TRUE(AllOf(picture, RightEnd(selected), kButtonColour));
    EXPECT_GT(picture.Count(selected, kButtonTextColour), 0);
}

TEST_F(MenuWindowTest, AChangeOfSelectionRepaintsOnlyTheButtonsThatChanged) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(8))));
    ASSERT_TRUE(form);
    int before = form->ButtonsDrawn();
    form->SetSelection({3, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 1) << "only the newly selected button";
    form->SetSelection({5, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 3) << "then the old and the new one";
    form->SetSelection({5, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 3) << "no change, no repaint";

    WindowPicture picture(form->hwnd());
    EXPECT_TRUE(AllOf(picture, RightEnd(ItemInWindow(form->scene(), 3)), kButtonColour));
    EXPECT_TRUE(AllOf(picture, RightEnd(ItemInWindow(form->scene(), 5)), kSelBarColour));
}

TEST_F(MenuWindowTest, RedrawButtonRepaintsOnlyWhenTheButtonsStateChanged) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(4))));
    ASSERT_TRUE(form);
    form->SetSelection({2, false});
    int before = form->ButtonsDrawn();
    form->RedrawButton(2);
    form->RedrawButton(3);
    EXPECT_EQ(form->ButtonsDrawn(), before) << "both are painted as they should be";

    form->DrawButton(2, false); // painted against the selection
    form->RedrawButton(2);
    EXPECT_EQ(form->ButtonsDrawn(), before + 2);
    EXPECT_TRUE(AllOf(WindowPicture(form->hwnd()), RightEnd(ItemInWindow(form->scene(), 2)), kSelBarColour));

    form->ForceRedrawButton(3);
    EXPECT_EQ(form->ButtonsDrawn(), before + 3);
}

TEST_F(MenuWindowTest, ButtonGradientOverTheMenuBodyRunsFromTheFirstButtonToTheLast) {
    settings.ButtonGradient = true;
    settings.MenuIsGradientTarget = true;
    settings.ButtonColor = 0x00F0F0F0;
    settings.ButtonColor2 = 0x00606060;
    settings.ButtonGradientType = MenuWindow::kGradientTopToBottom;
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(6))));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect surface = form->scene().layout.surface;
    std::vector<MenuWindow::ColourBand> bands = MenuWindow::GradientBands(
        {surface.Width(), surface.Height()}, {0x00F0F0F0, 0x00606060, MenuWindow::kGradientTopToBottom, false});
    int x = surface.right - 2;
    EXPECT_EQ(picture.At(x, surface.top + bands.front().rect.top), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(picture.At(x, surface.top + bands.back().rect.bottom - 1), static_cast<COLORREF>(bands.back().colour));
    // A selected button comes back with its own share of the body's gradient.
    Rect third = ItemInWindow(form->scene(), 3);
    COLORREF share = picture.At(x, third.top + 1);
    form->DrawButton(3, true);
    form->DrawButton(3, false);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(x, third.top + 1), share);
}

TEST_F(MenuWindowTest, TheArrowAndHotKeyColumnsShowOnlyOnTheirItems) {
    settings.Menu3DArrows = 1; // flat, in the text colour
    settings.HotkeyStyle = 1;  // the apple symbol, in the text colour
    int menu = AddMenu("Programs", {"Tools", "Editor", "Calculator"});
    ItemOf(menu, 0).TYPE = kItemMenuName;
    ItemOf(menu, 0).PATH = "Tools";
    ItemOf(menu, 1).HOTKEY = std::string(1, 'e'); // not a literal: GCC 12 warns falsely at -O3
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    const MenuWindow::MenuScene& scene = form->scene();
    int arrow = scene.layout.columns.arrow;
    int hotkey = scene.layout.columns.hotkey;
    ASSERT_GT(arrow, 0);
    ASSERT_GT(hotkey, 0);
    auto arrowColumn = [&](int item) {
        Rect b = ItemInWindow(scene, item);
        return Rect{b.right - arrow, b.top, b.right, b.bottom};
    };
    auto hotkeyColumn = [&](int item) {
        Rect b = ItemInWindow(scene, item);
        return Rect{b.right - arrow - hotkey, b.top, b.right - arrow, b.bottom};
    };
    EXPECT_GT(picture.Count(arrowColumn(1), kButtonTextColour), 8);
    EXPECT_EQ(picture.Count(arrowColumn(3), kButtonTextColour), 0);
    EXPECT_GT(picture.Count(hotkeyColumn(2), kButtonTextColour), 10) << "symbol and key";
    EXPECT_EQ(picture.Count(hotkeyColumn(3), kButtonTextColour), 0);
}

// The scroll button at the cut end itself is the end-to-end tests'; here, scrolling to an item.
TEST_F(MenuWindowTest, MakeButtonVisibleScrollsALongMenuToTheItemAndSelectsIt) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(100)), {100, 0}));
    ASSERT_TRUE(form);
    const MenuWindow::MenuScene& scene = form->scene();
    int slots = scene.view().slots;
    ASSERT_LT(slots, 100);
    form->MakeButtonVisible(100);
    EXPECT_EQ(scene.view().first + slots, 100) << "scrolled to the end";
    EXPECT_EQ(form->selection().selected, 100);
    WindowPicture scrolled(form->hwnd());
    EXPECT_TRUE(ItemInWindow(scene, scene.view().first + 1).Empty()) << "behind the scroll button at the top";
    COLORREF dark = static_cast<COLORREF>(settings.Button3DColor2);
    EXPECT_GT(scrolled.Count(MenuWindow::SlotInWindow(scene, 1), dark), 5) << "its up arrow";
    EXPECT_TRUE(AllOf(scrolled, RightEnd(ItemInWindow(scene, 100)), kSelBarColour));
}

TEST_F(MenuWindowTest, ATitleTooLongForItsBarIsShortenedWithinTheBar) {
    settings.ButtonMinWidth = 120;
    settings.ButtonMaxWidth = 120;
    Form2* form = Open(MenuRecord(AddMenu("A menu name far too long for a bar this narrow", {"Editor"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    Rect title = form->scene().layout.title;
    ASSERT_EQ(title.Width(), 120);
    // The padding at the right end stays clear: the text was cut to its room.
    EXPECT_EQ(picture.Count({title.right - 5, title.top, title.right, title.bottom}, kTitleTextColour), 0);
    EXPECT_GT(picture.Count({title.right - 30, title.top, title.right - 5, title.bottom}, kTitleTextColour), 0)
        << "the dots stand near the end";
}

TEST_F(MenuWindowTest, TheInactiveLookIsUsedOnlyWhenItsSwitchIsOn) {
    settings.TitleInactiveColor = 0x00406080;
    settings.TitleInactiveFlat = true;
    settings.TitleInactiveOverlap = false;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor"})));
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

TEST_F(MenuWindowTest, DrawnTitleButtonsShowTheirFacesAndTheTitleTextStaysClear) {
    settings.CloseStatus = settings.RotateStatus = settings.RollUpStatus = settings.AlwaysOnTopStatus = 3;
    for (std::int16_t style : {0, 1}) {
        SCOPED_TRACE(style == 0 ? "square" : "round");
        settings.ButtonStyle = style;
        Form2* form = Open(MenuRecord(AddMenu("A rather long menu name that must be cut short", {"Editor"})));
        ASSERT_TRUE(form);
        WindowPicture picture(form->hwnd());
        std::vector<MenuWindow::PlacedTitleButton> placed = MenuWindow::PlacedTitleButtons(form->scene());
        ASSERT_EQ(placed.size(), 4u);
        EXPECT_GT(picture.Count(form->scene().layout.title, kTitleTextColour), 0) << "the name is written";
        for (const MenuWindow::PlacedTitleButton& button : placed) {
            if (style == 0) {
                EXPECT_GT(picture.Count(button.rect, MenuWindow::kSquareButtonFace), 20);
                EXPECT_GT(picture.Count(button.rect, MenuWindow::kSquareButtonGlyph), 4);
            } else {
                COLORREF circle = static_cast<COLORREF>(MenuWindow::RoundButtonColour(button.button));
                EXPECT_GT(picture.Count(button.rect, circle), 20);
            }
            EXPECT_EQ(picture.Count(button.rect, kTitleTextColour), 0) << "no text under a button";
        }
        openMenus.CloseAll();
    }
}

TEST_F(MenuWindowTest, TheDefaultLookIsABlackRaisedTitleOverAGreyGradientBody) {
    settings = SettingsRec();
    int menu = AddMenu("Applications", {"Text Editor", "Calculator", "Paint", "Accessories", "Mail"});
    ItemOf(menu, 3).TYPE = kItemMenuName;
    ItemOf(menu, 4).HOTKEY = std::string(1, 'm');
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    form->DrawButton(2, true);
    WindowPicture picture(form->hwnd());

    const SettingsRec defaults;
    Rect title = form->scene().layout.title;
    EXPECT_EQ(picture.At(title.left + 5, title.top), static_cast<COLORREF>(defaults.Title3DColor1)) << "raised";
    EXPECT_EQ(picture.At(title.left + 5, title.bottom - 1), static_cast<COLORREF>(defaults.Title3DColor2));
    EXPECT_EQ(picture.At(title.left + 2, title.top + 2), static_cast<COLORREF>(defaults.TitleColor));
    EXPECT_GT(picture.Count(title, static_cast<COLORREF>(defaults.TitleFontColor)), 0);

    Rect body = form->scene().layout.surface;
    std::vector<MenuWindow::ColourBand> bands =
        MenuWindow::GradientBands({body.Width(), body.Height()},
                                  {defaults.ButtonColor, defaults.ButtonColor2, defaults.ButtonGradientType, false});
    Rect first = ItemInWindow(form->scene(), 1);
    EXPECT_EQ(picture.At(body.left, first.top + 1), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(picture.At(body.right - 1, first.top + 1), static_cast<COLORREF>(bands.back().colour));
    Rect selected = ItemInWindow(form->scene(), 2);
    EXPECT_EQ(picture.At(selected.right - 2, selected.top + 2), static_cast<COLORREF>(defaults.SelBarColor));
}
