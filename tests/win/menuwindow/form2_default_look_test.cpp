// The look a user meets before changing anything: the settings' defaults.
#include "menu_window_fixture.h"

#include "menuwindow/gradient.h"
#include "menuwindow/menu_scene.h"

using namespace MenuWindowTests;
using MenuWindow::Rect;

TEST_F(MenuWindowTest, TheDefaultLookIsABlackRaisedTitleOverAGreyGradientBody) {
    settings = SettingsRec();
    int menu = AddMenu("Applications", {"Text Editor", "Calculator", "Paint", "Accessories", "Mail"});
    ItemOf(menu, 3).TYPE = kItemMenuName;
    ItemOf(menu, 4).HOTKEY = std::string(1, 'm');
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    form->DrawButton(2, true);
    WindowPicture picture(form->hwnd());
    picture.Save("default-look");

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
    Rect first = MenuWindow::ItemInWindow(form->scene(), 1);
    EXPECT_EQ(picture.At(body.left, first.top + 1), static_cast<COLORREF>(bands.front().colour));
    EXPECT_EQ(picture.At(body.right - 1, first.top + 1), static_cast<COLORREF>(bands.back().colour));
    Rect selected = MenuWindow::ItemInWindow(form->scene(), 2);
    EXPECT_EQ(picture.At(selected.right - 2, selected.top + 2), static_cast<COLORREF>(defaults.SelBarColor));
}
