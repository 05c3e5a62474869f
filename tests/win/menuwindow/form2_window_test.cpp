// The menu window as a window: how it is made, named, placed and outlined, and what it
// lets go when it unloads.
#include "menu_window_fixture.h"

#include "menuwindow/menu_scene.h"
#include "win/text_convert.h"

using namespace MenuWindowTests;
using MenuWindow::Rect;

TEST_F(MenuWindowTest, IsABorderlessToolPopupCreatedHiddenAndShownOnRequest) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    HWND hwnd = form->hwnd();
    wchar_t className[64] = {};
    ::GetClassNameW(hwnd, className, 64);
    EXPECT_STREQ(className, Form2::kClassName);
    LONG_PTR style = ::GetWindowLongPtrW(hwnd, GWL_STYLE);
    EXPECT_TRUE(style & WS_POPUP);
    EXPECT_FALSE(style & (WS_CAPTION | WS_THICKFRAME | WS_BORDER));
    EXPECT_TRUE(::GetWindowLongPtrW(hwnd, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) << "it would get a taskbar button";
    EXPECT_FALSE(::IsWindowVisible(hwnd)) << "a window is painted before it is shown";
    form->Show();
    EXPECT_TRUE(::IsWindowVisible(hwnd));
}

TEST_F(MenuWindowTest, AHotspotsCaptionIsTheWindowTextInsteadOfTheMenusName) {
    MenuWindow::CascadeRec record = MenuRecord(AddMenu("Graphics Tools", {"Paint"}));
    record.caption = "Start here";
    Form2* form = Open(record);
    ASSERT_TRUE(form);
    wchar_t text[64] = {};
    ::GetWindowTextW(form->hwnd(), text, 64);
    EXPECT_EQ(Win::Narrow(text), "Start here");
}

TEST_F(MenuWindowTest, StandsAtItsPositionWithTheSizeOfItsLayout) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"}), {120, 90}));
    ASSERT_TRUE(form);
    RECT rect{};
    ::GetWindowRect(form->hwnd(), &rect);
    MenuWindow::Size size = form->scene().layout.window;
    EXPECT_EQ(size.height, 24 + 3 * 20) << "the title bar and three buttons";
    EXPECT_EQ((Rect{rect.left, rect.top, rect.right, rect.bottom}),
              (Rect{120, 90, 120 + size.width, 90 + size.height}));
    const MenuWindow::CascadeRec* record = openMenus.records().Find(form->id());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->bounds, (Rect{120, 90, 120 + size.width, 90 + size.height}));
}

TEST_F(MenuWindowTest, RolledUpOnlyTheTitleBarIsLeftAsTheWindowsRegion) {
    for (std::int16_t position : {0, 2}) {
        SCOPED_TRACE(position == 0 ? "title at the top" : "title at the left");
        settings.TitlePosition = position;
        Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
        ASSERT_TRUE(form);
        Win::UniqueRegion probe(::CreateRectRgn(0, 0, 0, 0));
        EXPECT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), ERROR) << "no region in the normal state";
        form->SetRolledUp(true);
        ASSERT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), SIMPLEREGION);
        RECT box{};
        ::GetRgnBox(probe.get(), &box);
        MenuWindow::Size window = form->scene().layout.window;
        Rect expected = position == 0 ? Rect{0, 0, window.width, 24} : Rect{0, 0, 24, window.height};
        EXPECT_EQ((Rect{box.left, box.top, box.right, box.bottom}), expected);
        form->SetRolledUp(false);
        EXPECT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), ERROR);
        openMenus.CloseAll();
    }
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
