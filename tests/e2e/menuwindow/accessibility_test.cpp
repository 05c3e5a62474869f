// A screen reader's view of a menu: from another process, through the accessible object
// the menu window hands out, the items with their names, roles, states and places, the
// focus that follows the keys, the events that announce the menu and its focus, and the
// default action.
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/tarvex.h"
#include "win/com_apartment.h"
#include "win/com_ptr.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using namespace E2e;

VARIANT Child(long id) {
    VARIANT child;
    child.vt = VT_I4;
    child.lVal = id;
    return child;
}

std::string NameOf(IAccessible* menu, long id) {
    BSTR name = nullptr;
    if (FAILED(menu->get_accName(Child(id), &name)) || !name)
        return "(no name)";
    std::string text = Win::Narrow(name);
    ::SysFreeString(name);
    return text;
}

long LongOf(HRESULT (STDMETHODCALLTYPE IAccessible::*property)(VARIANT, VARIANT*), IAccessible* menu, long id) {
    VARIANT value;
    ::VariantInit(&value);
    return SUCCEEDED((menu->*property)(Child(id), &value)) && value.vt == VT_I4 ? value.lVal : -1;
}

// The focused child's id; -1 when none is focused.
long FocusOf(IAccessible* menu) {
    VARIANT focus;
    ::VariantInit(&focus);
    return menu->get_accFocus(&focus) == S_OK && focus.vt == VT_I4 ? focus.lVal : -1;
}

// The events menu windows raised (event, child), as an out-of-context hook sees them:
// they come to this thread while it waits.
std::vector<std::pair<DWORD, LONG>> menuEvents;

void CALLBACK OnMenuEvent(HWINEVENTHOOK, DWORD event, HWND hwnd, LONG object, LONG child, DWORD, DWORD) {
    const bool watched =
        event == EVENT_SYSTEM_MENUPOPUPSTART || event == EVENT_SYSTEM_MENUPOPUPEND || event == EVENT_OBJECT_FOCUS;
    if (watched && object == OBJID_CLIENT && DescribeWindow(hwnd).className == kMenuClass)
        menuEvents.emplace_back(event, child);
}

void Unhook(HWINEVENTHOOK hook) {
    ::UnhookWinEvent(hook);
}
using UniqueEventHook = Win::UniqueHandle<HWINEVENTHOOK, Unhook>;

} // namespace

TEST(MenuAccessibility, AScreenReaderReadsTheItemsFollowsTheKeysAndChoosesFromAnotherProcess) {
    Win::ComApartment com;
    TempFolder work;
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    TestHotspot hotspot;
    hotspot.target = "Programs";
    hotspot.left = 300;
    hotspot.top = 200;
    hotspot.hotKey = VK_F5;
    folder.WriteSettings(HotspotSettings({hotspot}, "SelBar=True\n"));
    folder.WriteMenus(MenuFileText({{"Programs",
                                     {NotepadItems({"Editor"})[0], Item("Date & Time", 1, "DateTime"),
                                      Item("Tools", 3, "Tools"), WritesAFile("Write", work.File("chosen.txt"))}},
                                    {"Tools", NotepadItems({"Calculator"})}}));
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    ASSERT_TRUE(tarvex.WaitUntilReady());

    menuEvents.clear();
    UniqueEventHook hook(::SetWinEventHook(EVENT_SYSTEM_MENUPOPUPSTART, EVENT_OBJECT_FOCUS, nullptr, OnMenuEvent,
                                           tarvex.processId(), 0, WINEVENT_OUTOFCONTEXT));
    ASSERT_TRUE(hook);
    TapKeys(VK_CONTROL, VK_F5, 60ms);
    std::optional<WindowInfo> shown = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(shown) << "the hot key opens the menu";
    const HWND window = shown->hwnd;
    const RECT rect = shown->rect;

    Win::ComPtr<IAccessible> menu;
    ASSERT_EQ(::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                           reinterpret_cast<void**>(menu.put())),
              S_OK);
    ASSERT_TRUE(menu);
    long count = 0;
    ASSERT_EQ(menu->get_accChildCount(&count), S_OK);
    ASSERT_EQ(count, 4);
    EXPECT_EQ(NameOf(menu.get(), CHILDID_SELF), "Programs");
    EXPECT_EQ(LongOf(&IAccessible::get_accRole, menu.get(), CHILDID_SELF), ROLE_SYSTEM_MENUPOPUP);
    const char* names[] = {"Editor", "Date & Time", "Tools", "Write"};
    for (long id = 1; id <= count; ++id) {
        EXPECT_EQ(NameOf(menu.get(), id), names[id - 1]);
        EXPECT_EQ(LongOf(&IAccessible::get_accRole, menu.get(), id), ROLE_SYSTEM_MENUITEM);
        const bool popup = (LongOf(&IAccessible::get_accState, menu.get(), id) & STATE_SYSTEM_HASPOPUP) != 0;
        EXPECT_EQ(popup, id == 3) << names[id - 1];
        // Where the plain look draws the item's button, the reader finds the item.
        const POINT middle = PlainItemPoint(rect, static_cast<int>(id));
        long left = 0, top = 0, width = 0, height = 0;
        ASSERT_EQ(menu->accLocation(&left, &top, &width, &height, Child(id)), S_OK);
        EXPECT_TRUE(middle.x >= left && middle.x < left + width && middle.y >= top && middle.y < top + height)
            << names[id - 1] << " at " << left << "," << top << " " << width << "x" << height;
        VARIANT hit;
        ::VariantInit(&hit);
        ASSERT_EQ(menu->accHitTest(middle.x, middle.y, &hit), S_OK);
        EXPECT_EQ(hit.vt == VT_I4 ? hit.lVal : -1, id);
    }
    EXPECT_EQ(FocusOf(menu.get()), CHILDID_SELF) << "no item selected yet: the menu has the focus";
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(menu.get()) == 1; }, 10s)) << "Down focuses the first item";
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(menu.get()) == 2; }, 10s)) << "and the second";
    const long state = LongOf(&IAccessible::get_accState, menu.get(), 2);
    EXPECT_EQ(state & (STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED), STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED);
    EXPECT_TRUE(SaveNamedScreenshot("menuwindow-accessible-focus-on-second-item"));

    ASSERT_EQ(menu->accDoDefaultAction(Child(4)), S_OK);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("chosen.txt"); }, 20s)) << "the default action chose the item";
    ASSERT_TRUE(WaitForMenuCount(tarvex.processId(), 0)) << "and the menu closed, as a click would close it";
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(window); }, 10s));
    EXPECT_TRUE(FAILED(menu->get_accChildCount(&count))) << "the object outlives its window and says so";

    // The focus moved to the chosen item before the menu closed.
    const std::vector<std::pair<DWORD, LONG>> announced = {{EVENT_SYSTEM_MENUPOPUPSTART, CHILDID_SELF},
                                                           {EVENT_OBJECT_FOCUS, 1},
                                                           {EVENT_OBJECT_FOCUS, 2},
                                                           {EVENT_OBJECT_FOCUS, 4},
                                                           {EVENT_SYSTEM_MENUPOPUPEND, CHILDID_SELF}};
    EXPECT_TRUE(WaitUntil([&] { return menuEvents.size() >= announced.size(); }, 10s));
    EXPECT_EQ(menuEvents, announced);
}
