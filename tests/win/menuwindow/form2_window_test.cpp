// The menu window as a window: how it is made, named, placed and outlined, and what it
// lets go when it unloads.
#include "menu_window_fixture.h"

#include "menuwindow/menu_scene.h"
#include "win/text_convert.h"

using namespace MenuWindowTests;
using MenuWindow::Rect;

namespace {

std::string WindowText(HWND hwnd) {
    wchar_t text[256] = {};
    ::GetWindowTextW(hwnd, text, 256);
    return Win::Narrow(text);
}

RECT WindowRect(HWND hwnd) {
    RECT rect{};
    ::GetWindowRect(hwnd, &rect);
    return rect;
}

} // namespace

TEST_F(MenuWindowTest, IsABorderlessToolPopupCreatedHiddenAndShownOnRequest) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    HWND hwnd = form->hwnd();
    wchar_t className[64] = {};
    ::GetClassNameW(hwnd, className, 64);
    EXPECT_STREQ(className, Form2::kClassName);
    LONG_PTR style = ::GetWindowLongPtrW(hwnd, GWL_STYLE);
    LONG_PTR exStyle = ::GetWindowLongPtrW(hwnd, GWL_EXSTYLE);
    EXPECT_TRUE(style & WS_POPUP);
    EXPECT_FALSE(style & (WS_CAPTION | WS_THICKFRAME | WS_BORDER));
    EXPECT_TRUE(exStyle & WS_EX_TOOLWINDOW) << "it would get a taskbar button";
    EXPECT_FALSE(::IsWindowVisible(hwnd)) << "a window is painted before it is shown";

    form->Show();
    EXPECT_TRUE(::IsWindowVisible(hwnd));
}

TEST_F(MenuWindowTest, TheWindowTextIsTheMenusName) {
    Form2* form = Open(MenuRecord(AddMenu("Graphics Tools", {"Paint"})));
    ASSERT_TRUE(form);
    EXPECT_EQ(WindowText(form->hwnd()), "Graphics Tools");
}

TEST_F(MenuWindowTest, AHotspotsCaptionIsShownInsteadOfTheMenusName) {
    MenuWindow::CascadeRec record = MenuRecord(AddMenu("Programs", {"Paint"}));
    record.caption = "Start here";
    Form2* form = Open(record);
    ASSERT_TRUE(form);
    EXPECT_EQ(WindowText(form->hwnd()), "Start here");
}

TEST_F(MenuWindowTest, StandsAtItsPositionWithTheSizeOfItsLayout) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator", "Paint"}), {120, 90}));
    ASSERT_TRUE(form);
    RECT rect = WindowRect(form->hwnd());
    MenuWindow::Size size = form->scene().layout.window;
    EXPECT_EQ(rect.left, 120);
    EXPECT_EQ(rect.top, 90);
    EXPECT_EQ(rect.right - rect.left, size.width);
    EXPECT_EQ(rect.bottom - rect.top, size.height);
    EXPECT_EQ(size.height, 24 + 3 * 22) << "the title bar and three buttons";
    const MenuWindow::CascadeRec* record = openMenus.records().Find(form->id());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->bounds, (Rect{120, 90, 120 + size.width, 90 + size.height}));
}

TEST_F(MenuWindowTest, OnMouseOpensAtTheCursorPoint) {
    MenuWindow::CascadeRec record = MenuRecord(AddMenu("Programs", {"Editor"}), {300, 200});
    record.origin = {40, 30};
    record.onMouse = true;
    Form2* form = Open(record);
    ASSERT_TRUE(form);
    RECT rect = WindowRect(form->hwnd());
    EXPECT_EQ(rect.left, 300);
    EXPECT_EQ(rect.top, 200);
}

TEST_F(MenuWindowTest, HasNoRegionNormallyAndOnlyItsTitleBarWhenRolledUp) {
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    Win::UniqueRegion probe(::CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), ERROR) << "no region in the normal state";

    form->SetRolledUp(true);
    ASSERT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), SIMPLEREGION);
    RECT box{};
    ::GetRgnBox(probe.get(), &box);
    MenuWindow::Size window = form->scene().layout.window;
    EXPECT_EQ(box.left, 0);
    EXPECT_EQ(box.top, 0);
    EXPECT_EQ(box.right, window.width);
    EXPECT_EQ(box.bottom, 24);

    form->SetRolledUp(false);
    EXPECT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), ERROR);
}

TEST_F(MenuWindowTest, ARolledUpMenuWithItsTitleAtTheLeftKeepsTheTitleColumn) {
    settings.TitlePosition = 2;
    Form2* form = Open(MenuRecord(AddMenu("Programs", {"Editor", "Calculator"})));
    ASSERT_TRUE(form);
    form->SetRolledUp(true);
    Win::UniqueRegion probe(::CreateRectRgn(0, 0, 0, 0));
    ASSERT_EQ(::GetWindowRgn(form->hwnd(), probe.get()), SIMPLEREGION);
    RECT box{};
    ::GetRgnBox(probe.get(), &box);
    EXPECT_EQ(box.right, 24);
    EXPECT_EQ(box.bottom, form->scene().layout.window.height);
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
