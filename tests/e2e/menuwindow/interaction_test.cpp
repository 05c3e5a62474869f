// Living in the menus with the mouse and the keyboard: the selection bar follows the
// keys, sub-menus drop down and close, folders list and open, and the title bar drags,
// rolls up, rotates, keeps on top, closes and tears sub-menus off. Every check looks at
// what a user sees: windows, their places and the selection bar's pixels.
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/screen.h"
#include "harness/startup_menu.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace E2e;

constexpr COLORREF kBarColour = 0x0030A0F0;
// Title-bar buttons are 20 pixels square, centred across the 26-pixel bar and as far
// from its end: with the default positions, close stands at the right end, and roll-up,
// on-top and rotate at the left end in that order, 2 pixels apart.
constexpr int kButtonCentre = 13;
constexpr int kRollUpX = 13;
constexpr int kOnTopX = 35;
constexpr int kRotateX = 57;
constexpr int kCloseFromRight = 13;

std::string SelectionBar(const std::string& extra = "") {
    return extra + "SelBar=True\nSelBarGradient=0\nSelBarColor=" + std::to_string(kBarColour) + "\n";
}

TestItem MenuItem(const std::string& label, const std::string& menu) {
    return Item(label, 3, menu);
}

class MenuInteraction : public StartupMenuTest {
protected:
    // Starts the program with menus; the first opens at start and is main.
    void Open(const std::vector<TestMenu>& menus, const std::string& extraSettings = SelectionBar()) {
        std::optional<WindowInfo> found =
            Start(StartupMenuSettings(menus.front().name, 200, 120, extraSettings), MenuFileText(menus));
        ASSERT_TRUE(found) << "no menu at start";
        main = found->hwnd;
    }

    static RECT RectOf(HWND window) {
        RECT rect{};
        ::GetWindowRect(window, &rect);
        return rect;
    }

    static POINT ItemPoint(HWND window, int item) { return PlainItemPoint(RectOf(window), item); }

    static bool ClickItem(HWND window, int item) {
        POINT at = ItemPoint(window, item);
        return Click(at.x, at.y);
    }

    // Most of the button's row, sampled across its width, shows the bar's colour (the
    // label covers the rest).
    static bool BarOn(HWND window, int item) {
        RECT r = RectOf(window);
        int y = ItemPoint(window, item).y + kPlainButtonHeight / 2 - 2;
        int width = r.right - r.left;
        int hits = 0;
        for (int i = 1; i < 20; ++i)
            hits += ReadPixel(r.left + width * i / 20, y) == kBarColour ? 1 : 0;
        return hits >= 15;
    }

    ::testing::AssertionResult BarMovesTo(HWND window, int item) {
        if (WaitUntil([&] { return BarOn(window, item); }, 5s))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "the selection bar is not on item " << item;
    }

    std::size_t MenuCount() { return VisibleMenuWindows(tarvex.processId()).size(); }
    bool MenusShown(std::size_t count) { return WaitForMenuCount(tarvex.processId(), count); }

    HWND MenuTitled(const std::string& title) {
        std::optional<WindowInfo> found = MenuWindowTitled(tarvex.processId(), title);
        return found ? found->hwnd : nullptr;
    }

    HWND main = nullptr;
};

} // namespace

TEST_F(MenuInteraction, KeysMoveTheBarWrapRoundAndFindItemsByTheirFirstLetter) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", NotepadItems({"Alpha", "Bravo", "Charlie", "Bravado", "Echo"})}}));
    struct Step {
        WORD key;
        int item;
    } steps[] = {{VK_HOME, 1}, {VK_UP, 5}, {VK_DOWN, 1}, {'B', 2}, {'B', 4}, {'Z', 4}, {'A', 1}, {VK_END, 5}};
    for (const Step& step : steps) {
        PressKey(step.key);
        EXPECT_TRUE(BarMovesTo(main, step.item)) << "after key " << step.key;
    }
    EXPECT_EQ(MenuCount(), 1u) << "a letter selects without choosing";
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(MenusShown(0)) << "Escape closes the menu";
}

TEST_F(MenuInteraction, EnterOpensASubMenuAndEscapeThereHandsTheKeyboardBack) {
    TempFolder work;
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {MenuItem("Tools", "Tools"), WritesAFile("Write", work.File("x.txt"))}},
                                  {"Tools", NotepadItems({"Editor", "Calculator"})}}));
    PressKey(VK_HOME);
    ASSERT_TRUE(BarMovesTo(main, 1));
    PressKey(VK_RETURN);
    ASSERT_TRUE(MenusShown(2));
    HWND tools = MenuTitled("Tools");
    ASSERT_TRUE(tools);
    PressKey(VK_DOWN);
    EXPECT_TRUE(BarMovesTo(tools, 1)) << "the sub-menu that opened last has the keyboard";
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(MenusShown(1));
    EXPECT_TRUE(BarOn(main, 1)) << "the parent keeps its selection";
    PressKey(VK_DOWN);
    EXPECT_TRUE(BarMovesTo(main, 2)) << "and has the keyboard again";
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("x.txt"); }, 20s)) << "Enter chose the item";
    EXPECT_TRUE(MenusShown(0));
}

TEST_F(MenuInteraction, RestingOnASubMenuItemDropsItDownBesideAndAProgramItemClosesIt) {
    std::string settings = SelectionBar("MenuAutoDropDown=True\nMenuDropDownDelay=200\nSelBarFollowMouse=True\n");
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {MenuItem("Tools", "Tools"), NotepadItems({"Editor"})[0]}},
                                  {"Tools", NotepadItems({"Calculator", "Paint"})}},
                                 settings));
    POINT tools = ItemPoint(main, 1);
    ASSERT_TRUE(MoveMouse(tools.x, tools.y));
    EXPECT_TRUE(BarMovesTo(main, 1)) << "the bar follows the mouse";
    ASSERT_TRUE(MenusShown(2)) << "resting drops the sub-menu down";
    RECT parent = RectOf(main);
    RECT sub = RectOf(MenuTitled("Tools"));
    EXPECT_EQ(sub.left, parent.right) << "beside its parent";
    EXPECT_EQ(sub.top, parent.top + kPlainTitleHeight) << "its title level with the button";
    POINT editor = ItemPoint(main, 2);
    ASSERT_TRUE(MoveMouse(editor.x, editor.y));
    EXPECT_TRUE(MenusShown(1)) << "resting on a program closes the sub-menu";
}

TEST_F(MenuInteraction, ClicksOpenACascadeThreeDeepAMenuThatOpensItselfAndAChoiceClosesAll) {
    TempFolder work;
    ASSERT_NO_FATAL_FAILURE(Open({{"Main", {MenuItem("Second", "Second"), MenuItem("Nowhere", "No such menu")}},
                                  {"Second", {MenuItem("Third", "Third")}},
                                  {"Third", {WritesAFile("Write", work.File("x.txt")), MenuItem("Main again", "Main")}}}));
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    ASSERT_TRUE(ClickItem(MenuTitled("Second"), 1));
    ASSERT_TRUE(MenusShown(3));
    HWND third = MenuTitled("Third");
    ASSERT_TRUE(third);
    EXPECT_EQ(RectOf(third).left, RectOf(MenuTitled("Second")).right);
    Screenshot("cascade");
    ASSERT_TRUE(ClickItem(third, 2));
    EXPECT_TRUE(MenusShown(4)) << "Main opens once more, as a new window";
    ASSERT_TRUE(ClickItem(third, 1));
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("x.txt"); }, 20s));
    EXPECT_TRUE(MenusShown(0)) << "the whole cascade closes";
}

TEST_F(MenuInteraction, AMenuNameThatNamesNoMenuOpensAnEmptyMenu) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Main", {MenuItem("Nowhere", "No such menu"), NotepadItems({"Editor"})[0]}}}));
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    HWND empty = MenuTitled("No such menu");
    ASSERT_TRUE(empty);
    ASSERT_TRUE(ClickItem(empty, 1));
    EXPECT_EQ(MenuCount(), 2u) << "nothing in it to choose";
    ASSERT_TRUE(ClickItem(main, 1)) << "the parent still answers";
}

TEST_F(MenuInteraction, OneClickListsAFolderAndTwoQuickClicksOpenItInTheShell) {
    TempFolder files;
    files.WriteBytes("one.txt", "1");
    files.WriteBytes("two.txt", "2");
    std::string name = files.path().substr(files.path().find_last_of('\\') + 1);
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {Item("Files", 2, files.path())}}}));
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    HWND listing = MenuTitled(name);
    ASSERT_TRUE(listing) << "the folder's name is the sub-menu's title";
    RECT r = RectOf(listing);
    EXPECT_EQ(r.bottom - r.top, kPlainTitleHeight + 2 * kPlainButtonHeight) << "its two files";
    Settle(600ms); // past the double-click time: the next click is a first click again
    POINT files1 = ItemPoint(main, 1);
    ASSERT_TRUE(QuickClicks(files1.x, files1.y));
    EXPECT_TRUE(MenusShown(0)) << "the second click chose the folder";
    HWND shellWindow = nullptr;
    EXPECT_TRUE(WaitUntil(
        [&] {
            for (const WindowInfo& window : TopLevelWindows("", 0))
                if (window.visible && window.processId != tarvex.processId() &&
                    window.title.find(name) != std::string::npos)
                    shellWindow = window.hwnd;
            return shellWindow != nullptr;
        },
        20s))
        << "no shell window shows the folder";
    if (shellWindow)
        ::PostMessageW(shellWindow, WM_CLOSE, 0, 0);
}

TEST_F(MenuInteraction, MorePagesALongFolderOnInASubMenu) {
    TempFolder files;
    for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"})
        files.WriteBytes(name, "x");
    std::string name = files.path().substr(files.path().find_last_of('\\') + 1);
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {Item("Files", 2, files.path())}}}, SelectionBar("MenuMaxNoItems=3\n")));
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    HWND first = MenuTitled(name);
    ASSERT_TRUE(first);
    ASSERT_TRUE(ClickItem(first, 1)) << "More... on top, then a.txt and b.txt";
    ASSERT_TRUE(MenusShown(3));
    std::vector<WindowInfo> pages;
    for (const WindowInfo& window : VisibleMenuWindows(tarvex.processId()))
        if (window.title == name && window.hwnd != first)
            pages.push_back(window);
    ASSERT_EQ(pages.size(), 1u) << "the next page shares the folder's name";
    EXPECT_EQ(pages[0].rect.bottom - pages[0].rect.top, kPlainTitleHeight + 3 * kPlainButtonHeight)
        << "c.txt, d.txt and e.txt";
}

TEST_F(MenuInteraction, AFolderThatIsGoneListsAsEmptyAndAFileThatWentSaysSo) {
    auto files = std::make_unique<TempFolder>();
    files->WriteBytes("note.txt", "x");
    std::string path = files->path();
    std::string file = files->File("note.txt");
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {Item("Files", 2, path), Item("Gone", 2, path + "\\nothing here")}}}));
    ASSERT_TRUE(ClickItem(main, 2));
    ASSERT_TRUE(MenusShown(2));
    HWND gone = MenuTitled("nothing here");
    ASSERT_TRUE(gone);
    RECT r = RectOf(gone);
    EXPECT_EQ(r.bottom - r.top, kPlainTitleHeight + kPlainButtonHeight) << "one entry: (Empty)";
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    HWND listing = MenuTitled(path.substr(path.find_last_of('\\') + 1));
    ASSERT_TRUE(listing);
    files.reset(); // the folder goes while its listing is open
    ASSERT_TRUE(ClickItem(listing, 1));
    std::optional<WindowInfo> box = WaitForVisibleWindow("#32770", tarvex.processId(), 20s);
    ASSERT_TRUE(box) << "no message for the file that went";
    EXPECT_EQ(box->title, "Tarvex - Error running note.txt");
    ::PostMessageW(box->hwnd, WM_CLOSE, 0, 0);
    EXPECT_TRUE(tarvex.running());
}

TEST_F(MenuInteraction, DraggingAHotspotMenuMovesItAndItsPlaceIsStored) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", NotepadItems({"Text Editor", "Calculator"})}}));
    RECT before = RectOf(main);
    int grabX = (before.left + before.right) / 2;
    ASSERT_TRUE(Drag(grabX, before.top + kButtonCentre, grabX + 150, before.top + kButtonCentre + 70));
    EXPECT_TRUE(WaitUntil([&] { return RectOf(main).left == before.left + 150; }, 5s));
    RECT after = RectOf(main);
    EXPECT_EQ(after.top, before.top + 70);
    std::wstring settings = Win::Widen(folder.File("Helmora.ini"));
    auto stored = [&](const wchar_t* key) {
        return static_cast<int>(::GetPrivateProfileIntW(L"TARVEX", key, -1, settings.c_str()));
    };
    EXPECT_TRUE(WaitUntil([&] { return stored(L"HotSpot0MenuTop") == after.top; }, 5s));
    EXPECT_EQ(stored(L"HotSpot0MenuLeft"), after.left);
    EXPECT_EQ(stored(L"HotSpot0x2"), 1024) << "the other keys stay";
}

TEST_F(MenuInteraction, TitleButtonsKeepOnTopRollUpAndClose) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", NotepadItems({"Text Editor", "Calculator", "Paint"})}},
                                 SelectionBar("RotateStatus=3\nAlwaysOnTopStatus=3\n")));
    RECT r = RectOf(main);
    auto topmost = [&] { return (::GetWindowLongW(main, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; };
    ASSERT_FALSE(topmost());
    ASSERT_TRUE(Click(r.left + kOnTopX, r.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil(topmost, 5s)) << "on top";
    ASSERT_TRUE(Click(r.left + kOnTopX, r.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil([&] { return !topmost(); }, 5s)) << "and back";

    auto shownHeight = [&] {
        RECT box{};
        Win::UniqueRegion region(::CreateRectRgn(0, 0, 0, 0));
        if (::GetWindowRgn(main, region.get()) == ERROR)
            return static_cast<int>(r.bottom - r.top);
        ::GetRgnBox(region.get(), &box);
        return static_cast<int>(box.bottom - box.top);
    };
    ASSERT_TRUE(Click(r.left + kRollUpX, r.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil([&] { return shownHeight() == kPlainTitleHeight; }, 5s)) << "only the title bar shows";
    Screenshot("rolled-up");
    ASSERT_TRUE(Click(r.left + kRollUpX, r.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil([&] { return shownHeight() == r.bottom - r.top; }, 5s)) << "rolled down again";

    ASSERT_TRUE(Click(r.right - kCloseFromRight, r.top + kButtonCentre));
    EXPECT_TRUE(MenusShown(0));
}

TEST_F(MenuInteraction, TheRotateButtonLaysTheMenuOutAcrossAndBack) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", NotepadItems({"Text Editor", "Calculator", "Paint"})}},
                                 SelectionBar("RotateStatus=3\n")));
    RECT upright = RectOf(main);
    ASSERT_GT(upright.bottom - upright.top, 3 * kPlainButtonHeight);
    // Without the on-top button, rotate is second from the left end.
    ASSERT_TRUE(Click(upright.left + kOnTopX, upright.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil([&] { return RectOf(main).bottom - RectOf(main).top == kPlainTitleHeight + kPlainButtonHeight; },
                          5s))
        << "one row of buttons under the title bar, which stays to turn it back";
    ASSERT_TRUE(WaitForSteadyImage(main));
    Screenshot("rotated");
    RECT across = RectOf(main);
    ASSERT_TRUE(Click(across.left + kOnTopX, across.top + kButtonCentre));
    EXPECT_TRUE(WaitUntil([&] { return RectOf(main).bottom - RectOf(main).top == upright.bottom - upright.top; }, 5s));
}

TEST_F(MenuInteraction, ASubMenuDraggedAwayIsTornOffAndStaysOpen) {
    ASSERT_NO_FATAL_FAILURE(Open({{"Programs", {MenuItem("Tools", "Tools")}},
                                  {"Tools", NotepadItems({"Calculator", "Paint", "Mail"})}}));
    ASSERT_TRUE(ClickItem(main, 1));
    ASSERT_TRUE(MenusShown(2));
    HWND torn = MenuTitled("Tools");
    RECT before = RectOf(torn);
    int grabX = (before.left + before.right) / 2;
    ASSERT_TRUE(Drag(grabX, before.top + kButtonCentre, grabX + 160, before.top + kButtonCentre + 140));
    EXPECT_TRUE(WaitUntil([&] { return RectOf(torn).top == before.top + 140; }, 5s));
    ASSERT_TRUE(ClickItem(main, 1));
    EXPECT_TRUE(MenusShown(3)) << "the parent no longer owns it: a click opens a new sub-menu";
    EXPECT_TRUE(::IsWindowVisible(torn)) << "the torn-off menu stays";
    Screenshot("torn-off");
}

// A minute of clicks and keys as fast as input goes, over menus that open each other and
// the desktop around them, whose hotspot closes and opens the menu: afterwards the
// program still answers, and closing the menus gives back every window and every
// drawing object they took.
TEST_F(MenuInteraction, AMinuteOfFastClicksAndKeysLeavesNothingBehind) {
    std::vector<TestItem> items = {MenuItem("Main", "Main"), MenuItem("Side", "Side"), MenuItem("Nowhere", "None")};
    ASSERT_NO_FATAL_FAILURE(Open({{"Main", items}, {"Side", items}},
                                 SelectionBar("MenuAutoDropDown=True\nMenuDropDownDelay=50\nSelBarFollowMouse=True\n"
                                              "SelBarBlink=True\nMenuToggleSubMenus=True\n")));
    RECT r = RectOf(main);
    HANDLE process = ::OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, tarvex.processId());
    ASSERT_TRUE(process);
    DWORD gdiAtStart = ::GetGuiResources(process, GR_GDIOBJECTS);
    std::mt19937 random(20261123);
    const WORD keys[] = {VK_UP, VK_DOWN, VK_RETURN, VK_RIGHT, VK_LEFT, VK_HOME, VK_END, VK_ESCAPE, 'M', 'S', 'N'};
    auto end = std::chrono::steady_clock::now() + 60s;
    int events = 0;
    while (std::chrono::steady_clock::now() < end) {
        if (random() % 2) {
            PressKey(keys[random() % std::size(keys)]);
        } else {
            int x = r.left + static_cast<int>(random() % 600);
            int y = r.top + kPlainTitleHeight + static_cast<int>(random() % 120);
            ClickDuringCapture(x, y);
        }
        ++events;
        Settle(10ms);
    }
    EXPECT_GT(events, 500);
    std::optional<WindowInfo> form = tarvex.WaitForMainForm(5s);
    ASSERT_TRUE(form);
    DWORD_PTR answer = 0;
    EXPECT_TRUE(::SendMessageTimeoutW(form->hwnd, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 5000, &answer)) << "it answers";
    // Every menu left open hangs below the hotspot's menu: firing the hotspot closes them all.
    Settle(500ms);
    if (MenuCount() > 0) {
        ASSERT_TRUE(Click(900, 700));
    }
    EXPECT_TRUE(MenusShown(0)) << "every menu that was left closed";
    EXPECT_TRUE(TopLevelWindows(kMenuClass, tarvex.processId()).empty()) << "no hidden menu window either";
    EXPECT_LE(::GetGuiResources(process, GR_GDIOBJECTS), gdiAtStart) << "the menus gave back what they drew with";
    ::CloseHandle(process);
}

TEST_F(MenuInteraction, TypeAheadJoinsQuickLettersAndOffEachLetterSearchesAlone) {
    for (const bool typeAhead : {true, false}) {
        ASSERT_NO_FATAL_FAILURE(Open({{"Programs", NotepadItems({"Calculator", "Cards", "Console", "Notes"})}},
                                     SelectionBar(typeAhead ? "" : "MenuTypeAhead=False\n")));
        PressKey('C');
        PressKey('O');
        EXPECT_TRUE(BarMovesTo(main, typeAhead ? 3 : 1)) << (typeAhead ? "\"co\" is Console" : "'o' alone finds none");
        Screenshot(typeAhead ? "type-ahead-on" : "type-ahead-off");
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(MenusShown(0));
        ASSERT_TRUE(tarvex.ExitThroughTray());
    }
}

// The cursor goes diagonally from the item whose sub-menu is open, across the two items
// below it, into the sub-menu. The long drop-down delay is also the rest that ends an aim:
// a step of the sweep never takes that long, however busy the machine.
TEST_F(MenuInteraction, CrossingItemsOnTheWayIntoASubMenuKeepsItAndTheSelectionUnlessAimingIsOff) {
    for (const bool aim : {true, false}) {
        SCOPED_TRACE(aim ? "aiming on" : "aiming off");
        std::string settings = "MenuAutoDropDown=True\nMenuDropDownDelay=1500\nSelBarFollowMouse=True\n";
        if (!aim)
            settings += "MenuAimAtSubMenus=False\n";
        std::vector<TestItem> items = NotepadItems({"Editor", "Paint"});
        items.insert(items.begin(), MenuItem("Tools", "Tools"));
        ASSERT_NO_FATAL_FAILURE(Open({{"Programs", items}, {"Tools", NotepadItems({"Calculator", "Clock", "Cards"})}},
                                     SelectionBar(settings)));
        ASSERT_TRUE(ClickItem(main, 1));
        ASSERT_TRUE(MenusShown(2));
        ASSERT_TRUE(BarMovesTo(main, 1));
        HWND tools = MenuTitled("Tools");
        ASSERT_TRUE(tools);
        const POINT from = ItemPoint(main, 1);
        const POINT to{RectOf(tools).left + 12, ItemPoint(main, 3).y + kPlainButtonHeight / 2};
        constexpr int kSteps = 12;
        for (int step = 1; step <= kSteps; ++step)
            ASSERT_TRUE(SweepMouseTo(from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps));
        if (aim) {
            EXPECT_TRUE(BarOn(main, 1)) << "the selection stayed on the item of the open sub-menu";
            Settle(2s); // longer than the rest and the drop-down delay: nothing comes late
            EXPECT_TRUE(BarOn(main, 1));
            EXPECT_EQ(MenuCount(), 2u) << "the sub-menu stayed open";
        } else {
            EXPECT_TRUE(WaitUntil([&] { return !BarOn(main, 1); }, 5s)) << "the items crossed took the selection";
        }
        Screenshot(aim ? "aim-on" : "aim-off");
        PressKey(VK_ESCAPE);
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(MenusShown(0));
        ASSERT_TRUE(tarvex.ExitThroughTray());
    }
}
