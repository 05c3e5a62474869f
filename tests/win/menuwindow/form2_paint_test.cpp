// The menu as painted, beyond what the end-to-end tests show: the selection bar and
// repainting only what changed, scrolling to an item, the title's name cut to its bar, the
// inactive look, and the look a user meets before changing anything.
#include "menu_window_fixture.h"

#include "menuwindow/look/gradient.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/paint/paint_title_buttons.h"

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

TEST_F(MenuWindowTest, TheSelectionBarFollowsTheSelectionRepaintingOnlyTheButtonsThatChanged) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", Labels(8))));
    ASSERT_TRUE(form);
    EXPECT_EQ(WindowPicture(form->hwnd()).Count(form->scene().layout.surface, kSelBarColour), 0);
    int before = form->ButtonsDrawn();
    form->SetSelection({3, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 1) << "only the newly selected button";
    form->SetSelection({5, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 3) << "then the old and the new one";
    form->SetSelection({5, false});
    EXPECT_EQ(form->ButtonsDrawn() - before, 3) << "no change, no repaint";

    WindowPicture picture(form->hwnd());
    EXPECT_TRUE(AllOf(picture, RightEnd(ItemInWindow(form->scene(), 3)), kButtonColour));
    EXPECT_GT(picture.Count(ItemInWindow(form->scene(), 3), kButtonTextColour), 0);
    EXPECT_TRUE(AllOf(picture, RightEnd(ItemInWindow(form->scene(), 5)), kSelBarColour));
    EXPECT_GT(picture.Count(ItemInWindow(form->scene(), 5), kSelBarTextColour), 0);
    EXPECT_EQ(picture.Count(ItemInWindow(form->scene(), 5), kButtonTextColour), 0);
}

// The scroll button at the cut end itself is the end-to-end tests'; here, scrolling to an item.
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
    form->PaintMenu();
    EXPECT_EQ(WindowPicture(form->hwnd()).At(1, 1), 0x00406080u);
    form->SetInactive(false);
    EXPECT_EQ(WindowPicture(form->hwnd()).At(1, 1), kTitleColour);
}

// With the defaults: a 3D arrow and a dimple in the dark edge colour, round close and
// roll-up buttons, and a selected button that comes back with its share of the gradient.
TEST_F(MenuWindowTest, TheDefaultLookIsABlackRaisedTitleOverAGreyGradientBody) {
    settings = SettingsRec();
    int menu = AddMenu("Applications", {"Text Editor", "Calculator", "Paint", "Accessories", "Mail"});
    ItemOf(menu, 3).TYPE = kItemMenuName;
    ItemOf(menu, 4).HOTKEY = std::string(1, 'm'); // not a literal: GCC 12 warns falsely at -O3
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    const MenuWindow::MenuScene& scene = form->scene();
    COLORREF share = WindowPicture(form->hwnd()).At(ItemInWindow(scene, 3).right - 2, ItemInWindow(scene, 3).top + 1);
    form->DrawButton(3, true);
    form->DrawButton(3, false);
    form->DrawButton(2, true);
    WindowPicture picture(form->hwnd());

    const SettingsRec defaults;
    Rect title = scene.layout.title;
    EXPECT_EQ(picture.At(title.left + 5, title.top), static_cast<COLORREF>(defaults.Title3DColor1)) << "raised";
    EXPECT_EQ(picture.At(title.left + 5, title.bottom - 1), static_cast<COLORREF>(defaults.Title3DColor2));
    EXPECT_EQ(picture.At(title.left + 2, title.top + 2), static_cast<COLORREF>(defaults.TitleColor));
    EXPECT_GT(picture.Count(title, static_cast<COLORREF>(defaults.TitleFontColor)), 0);
    for (const MenuWindow::PlacedTitleButton& button : MenuWindow::PlacedTitleButtons(scene))
        EXPECT_GT(picture.Count(button.rect, static_cast<COLORREF>(MenuWindow::RoundButtonColour(button.button))), 20);

    Rect body = scene.layout.surface;
    std::vector<MenuWindow::ColourBand> bands =
        MenuWindow::GradientBands({body.Width(), body.Height()},
                                  {defaults.ButtonColor, defaults.ButtonColor2, defaults.ButtonGradientType, false});
    Rect first = ItemInWindow(scene, 1);
    EXPECT_EQ(picture.At(body.left, first.top + 1), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(picture.At(body.right - 1, first.top + 1), static_cast<COLORREF>(bands.back().colour));
    EXPECT_EQ(picture.At(ItemInWindow(scene, 3).right - 2, ItemInWindow(scene, 3).top + 1), share);
    Rect selected = ItemInWindow(scene, 2);
    EXPECT_EQ(picture.At(selected.right - 2, selected.top + 2), static_cast<COLORREF>(defaults.SelBarColor));

    COLORREF dark = static_cast<COLORREF>(defaults.Button3DColor2);
    int arrow = scene.layout.columns.arrow;
    int hotkey = scene.layout.columns.hotkey;
    auto columns = [&](int item, int from, int to) {
        Rect b = ItemInWindow(scene, item);
        return Rect{b.right - from, b.top, b.right - to, b.bottom};
    };
    EXPECT_GT(picture.Count(columns(4, arrow, 0), dark), 4) << "the arrow";
    EXPECT_GT(picture.Count(columns(5, arrow + hotkey, arrow), dark), 4) << "the dimple";
    EXPECT_EQ(picture.Count(columns(3, arrow + hotkey, 0), dark), 0);
}
