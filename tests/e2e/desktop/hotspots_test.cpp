// Hotspots as a user meets them: a click on the desktop, a push into a screen corner, a
// hot key, a middle click, a right click in another program's window, each opening its
// menu, and firing again (or firing another hotspot of the group) closing it.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/preferences.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/other_program.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace E2e;

// Long enough for a left click's double-click delay (GenDblClickDelay ticks of 10 ms)
// and Timer1's next tick: an event that was going to fire has fired by then.
constexpr Duration kNothingFires = 800ms;
// 300 ms for a second click: a quick double click is one however busy the machine is.
constexpr const char* kSlowDoubleClick = "GenDblClickDelay=30\n";

TestHotspot Spot(const std::string& menu, int mouseButton, int left = 300, int top = 200) {
    TestHotspot spot;
    spot.target = menu;
    spot.mouseButton = mouseButton;
    spot.left = left;
    spot.top = top;
    return spot;
}

std::vector<TestMenu> MenusNamed(const std::vector<std::string>& names) {
    std::vector<TestMenu> menus;
    for (const std::string& name : names)
        menus.push_back({name, NotepadItems({"Text Editor", "Calculator"})});
    return menus;
}

class Hotspots : public ::testing::Test {
protected:
    void Start(const std::vector<TestHotspot>& spots, const std::vector<TestMenu>& menus,
               const std::string& extra = kSlowDoubleClick) {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(HotspotSettings(spots, extra));
        folder.WriteMenus(MenuFileText(menus));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    // Waits for exactly these menus, painted and steady.
    ::testing::AssertionResult Shows(const std::vector<std::string>& titles) {
        if (!WaitForMenuCount(tarvex.processId(), titles.size()))
            return ::testing::AssertionFailure() << VisibleMenuWindows(tarvex.processId()).size() << " menus shown";
        for (const std::string& title : titles) {
            if (!MenuWindowTitled(tarvex.processId(), title))
                return ::testing::AssertionFailure() << "no menu \"" << title << "\"";
        }
        return ::testing::AssertionSuccess();
    }

    ::testing::AssertionResult NothingOpens() {
        Settle(kNothingFires);
        return Shows({});
    }

    RECT MenuRect(const std::string& title) {
        std::optional<WindowInfo> menu = MenuWindowTitled(tarvex.processId(), title);
        return menu ? menu->rect : RECT{};
    }

    ProgramFolder folder;
    Tarvex tarvex;
};

} // namespace

TEST_F(Hotspots, ADesktopClickOpensTheMenuAtTheCursorAndTheNextClickClosesIt) {
    TestHotspot desktop = Spot("Programs", 0);
    desktop.onMouse = true;
    ASSERT_NO_FATAL_FAILURE(Start({desktop}, MenusNamed({"Programs"})));

    ASSERT_TRUE(Click(47, 300));
    EXPECT_TRUE(NothingOpens()) << "the icon column left of x = 48 is the desktop's";
    ASSERT_TRUE(QuickClicks(400, 300));
    EXPECT_TRUE(NothingOpens()) << "a double click is the desktop's";
    ASSERT_TRUE(Drag(400, 300, 410, 300));
    EXPECT_TRUE(NothingOpens()) << "a press dragged away is no click";

    ASSERT_TRUE(Click(400, 300));
    ASSERT_TRUE(Shows({"Programs"}));
    RECT menu = MenuRect("Programs");
    EXPECT_EQ(menu.left, 400);
    EXPECT_EQ(menu.top, 300);
    EXPECT_TRUE(SaveNamedScreenshot("hotspots-desktop-click"));

    ASSERT_TRUE(Click(800, 600));
    EXPECT_TRUE(Shows({})) << "firing the hotspot again closes its menu";
}

TEST_F(Hotspots, WithoutHotspotsInTheSettingsADesktopClickOpensTheFirstMenu) {
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings("[TARVEX]\nGenShowInTray=False\n");
    folder.WriteMenus(MenuFileText(MenusNamed({"Programs", "Tools"})));
    ASSERT_TRUE(tarvex.Start(folder));
    ASSERT_TRUE(tarvex.WaitUntilReady());
    ASSERT_TRUE(Click(400, 300));
    ASSERT_TRUE(Shows({"Programs"}));
    RECT menu = MenuRect("Programs");
    EXPECT_EQ(menu.left, 0);
    EXPECT_EQ(menu.top, 0);
}

TEST_F(Hotspots, PushingIntoACornerOpensItsMenuOncePerVisit) {
    ASSERT_NO_FATAL_FAILURE(Start({Spot("Programs", 0), Spot("Corner", 3)}, MenusNamed({"Programs", "Corner"})));
    ASSERT_TRUE(MoveMouse(0, 0));
    ASSERT_TRUE(Shows({"Corner"}));
    RECT menu = MenuRect("Corner");
    EXPECT_EQ(menu.left, 300);
    EXPECT_EQ(menu.top, 200);
    Settle(kNothingFires);
    EXPECT_TRUE(Shows({"Corner"})) << "resting in the corner fires once";

    ASSERT_TRUE(MoveMouse(500, 400));
    ASSERT_TRUE(MoveMouse(0, 0));
    EXPECT_TRUE(Shows({})) << "a second visit fires again, which closes the menu";
}

TEST_F(Hotspots, HotKeysTappedBrieflyAndAMiddleClickAnywhereFireTheirHotspots) {
    TempFolder work;
    TestHotspot keys = Spot("Keys", 99);
    keys.hotKey = VK_F5;
    TestHotspot program = Spot(SystemFile("cmd.exe"), 99);
    program.type = 2;
    program.target2 = "/c echo ran > ";
    program.target2 += work.File("program.txt");
    program.hotKey = VK_F6;
    TestHotspot command = Spot("", 99);
    command.type = 3;
    command.target2 = SystemFile("cmd.exe");
    command.target2 += " /c echo ran > ";
    command.target2 += work.File("command.txt");
    command.hotKey = VK_F7;
    TestHotspot middle = Spot("Middle", 11);
    middle.app = "Nowhere";
    ASSERT_NO_FATAL_FAILURE(
        Start({Spot("Programs", 0), keys, program, command, middle}, MenusNamed({"Programs", "Keys", "Middle"})));

    TapKeys(VK_CONTROL, VK_F5, 60ms);
    ASSERT_TRUE(Shows({"Keys"}));
    TapKeys(VK_CONTROL, VK_F5, 60ms);
    ASSERT_TRUE(Shows({}));
    EXPECT_TRUE(NothingOpens()) << "one tap fires once";

    TapKeys(VK_CONTROL, VK_F6, 60ms);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("program.txt"); }, 20s)) << "Run Program";
    TapKeys(VK_CONTROL, VK_F7, 60ms);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("command.txt"); }, 20s)) << "Run Command";

    ASSERT_TRUE(Click(700, 500, Button::Middle));
    EXPECT_TRUE(Shows({"Middle"}));

    TapKeys(VK_CONTROL, VK_F12, 60ms);
    std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(preferences) << "the general hot key opens the preferences";
    EXPECT_TRUE(CancelPreferences(preferences->hwnd, tarvex.processId()));
}

TEST_F(Hotspots, ARightClickInAnotherProgramsWindowOpensItsHotspotRelativeToThatWindow) {
    OtherProgram notepad;
    ASSERT_TRUE(notepad.Start(L"notepad.exe", "Notepad")) << "notepad did not start";
    ASSERT_TRUE(::SetWindowPos(notepad.hwnd(), nullptr, 200, 150, 500, 400, SWP_NOZORDER));
    ASSERT_TRUE(WaitUntil([&] { return DescribeWindow(notepad.hwnd()).rect.left == 200; }, 5s));

    TestHotspot inEditor = Spot("Editor", 2, 40, 60);
    inEditor.app = notepad.window().title;
    inEditor.x1 = 0;
    inEditor.y1 = 0;
    ASSERT_NO_FATAL_FAILURE(Start({Spot("Programs", 0), inEditor}, MenusNamed({"Programs", "Editor"})));

    // On the menu bar, right of its entries: a right click in the text would also bring
    // up the editor's own menu, and its popup under the cursor at the release would make
    // the click one that ended on another window.
    ASSERT_TRUE(Click(600, 183, Button::Right));
    EXPECT_TRUE(Shows({"Editor"}));
    RECT menu = MenuRect("Editor");
    EXPECT_EQ(menu.left, 240);
    EXPECT_EQ(menu.top, 210);
    EXPECT_TRUE(SaveNamedScreenshot("hotspots-in-notepad"));
}

TEST_F(Hotspots, AHotspotClosesTheOpenMenuOfItsGroupButAnAlwaysOpenMenuStays) {
    TestHotspot one = Spot("One", 0, 100, 100);
    one.alwaysOpen = true;
    std::vector<TestHotspot> spots = {one, Spot("Two", 2, 500, 100), Spot("Three", 11, 300, 400)};
    const std::string group = "G";
    for (TestHotspot& spot : spots)
        spot.group = group;
    ASSERT_NO_FATAL_FAILURE(Start(spots, MenusNamed({"One", "Two", "Three"})));
    struct Step {
        Button button;
        std::vector<std::string> shown;
        const char* what;
    } steps[] = {
        {Button::Right, {"Two"}, "the right-click hotspot opens its menu"},
        {Button::Middle, {}, "another of the group closes it, and opens nothing"},
        {Button::Middle, {"Three"}, "then opens its own"},
        {Button::Left, {}, "the AlwaysOpen hotspot closes a menu of the group too"},
        {Button::Left, {"One"}, "then opens its own"},
        {Button::Right, {"One", "Two"}, "an AlwaysOpen menu stays when the group fires"},
        {Button::Left, {"One"}, "firing it again keeps it and closes the other"},
    };
    for (const Step& step : steps) {
        ASSERT_TRUE(Click(800, 650, step.button));
        ASSERT_TRUE(Shows(step.shown)) << step.what;
        if (step.shown.empty()) {
            EXPECT_TRUE(NothingOpens()) << step.what;
        }
    }
}

TEST_F(Hotspots, BrokenHotspotsFireNothingAndTheGoodOneAfterThemStillFires) {
    auto rightClick = [](int x1, int y1, int x2, int y2) {
        TestHotspot spot = Spot("Programs", 2);
        spot.x1 = x1;
        spot.y1 = y1;
        spot.x2 = x2;
        spot.y2 = y2;
        return spot;
    };
    TestHotspot longApp = rightClick(0, 0, 1024, 768);
    longApp.app = std::string(300, 'x');
    TestHotspot unknownKind = Spot("Programs", 0, 600, 100);
    unknownKind.type = 200;
    unknownKind.group = "Other";
    TestHotspot good = Spot("Programs", 2, 100, 100);
    good.group = "Right";
    // The count claims 32767 hotspots; only these have keys.
    ASSERT_NO_FATAL_FAILURE(Start({rightClick(900, 0, 100, 768), rightClick(-500, -500, -10, -10),
                                   rightClick(5000, 5000, 9000, 9000), longApp, Spot("Programs", 99), unknownKind, good},
                                  MenusNamed({"Programs"}), "NoOfHotSpots=32767\nGenDblClickDelay=30\n"));
    ASSERT_TRUE(Click(500, 400, Button::Right));
    ASSERT_TRUE(Shows({"Programs"}));
    EXPECT_EQ(MenuRect("Programs").left, 100) << "the good hotspot, the first that matched";
    ASSERT_TRUE(Click(500, 400));
    EXPECT_TRUE(WaitForMenuCount(tarvex.processId(), 2)) << "a type past the known ones opens a menu of its kind";
    EXPECT_TRUE(SaveNamedScreenshot("hotspots-broken"));
    EXPECT_TRUE(tarvex.running());
}

TEST_F(Hotspots, NoHotspotFiresWhileAQuestionOfTheProgramIsUp) {
    ASSERT_NO_FATAL_FAILURE(Start({Spot("Programs", 0)}, {{"Programs", {Item("Shutdown Windows", 1, "*42")}}},
                                  "GenDblClickDelay=30\nGenStartupHotspot0=0\n"));
    ASSERT_TRUE(Shows({"Programs"}));
    POINT item = PlainItemPoint(MenuRect("Programs"), 1);
    ASSERT_TRUE(Click(item.x, item.y));
    std::optional<WindowInfo> question = WaitForMessageBox(tarvex.processId());
    ASSERT_TRUE(question);
    ASSERT_TRUE(Click(700, 500));
    Settle(kNothingFires);
    EXPECT_TRUE(Shows({"Programs"})) << "the desktop click did not fire the hotspot, which would close the menu";
    EXPECT_TRUE(PressButton(question->hwnd, "No"));
    EXPECT_TRUE(Shows({})) << "the chosen item closes its menu";
}

TEST_F(Hotspots, KeysTypedInOneBurstWithAHotKeyGoToItsMenuInOrder) {
    TempFolder work;
    TestHotspot keys = Spot("Keys", 99);
    keys.hotKey = VK_F5;
    std::vector<TestItem> items;
    for (const char* name : {"1", "2", "3"})
        items.push_back(WritesAFile(name, work.File(std::string(name) + ".txt")));
    ASSERT_NO_FATAL_FAILURE(Start({Spot("Programs", 0), keys},
                                  {{"Programs", NotepadItems({"Editor"})}, {"Keys", items}},
                                  std::string(kSlowDoubleClick) + "SelBar=True\n"));
    // Start-up is over once the hot key works.
    TapKeys(VK_CONTROL, VK_F5, 60ms);
    ASSERT_TRUE(Shows({"Keys"}));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(Shows({}));
    const std::initializer_list<WORD> bursts[] = {
        {VK_DOWN, VK_RETURN}, {VK_DOWN, VK_DOWN, VK_RETURN}, {VK_UP, VK_RETURN}};
    for (int round = 1; round <= 3; ++round) {
        HotKeyThenKeys(VK_CONTROL, VK_F5, bursts[round - 1]);
        const std::string chosen = std::to_string(round) + ".txt";
        EXPECT_TRUE(WaitUntil([&] { return work.Exists(chosen); }, 20s)) << "the keys chose item " << round;
        ASSERT_TRUE(Shows({})) << "and the choice closed the menu";
        for (int later = round + 1; later <= 3; ++later)
            EXPECT_FALSE(work.Exists(std::to_string(later) + ".txt")) << "round " << round;
    }
}
