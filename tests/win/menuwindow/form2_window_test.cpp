// The menu window as a window: how it is made and outlined, and what it lets go when it
// unloads.
#include "menu_window_fixture.h"

#include "menuwindow/layout/menu_scene.h"

using namespace MenuWindowTests;
using MenuWindow::Rect;

// Its place, size, title and taskbar style, and the region of a rolled-up menu, are the
// end-to-end tests'.
TEST_F(MenuWindowTest, IsABorderlessPopupCreatedHiddenAndShownOnRequest) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    HWND hwnd = form->hwnd();
    LONG_PTR style = ::GetWindowLongPtrW(hwnd, GWL_STYLE);
    EXPECT_TRUE(style & WS_POPUP);
    EXPECT_FALSE(style & (WS_CAPTION | WS_THICKFRAME | WS_BORDER));
    EXPECT_FALSE(::IsWindowVisible(hwnd)) << "a window is painted before it is shown";
    form->Show();
    EXPECT_TRUE(::IsWindowVisible(hwnd));
}

TEST_F(MenuWindowTest, ItemIconsComeFromIconPathWithAnIndexAndGoWithDestroyIconHandles) {
    settings.ButtonIcons = true;
    int menu = AddMenu("Programs", {"Shell icon", "No icon"});
    ItemOf(menu, 0).ICONPATH = "shell32.dll,3";
    ItemOf(menu, 1).TYPE = kItemCommandName;
    ItemOf(menu, 1).PATH = "*5";
    Form2* form = Open(MenuRecord(menu));
    ASSERT_TRUE(form);
    EXPECT_EQ(form->IconsHeld(), 1);
    WindowPicture picture(form->hwnd());
    Rect button = MenuWindow::ItemInWindow(form->scene(), 1);
    Rect icon{button.left + 4, button.top + 3, button.left + 20, button.bottom - 3};
    EXPECT_LT(picture.Count(icon, kButtonColour), icon.Width() * icon.Height()) << "the icon was drawn";
    form->DestroyIconHandles();
    EXPECT_EQ(form->IconsHeld(), 0);
}

TEST_F(MenuWindowTest, ClosingAWindowRemovesItsRecordAndLaterRecordsMoveDown) {
    int menu = AddMenu("Programs", {"Editor"});
    Form2* first = Open(MenuRecord(menu));
    Form2* second = Open(MenuRecord(menu, {300, 80}));
    ASSERT_TRUE(first && second);
    HWND firstWindow = first->hwnd();
    int secondId = second->id();
    ::SendMessageW(firstWindow, WM_CLOSE, 0, 0);
    EXPECT_TRUE(::IsWindow(firstWindow)) << "a menu closes through the open menus only";

    openMenus.Close(1);
    EXPECT_FALSE(::IsWindow(firstWindow));
    ASSERT_EQ(openMenus.Count(), 1);
    EXPECT_EQ(openMenus.records().At(1).id, secondId);
    EXPECT_EQ(openMenus.WindowOf(secondId), second);
}
