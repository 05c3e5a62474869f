// The buttons as painted: their colour and gradient, the selection bar, repainting only
// what changed, the scroll buttons of a menu longer than the screen, horizontal menus.
#include "menu_window_fixture.h"

#include "menuwindow/gradient.h"
#include "menuwindow/menu_scene.h"
#include "menuwindow/win/screen_area.h"

using namespace MenuWindowTests;
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

::testing::AssertionResult AllOf(const WindowPicture& picture, const Rect& area, COLORREF colour) {
    int count = picture.Count(area, colour);
    int all = area.Width() * area.Height();
    if (all > 0 && count == all)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << count << " of " << all << " pixels have colour 0x" << std::hex << colour;
}

} // namespace

TEST_F(MenuWindowTest, ButtonPixelsHaveTheButtonColourAndTextTheFontColour) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-plain");
    for (int item = 1; item <= 3; ++item) {
        Rect button = MenuWindow::ItemInWindow(form->scene(), item);
        EXPECT_TRUE(AllOf(picture, RightEnd(button), kButtonColour)) << "item " << item;
        EXPECT_GT(picture.Count(button, kButtonTextColour), 0) << "item " << item << " has its label";
    }
    EXPECT_EQ(picture.Count(form->scene().layout.surface, kSelBarColour), 0) << "nothing is selected";
}

TEST_F(MenuWindowTest, DrawButtonSelectedShowsTheSelectionBarAndItsTextColour) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"})));
    ASSERT_TRUE(form);
    form->DrawButton(2, true);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-selected");
    Rect selected = MenuWindow::ItemInWindow(form->scene(), 2);
    EXPECT_TRUE(AllOf(picture, RightEnd(selected), kSelBarColour));
    EXPECT_GT(picture.Count(selected, kSelBarTextColour), 0);
    EXPECT_EQ(picture.Count(selected, kButtonTextColour), 0);
    EXPECT_TRUE(AllOf(picture, RightEnd(MenuWindow::ItemInWindow(form->scene(), 1)), kButtonColour));

    form->DrawButton(2, false);
    EXPECT_TRUE(AllOf(WindowPicture(form->hwnd()), RightEnd(selected), kButtonColour));
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
    EXPECT_TRUE(AllOf(picture, RightEnd(MenuWindow::ItemInWindow(form->scene(), 3)), kButtonColour));
    EXPECT_TRUE(AllOf(picture, RightEnd(MenuWindow::ItemInWindow(form->scene(), 5)), kSelBarColour));
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
    EXPECT_TRUE(
        AllOf(WindowPicture(form->hwnd()), RightEnd(MenuWindow::ItemInWindow(form->scene(), 2)), kSelBarColour));

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
    picture.Save("buttons-gradient-over-menu");
    Rect surface = form->scene().layout.surface;
    std::vector<MenuWindow::ColourBand> bands = MenuWindow::GradientBands(
        {surface.Width(), surface.Height()}, {0x00F0F0F0, 0x00606060, MenuWindow::kGradientTopToBottom, false});
    int x = surface.right - 2;
    EXPECT_EQ(picture.At(x, surface.top + bands.front().rect.top), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(picture.At(x, surface.top + bands.back().rect.bottom - 1), static_cast<COLORREF>(bands.back().colour));
    // A selected button comes back with its own share of the body's gradient.
    Rect third = MenuWindow::ItemInWindow(form->scene(), 3);
    COLORREF share = picture.At(x, third.top + 1);
    form->DrawButton(3, true);
    form->DrawButton(3, false);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(x, third.top + 1), share);
}

TEST_F(MenuWindowTest, ASubMenuItemCarriesAFlatArrowInTheTextColour) {
    settings.Menu3DArrows = 1;
    int menu = AddMenu("Programs", {"Tools", "Editor"});
    ItemOf(menu, 0).TYPE = kItemMenuName;
    ItemOf(menu, 0).PATH = "Tools";
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-arrow");
    Rect withArrow = MenuWindow::ItemInWindow(form->scene(), 1);
    Rect without = MenuWindow::ItemInWindow(form->scene(), 2);
    Rect arrowColumn{withArrow.right - 14, withArrow.top, withArrow.right, withArrow.bottom};
    Rect sameColumn{without.right - 14, without.top, without.right, without.bottom};
    EXPECT_GT(picture.Count(arrowColumn, kButtonTextColour), 8);
    EXPECT_EQ(picture.Count(sameColumn, kButtonTextColour), 0);
}

TEST_F(MenuWindowTest, AnItemWithAHotKeyShowsTheSymbolAndTheKey) {
    settings.HotkeyStyle = 1; // the apple symbol, drawn in the text colour
    int menu = AddMenu("Programs", {"Editor", "Calculator"});
    ItemOf(menu, 0).HOTKEY = "e";
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-hotkey");
    const MenuWindow::MenuScene& scene = form->scene();
    ASSERT_TRUE(scene.measures[0].hasHotkey);
    Rect first = MenuWindow::ItemInWindow(scene, 1);
    Rect second = MenuWindow::ItemInWindow(scene, 2);
    int column = scene.layout.columns.hotkey;
    ASSERT_GT(column, 0);
    Rect keyColumn{first.right - column, first.top, first.right, first.bottom};
    Rect emptyColumn{second.right - column, second.top, second.right, second.bottom};
    EXPECT_GT(picture.Count(keyColumn, kButtonTextColour), 10) << "symbol and key";
    EXPECT_EQ(picture.Count(emptyColumn, kButtonTextColour), 0);
}

TEST_F(MenuWindowTest, AMenuLongerThanTheScreenShowsAScrollButtonAtTheCutEndAndNoButtonBehindIt) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(100)), {100, 0}));
    ASSERT_TRUE(form);
    const MenuWindow::MenuScene& scene = form->scene();
    Rect work = MenuWindow::WorkAreaAt({100, 0});
    EXPECT_LE(scene.layout.window.height, work.Height());
    const MenuWindow::ScrollView& view = scene.view();
    ASSERT_LT(view.slots, 100);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-scroll");

    Rect lastSlot = MenuWindow::SlotInWindow(scene, view.slots);
    EXPECT_TRUE(MenuWindow::ItemInWindow(scene, view.slots).Empty()) << "no button behind the scroll button";
    // The slot shows the down arrow (3D: dark and light) and no label text.
    EXPECT_GT(picture.Count(lastSlot, static_cast<COLORREF>(settings.Button3DColor2)), 5);
    int middle = lastSlot.left + lastSlot.Width() / 2;
    Rect arrow{middle - 5, lastSlot.top, middle + 6, lastSlot.bottom};
    EXPECT_LT(picture.Count(arrow, kButtonColour), arrow.Width() * arrow.Height());
    Rect left{lastSlot.left, lastSlot.top, middle - 8, lastSlot.bottom};
    EXPECT_EQ(picture.Count(left, kButtonTextColour), 0) << "no label";

    form->MakeButtonVisible(100);
    EXPECT_EQ(scene.view().first + view.slots, 100) << "scrolled to the end";
    EXPECT_EQ(form->selection().selected, 100);
    WindowPicture scrolled(form->hwnd());
    scrolled.Save("buttons-scrolled-to-end");
    Rect firstSlot = MenuWindow::SlotInWindow(scene, 1);
    EXPECT_TRUE(MenuWindow::ItemInWindow(scene, scene.view().first + 1).Empty());
    EXPECT_GT(scrolled.Count(firstSlot, static_cast<COLORREF>(settings.Button3DColor2)), 5) << "up arrow";
    EXPECT_TRUE(AllOf(scrolled, RightEnd(MenuWindow::ItemInWindow(scene, 100)), kSelBarColour));
}

TEST_F(MenuWindowTest, TwinScrollButtonsShareTheLastSlot) {
    settings.TwinScrollButtons = true;
    settings.MenuMaxNoItems = 10;
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(30))));
    ASSERT_TRUE(form);
    const MenuWindow::MenuScene& scene = form->scene();
    EXPECT_EQ(scene.view().slots, 10);
    WindowPicture picture(form->hwnd());
    picture.Save("buttons-twin-scroll");
    Rect last = MenuWindow::SlotInWindow(scene, 10);
    int middle = last.left + last.Width() / 2;
    COLORREF dark = static_cast<COLORREF>(settings.Button3DColor2);
    EXPECT_GT(picture.Count({last.left, last.top, middle, last.bottom}, dark), 5) << "up arrow on the left";
    EXPECT_GT(picture.Count({middle, last.top, last.right, last.bottom}, dark), 5) << "down arrow on the right";
}

TEST_F(MenuWindowTest, AHorizontalMenuStandsItsButtonsSideBySide) {
    settings.HorzNoTitlebar = false;
    settings.MenuHorizontalStyle = 1; // a turned title at the left end of the row
    MenuWindow::CascadeRec record = MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"}));
    record.horizontal = true;
    Form2* form = Open(record);
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("horizontal");
    const MenuWindow::MenuScene& scene = form->scene();
    EXPECT_EQ(scene.layout.window.height, 22);
    EXPECT_EQ(picture.At(1, 1), kTitleColour);
    Rect first = MenuWindow::ItemInWindow(scene, 1);
    Rect second = MenuWindow::ItemInWindow(scene, 2);
    EXPECT_EQ(first.top, second.top);
    EXPECT_EQ(first.right, second.left);
    EXPECT_GT(picture.Count(second, kButtonTextColour), 0);
}

TEST_F(MenuWindowTest, AThreeDFrameHasItsLightAndDarkLines) {
    settings.MenuNoFrames = 0;
    settings.Menu3DFrame = true;
    settings.MenuFrameColor = 0x00E8E8E8;
    settings.MenuFrameColor2 = 0x00202020;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    WindowPicture picture(form->hwnd());
    picture.Save("frame-3d");
    EXPECT_EQ(picture.At(10, 0), 0x00E8E8E8u);
    EXPECT_EQ(picture.At(0, 10), 0x00E8E8E8u);
    EXPECT_EQ(picture.At(10, picture.height() - 1), 0x00202020u);
    EXPECT_EQ(picture.At(picture.width() - 1, 10), 0x00202020u);
    EXPECT_EQ(form->scene().layout.title.top, 1) << "the title inside the frame";
}
