// The running tasks in a menu: a Task List item and a Show Tasklist hotspot list the
// programs that run (never the program's own windows), the open list follows programs
// that start and end, and choosing one brings it back.
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/other_program.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "win/handles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace E2e;

// A titled top-level window of the test's own: a task, as any program's main window is.
Win::UniqueWindow TaskWindow(const std::wstring& title, int x, int y) {
    return Win::UniqueWindow(::CreateWindowExW(0, L"STATIC", title.c_str(), WS_POPUP | WS_VISIBLE | WS_BORDER, x, y,
                                               160, 40, nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr));
}

class TaskListMenus : public ::testing::Test {
protected:
    void Start(const std::string& settings, const std::vector<TestMenu>& menus) {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(settings);
        folder.WriteMenus(MenuFileText(menus));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    // The menu of the tasks: the one that is not the menu it was opened from.
    std::optional<WindowInfo> TasksMenu(const std::string& besides) {
        for (const WindowInfo& menu : VisibleMenuWindows(tarvex.processId()))
            if (menu.title != besides)
                return menu;
        return std::nullopt;
    }

    // How many tasks a menu of the plain look lists, from its height.
    static int ItemsIn(const RECT& menu) {
        return (menu.bottom - menu.top - kPlainTitleHeight) / kPlainButtonHeight;
    }

    bool ListsTasks(const std::string& besides, int count) {
        return WaitUntil(
            [&] {
                std::optional<WindowInfo> menu = TasksMenu(besides);
                return menu && ItemsIn(menu->rect) == count && WaitForSteadyImage(menu->hwnd, 2s);
            },
            10s);
    }

    ProgramFolder folder;
    Tarvex tarvex;
};

} // namespace

TEST_F(TaskListMenus, ATaskListItemListsTheRunningProgramsKeepsCurrentAndChoosingOneRestoresIt) {
    OtherProgram notepad;
    ASSERT_TRUE(notepad.Start(L"notepad.exe", "Notepad"));
    ASSERT_TRUE(notepad.Minimise());

    ASSERT_NO_FATAL_FAILURE(Start(StartupMenuSettings("Programs", 200, 120, "ButtonIcons=True\n"),
                                  {{"Programs", {Item("Running", 4, "")}}}));
    ASSERT_TRUE(WaitForMenuWindow(tarvex.processId()));
    std::optional<WindowInfo> programs = MenuWindowTitled(tarvex.processId(), "Programs");
    ASSERT_TRUE(programs);
    POINT running = PlainItemPoint(programs->rect, 1);
    ASSERT_TRUE(Click(running.x, running.y));
    ASSERT_TRUE(WaitForMenuCount(tarvex.processId(), 2));
    EXPECT_TRUE(ListsTasks("Programs", 1)) << "notepad alone: none of the program's own windows";

    Win::UniqueWindow started = TaskWindow(L"A program that starts", 700, 600);
    EXPECT_TRUE(ListsTasks("Programs", 2)) << "a program that starts is listed within a second";
    EXPECT_TRUE(SaveNamedScreenshot("task-list-menu"));
    started.reset();
    EXPECT_TRUE(ListsTasks("Programs", 1)) << "and goes when it ends";

    std::optional<WindowInfo> tasks = TasksMenu("Programs");
    ASSERT_TRUE(tasks);
    POINT first = PlainItemPoint(tasks->rect, 1);
    ASSERT_TRUE(Click(first.x, first.y));
    EXPECT_TRUE(WaitUntil([&] { return !::IsIconic(notepad.hwnd()); }, 10s)) << "choosing notepad restores it";
    EXPECT_TRUE(WaitForMenuCount(tarvex.processId(), 0)) << "and the menus close";
}

TEST_F(TaskListMenus, AShowTasklistHotspotListsFiveHundredWindowsAndAVeryLongTitle) {
    std::vector<Win::UniqueWindow> windows;
    windows.push_back(TaskWindow(std::wstring(10000, L'W'), -3000, -3000));
    for (int i = 1; i < 500; ++i)
        windows.push_back(TaskWindow(L"Window " + std::to_wstring(i), -3000, -3000));
    for (const Win::UniqueWindow& window : windows)
        ASSERT_TRUE(window);

    TestHotspot tasks;
    tasks.type = 4;
    tasks.left = 300;
    tasks.top = 20;
    ASSERT_NO_FATAL_FAILURE(Start(HotspotSettings({tasks}), {}));
    ASSERT_TRUE(Click(600, 400));
    std::optional<WindowInfo> menu = WaitForMenuWindow(tarvex.processId());
    ASSERT_TRUE(menu);
    EXPECT_GT(ItemsIn(menu->rect), 20) << "as many as the screen holds, the rest scrolled to";
    EXPECT_LE(menu->rect.bottom, 768);
    EXPECT_LE(menu->rect.right, 1024) << "the long title is cut to the menu's widest";
    EXPECT_TRUE(tarvex.WaitUntilReady(5s)) << "the program still answers";
    EXPECT_TRUE(SaveNamedScreenshot("task-list-500-windows"));
}
