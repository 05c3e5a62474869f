// Choosing items of a menu with the mouse, as a user does: programs, documents and
// command lines start, internal commands act, and the menu closes unless Ctrl is held.
#include "harness/dialogs.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/startup_menu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace E2e;

HWND Taskbar() {
    return ::FindWindowW(L"Shell_TrayWnd", nullptr);
}

class Choosing : public StartupMenuTest {
protected:
    // Starts the program with a menu of the items open at start, and waits for it.
    void Open(const std::vector<TestItem>& items, const std::string& extraSettings = "") {
        std::optional<WindowInfo> found =
            Start(StartupMenuSettings("Programs", 200, 120, extraSettings), MenuFileText({{"Programs", items}}));
        ASSERT_TRUE(found) << "no menu at start";
        menu = found->rect;
    }

    POINT ItemPoint(int item) const { return PlainItemPoint(menu, item); }

    void ClickItem(int item) {
        POINT at = ItemPoint(item);
        ASSERT_TRUE(Click(at.x, at.y));
    }

    // Wine takes the modifiers' state from the X server when the pointer moves, which
    // lets Ctrl go; so the pointer is there first, and Ctrl goes down for the click alone.
    void CtrlClickItem(int item) {
        POINT at = ItemPoint(item);
        ASSERT_TRUE(MoveMouse(at.x, at.y));
        HeldKey ctrl(VK_CONTROL);
        ClickDuringCapture(at.x, at.y);
        Settle(200ms); // the release reaches the menu while Ctrl is still down
    }

    bool MenuClosed() { return WaitForNoVisibleWindow(kMenuClass, tarvex.processId(), 10s); }
    bool MenuStaysOpen() {
        Settle(500ms);
        return WaitForVisibleWindow(kMenuClass, tarvex.processId(), 0ms).has_value();
    }

    // The box that comes up, answered with the button; its title and text.
    std::pair<std::string, std::string> AnswerBox(const std::string& button) {
        std::optional<WindowInfo> box = WaitForMessageBox(tarvex.processId());
        if (!box)
            return {};
        std::pair<std::string, std::string> seen{box->title, DialogText(box->hwnd)};
        EXPECT_TRUE(PressButton(box->hwnd, button));
        return seen;
    }

    RECT menu{};
};

} // namespace

TEST_F(Choosing, AProgramItemStartsWithItsArgumentsInItsStartFolderAndTheMenuCloses) {
    TempFolder work;
    ASSERT_NO_FATAL_FAILURE(Open({WritesAFile("Where am I", "started.txt", work.path())}));
    ClickItem(1);
    // cmd.exe writes the folder it runs in: the item's start folder.
    EXPECT_TRUE(WaitUntil(
        [&] { return work.Exists("started.txt") && work.ReadBytes("started.txt").find(work.path()) != std::string::npos; },
        20s))
        << "cmd.exe did not run in the start folder";
    EXPECT_TRUE(MenuClosed());
}

TEST_F(Choosing, RunState2StartsTheProgramMaximised) {
    TestItem notepad = Item("Text Editor", 0, "notepad.exe");
    notepad.runState = 2;
    ASSERT_NO_FATAL_FAILURE(Open({notepad}));
    ClickItem(1);
    std::optional<WindowInfo> editor = WaitForVisibleWindow("Notepad", 0, 20s);
    ASSERT_TRUE(editor) << "notepad did not start";
    EXPECT_TRUE(WaitUntil([&] { return ::IsZoomed(editor->hwnd) != FALSE; }, 10s));
    ::PostMessageW(editor->hwnd, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitForNoVisibleWindow("Notepad", 0, 10s));
}

TEST_F(Choosing, AMissingProgramShowsWhyAfterTheMenuTriedIt) {
    ASSERT_NO_FATAL_FAILURE(Open({Item("Lost Tool", 0, folder.File("missing.exe"))}));
    ClickItem(1);
    EXPECT_EQ(AnswerBox("OK"), std::make_pair(std::string("Tarvex - Error running Lost Tool"),
                                              std::string("File not found.")));
    EXPECT_TRUE(MenuClosed()) << "the menu goes on as after a success";
}

TEST_F(Choosing, CtrlHeldKeepsTheMenuOpenForTheNextChoice) {
    TempFolder work;
    ASSERT_NO_FATAL_FAILURE(Open({WritesAFile("First", "first.txt", work.path()),
                                  WritesAFile("Second", "second.txt", work.path())}));
    CtrlClickItem(1);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("first.txt"); }, 20s));
    EXPECT_TRUE(MenuStaysOpen());
    ClickItem(2);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("second.txt"); }, 20s));
    EXPECT_TRUE(MenuClosed());
}

TEST_F(Choosing, ACommandLineItemRuns) {
    TempFolder work;
    std::string marker = work.File("command.txt");
    // Not ending in a quote: the profile functions take a value's outer quotes away.
    std::string command = SystemFile("cmd.exe");
    command += " /c echo ran > ";
    command += marker;
    ASSERT_NO_FATAL_FAILURE(Open({Item("Log it", 1, command)}));
    ClickItem(1);
    EXPECT_TRUE(WaitUntil([&] { return work.Exists("command.txt"); }, 20s));
    EXPECT_TRUE(MenuClosed());
}

// Wine's desktop shows its taskbar while some program has a tray icon: the program's own.
TEST_F(Choosing, HideAndShowTheTaskbar) {
    ASSERT_NO_FATAL_FAILURE(
        Open({Item("Hide Taskbar", 1, "*31"), Item("Show Taskbar", 1, "*30")}, "GenShowInTray=True\n"));
    HWND taskbar = Taskbar();
    ASSERT_TRUE(taskbar);
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(taskbar) != FALSE; }, 10s)) << "the taskbar shows";
    CtrlClickItem(1);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindowVisible(taskbar); }, 10s)) << "*31 hides it";
    CtrlClickItem(2);
    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowVisible(taskbar) != FALSE; }, 10s)) << "*30 shows it";
    ClickItem(2);
    EXPECT_TRUE(MenuClosed());
    EXPECT_TRUE(::IsWindowVisible(taskbar));
}

// A taskbar of the test's own, which nothing else shows again.
TEST_F(Choosing, ATaskbarTheProgramHidIsShownAgainWhenItExits) {
    StandInWindow taskbar(L"Shell_TrayWnd", L"");
    ASSERT_EQ(Taskbar(), taskbar.hwnd());
    ASSERT_NO_FATAL_FAILURE(Open({Item("Hide Taskbar", 1, "*31")}));
    ClickItem(1);
    EXPECT_TRUE(WaitUntil([&] { return !taskbar.visible(); }, 10s));
    EXPECT_TRUE(MenuClosed());
    ASSERT_TRUE(tarvex.ExitThroughTray());
    EXPECT_TRUE(taskbar.visible()) << "the program put back the taskbar it hid";
}

// A kill leaves the program no moment to put anything back: the next start does, from
// the desktop changes file.
TEST_F(Choosing, ATaskbarThatAKilledRunHidIsShownAgainByTheNextStart) {
    StandInWindow taskbar(L"Shell_TrayWnd", L"");
    ASSERT_NO_FATAL_FAILURE(Open({Item("Hide Taskbar", 1, "*31")}));
    ClickItem(1);
    ASSERT_TRUE(WaitUntil([&] { return !taskbar.visible(); }, 10s));
    ASSERT_TRUE(WaitUntil([&] { return folder.Exists("DesktopChanges.ini"); }, 10s));
    ASSERT_TRUE(tarvex.Kill());
    EXPECT_FALSE(taskbar.visible()) << "nothing put it back at the kill";

    Tarvex again;
    ASSERT_TRUE(again.Start(folder));
    EXPECT_TRUE(WaitUntil([&] { return taskbar.visible(); }, 30s)) << "the next start shows it";
    ASSERT_TRUE(again.WaitUntilReady());
    EXPECT_FALSE(folder.Exists("DesktopChanges.ini"));
    EXPECT_TRUE(again.ExitThroughTray());
}

// A crash runs the program's own handler on the way down: the taskbar shows again by the
// time the process is gone, before any new start.
TEST_F(Choosing, ATaskbarThatARunHidIsShownAgainWhenItCrashes) {
    StandInWindow taskbar(L"Shell_TrayWnd", L"");
    ASSERT_NO_FATAL_FAILURE(Open({Item("Hide Taskbar", 1, "*31")}));
    ClickItem(1);
    ASSERT_TRUE(WaitUntil([&] { return !taskbar.visible(); }, 10s));
    ASSERT_TRUE(WaitUntil([&] { return folder.Exists("DesktopChanges.ini"); }, 10s));

    ASSERT_TRUE(tarvex.Crash());
    ASSERT_TRUE(tarvex.WaitForExit(20s));
    EXPECT_EQ(tarvex.ExitCode(), std::optional<DWORD>(EXCEPTION_ACCESS_VIOLATION)) << "it died of the crash";
    EXPECT_TRUE(taskbar.visible()) << "and put the taskbar back as it went";
    EXPECT_FALSE(folder.Exists("DesktopChanges.ini")) << "leaving the next start nothing to put back";
}

TEST_F(Choosing, ExitTarvexAsksAndYesEndsTheProgram) {
    ASSERT_NO_FATAL_FAILURE(Open({Item("Exit Tarvex", 1, "*9")}));
    ClickItem(1);
    EXPECT_EQ(AnswerBox("Yes"),
              std::make_pair(std::string("Tarvex"), std::string("This will shutdown Tarvex. Are you sure?")));
    EXPECT_TRUE(tarvex.WaitForExit(20s));
}

TEST_F(Choosing, AnUnassignedCodeAndAFailedEjectSaySo) {
    ASSERT_NO_FATAL_FAILURE(Open({Item("Nothing", 1, "*5"), Item("Eject Q", 1, "*116")}));
    CtrlClickItem(1);
    EXPECT_EQ(AnswerBox("OK").second, "Sorry, this Internal Command is not yet implemented...");
    CtrlClickItem(2);
    EXPECT_EQ(AnswerBox("OK").second, "Sorry, unable to eject media on drive Q");
}
