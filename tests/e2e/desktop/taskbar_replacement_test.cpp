// The task list window and the systray copy as a user switches them with internal
// commands (*34 to *37, on hot keys) and with TaskbarRunOnStartup: they show and go, and
// the shell's taskbar is left as it was. The taskbar is a stand-in of the test's with the
// shell's notification area and clock inside, which Wine's has not.
#include "harness/dialogs.h"
#include "harness/failure_screenshots.h"
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/other_program.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "support/test_pictures.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace {

using namespace E2e;

constexpr const char* kTaskListClass = "Tarvex2TaskList";
constexpr const char* kSystrayClass = "Tarvex2Systray";
constexpr const char* kButtonClass = "Tarvex2SystrayButton";

HWND Create(const wchar_t* className, HWND parent, DWORD style, RECT place) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = ::DefWindowProcW;
    wc.hInstance = ::GetModuleHandleW(nullptr);
    wc.hbrBackground = static_cast<HBRUSH>(::GetStockObject(parent ? WHITE_BRUSH : LTGRAY_BRUSH));
    wc.lpszClassName = className;
    ::RegisterClassW(&wc);
    DWORD exStyle = parent ? 0 : WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
    return ::CreateWindowExW(exStyle, className, L"", style | WS_VISIBLE, place.left, place.top, place.right,
                             place.bottom, parent, nullptr, wc.hInstance, nullptr);
}

// A taskbar of the test's own, with the notification area and the clock inside, on a
// thread that answers its messages as the shell's would: the program's window becomes the
// notification area's parent, which ties the two threads' input together.
class ShellTaskbar {
public:
    ShellTaskbar() {
        thread_ = std::thread([this] {
            HWND bar = Create(L"Shell_TrayWnd", nullptr, WS_POPUP, {0, 700, 300, 30});
            HWND notify = Create(L"TrayNotifyWnd", bar, WS_CHILD, {200, 2, 90, 26});
            HWND clock = Create(L"TrayClockWClass", notify, WS_CHILD, {40, 2, 48, 22});
            // Above Wine's own taskbar, so that the program finds this one.
            ::SetWindowPos(bar, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            {
                std::lock_guard lock(mutex_);
                taskbar = bar;
                notifyArea = notify;
                shellClock = clock;
                threadId_ = ::GetCurrentThreadId();
            }
            ready_.notify_one();
            MSG message;
            while (::GetMessageW(&message, nullptr, 0, 0) > 0)
                ::DispatchMessageW(&message);
            ::DestroyWindow(bar);
        });
        std::unique_lock lock(mutex_);
        ready_.wait(lock, [this] { return threadId_ != 0; });
    }
    ~ShellTaskbar() {
        ::PostThreadMessageW(threadId_, WM_QUIT, 0, 0);
        thread_.join();
    }

    HWND taskbar = nullptr;
    HWND notifyArea = nullptr;
    HWND shellClock = nullptr;

private:
    std::mutex mutex_;
    std::condition_variable ready_;
    DWORD threadId_ = 0;
    std::thread thread_;
};

RECT RectOf(HWND hwnd) {
    RECT rect{};
    ::GetWindowRect(hwnd, &rect);
    return rect;
}

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

class TaskbarReplacement : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(shell.taskbar && shell.notifyArea && shell.shellClock);
        taskbarBefore = RectOf(shell.taskbar);
        notifyBefore = RectOf(notifyArea);
    }

    void Start(const std::string& settings, const std::vector<TestMenu>& menus = {}) {
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(settings);
        folder.WriteMenus(MenuFileText(menus));
        ASSERT_TRUE(tarvex.Start(folder));
        ASSERT_TRUE(tarvex.WaitUntilReady());
    }

    // Runs a command through its hot key (Ctrl + F5 for the first), as a user would from
    // anywhere, and waits for it to have done what it does.
    ::testing::AssertionResult Command(int number, const std::function<bool()>& done) {
        TapKeys(VK_CONTROL, static_cast<WORD>(VK_F5 + number - 1), 60ms);
        if (!WaitUntil(done, 10s))
            return ::testing::AssertionFailure() << "command " << number << " did nothing";
        return ::testing::AssertionSuccess();
    }

    static std::string CommandHotspots(const std::vector<std::string>& commands, const std::string& more = "") {
        std::vector<TestHotspot> spots(1);
        for (std::size_t i = 0; i < commands.size(); ++i) {
            TestHotspot& spot = spots.emplace_back();
            spot.type = 3;
            spot.target2 = commands[i];
            spot.hotKey = VK_F5 + static_cast<int>(i);
            spot.group = "Command " + std::to_string(i);
        }
        return HotspotSettings(spots, more);
    }

    std::optional<WindowInfo> Shown(const char* className) {
        return WaitForVisibleWindow(className, tarvex.processId(), 10s);
    }
    bool Gone(const char* className) { return WaitForNoVisibleWindow(className, tarvex.processId(), 10s); }
    std::function<bool()> Showing(const char* className) {
        return [this, className] { return WaitForVisibleWindow(className, tarvex.processId(), 0ms).has_value(); };
    }
    std::function<bool()> NotShowing(const char* className) {
        return [this, className] { return !WaitForVisibleWindow(className, tarvex.processId(), 0ms).has_value(); };
    }

    // The taskbar as it was: visible, in its place, the notification area back in it where
    // it stood, the shell's clock showing.
    ::testing::AssertionResult TaskbarAsItWas() {
        if (!::IsWindowVisible(taskbar) || !(RectOf(taskbar) == taskbarBefore))
            return ::testing::AssertionFailure() << "the taskbar is hidden or moved";
        if (::GetParent(notifyArea) != taskbar || !(RectOf(notifyArea) == notifyBefore))
            return ::testing::AssertionFailure() << "the notification area is not back in its place";
        if (!::IsWindowVisible(shellClock))
            return ::testing::AssertionFailure() << "the shell's clock stays hidden";
        return ::testing::AssertionSuccess();
    }

    ShellTaskbar shell;
    HWND taskbar = shell.taskbar;
    HWND notifyArea = shell.notifyArea;
    HWND shellClock = shell.shellClock;
    RECT taskbarBefore{};
    RECT notifyBefore{};
    ProgramFolder folder;
    Tarvex tarvex;
};

} // namespace

TEST_F(TaskbarReplacement, TheTaskListWindowAndTheSystrayCopyComeAndGoByCommand) {
    OtherProgram notepad;
    ASSERT_TRUE(notepad.Start(L"notepad.exe", "Notepad"));
    ASSERT_TRUE(notepad.Minimise());
    ASSERT_NO_FATAL_FAILURE(Start(CommandHotspots({"*36", "*37", "*34", "*35"}, "SystrayStyle=1\n")));

    EXPECT_TRUE(Command(1, Showing(kTaskListClass))) << "*36 shows the task list";
    std::optional<WindowInfo> taskList = Shown(kTaskListClass);
    ASSERT_TRUE(taskList) << "*36 shows the task list";
    EXPECT_EQ(taskList->rect.right - taskList->rect.left, 42) << "one 32-pixel icon: notepad alone";
    EXPECT_EQ(taskList->rect.left, 0) << "bottom left";
    RECT workArea{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &workArea, 0);
    EXPECT_EQ(taskList->rect.bottom, workArea.bottom) << "the taskbar shows: the work area";
    EXPECT_TRUE(SaveNamedScreenshot("task-list-window"));
    ASSERT_TRUE(Click(taskList->rect.left + 21, taskList->rect.top + 21));
    EXPECT_TRUE(WaitUntil([&] { return !::IsIconic(notepad.hwnd()); }, 10s)) << "a click on notepad restores it";
    EXPECT_TRUE(Command(2, NotShowing(kTaskListClass))) << "*37 hides it";

    ASSERT_TRUE(Command(3, Showing(kSystrayClass)));
    std::optional<WindowInfo> systray = Shown(kSystrayClass);
    ASSERT_TRUE(systray) << "*34 shows the systray copy";
    EXPECT_TRUE(WaitUntil([&] { return ::GetParent(notifyArea) == systray->hwnd; }, 5s))
        << "with the notification area in it";
    EXPECT_FALSE(::IsWindowVisible(shellClock)) << "in place of the shell's clock";
    EXPECT_EQ(systray->rect.right, 1024) << "bottom right";
    EXPECT_GT(systray->rect.bottom - RectOf(notifyArea).bottom, 20) << "SystrayStyle 1: the clock under the icons";
    EXPECT_TRUE(SaveNamedScreenshot("systray-copy"));
    EXPECT_TRUE(Command(4, NotShowing(kSystrayClass))) << "*35 hides it";
    EXPECT_TRUE(TaskbarAsItWas());
}

TEST_F(TaskbarReplacement, UserTasksShowAsButtonsInARowOnTheThemesPictureAndStartTheirProgram) {
    ASSERT_TRUE(folder.ready());
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("Theme")).c_str(), nullptr));
    constexpr COLORREF kGreen = RGB(0, 128, 0);
    TestSupport::WriteBmp(folder.File("Theme\\Tasks.bmp"), 8, 8, [](int, int) { return kGreen; });
    ASSERT_NO_FATAL_FAILURE(Start(CommandHotspots({"*36"}, "BitmapsFolder=Theme\nTaskbarStyle=1\nTaskbarOrientation=1\n"
                                                          "TaskbarPos=1\nNoOfUserTasks=1\nTaskName0=Editor\n"
                                                          "TaskExec0=notepad.exe\n")));
    ASSERT_TRUE(Command(1, Showing(kTaskListClass)));
    std::optional<WindowInfo> taskList = Shown(kTaskListClass);
    ASSERT_TRUE(taskList);
    const RECT& bar = taskList->rect;
    EXPECT_EQ(bar.right, 1024);
    EXPECT_EQ(bar.top, 0) << "top right";
    EXPECT_GT(bar.right - bar.left, 2 * (bar.bottom - bar.top)) << "buttons in a row";
    EXPECT_TRUE(WaitUntil([&] { return ReadPixel(bar.right - 20, bar.top + 4) == kGreen; }, 5s))
        << "the theme's Tasks.bmp behind the buttons";
    EXPECT_TRUE(SaveNamedScreenshot("task-list-buttons"));

    std::size_t notepads = TopLevelWindows("Notepad").size();
    ASSERT_TRUE(Click(bar.right - 80, bar.top + 20)) << "the user task: the last button";
    EXPECT_TRUE(WaitUntil([&] { return TopLevelWindows("Notepad").size() > notepads; }, 20s)) << "starts its program";
    for (const WindowInfo& notepad : TopLevelWindows("Notepad"))
        ::PostMessageW(notepad.hwnd, WM_CLOSE, 0, 0);
}

TEST_F(TaskbarReplacement, AtStartTheTaskbarIsReplacedTheCopyCollapsesToItsButtonAndTheExitPutsAllBack) {
    ASSERT_NO_FATAL_FAILURE(Start(HotspotSettings({TestHotspot{}}, "TaskbarRunOnStartup=True\nSystrayAutoHide=True\n")));
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindowVisible(taskbar); }, 10s)) << "the taskbar hides";
    std::optional<WindowInfo> systray = Shown(kSystrayClass);
    ASSERT_TRUE(systray) << "and the systray copy shows";
    std::optional<WindowInfo> button = Shown(kButtonClass);
    ASSERT_TRUE(button) << "with its button beside it";
    EXPECT_EQ(button->rect.left, systray->rect.right);

    ASSERT_TRUE(Click((button->rect.left + button->rect.right) / 2, (button->rect.top + button->rect.bottom) / 2));
    EXPECT_TRUE(Gone(kSystrayClass)) << "the button collapses the copy";
    ASSERT_TRUE(Click((button->rect.left + button->rect.right) / 2, (button->rect.top + button->rect.bottom) / 2));
    EXPECT_TRUE(Shown(kSystrayClass)) << "and brings it back";

    ASSERT_TRUE(tarvex.ExitThroughTray());
    EXPECT_TRUE(TaskbarAsItWas());
}

TEST_F(TaskbarReplacement, AStartAfterTheProgramWasKilledPutsBackTheTaskbarAndSaysTheNotificationAreaIsLost) {
    ASSERT_NO_FATAL_FAILURE(Start(HotspotSettings({TestHotspot{}}, "TaskbarRunOnStartup=True\n")));
    ASSERT_TRUE(Shown(kSystrayClass));
    ASSERT_FALSE(::IsWindowVisible(taskbar));
    ASSERT_TRUE(tarvex.Kill());
    ASSERT_TRUE(WaitUntil([&] { return !::IsWindow(notifyArea); }, 10s))
        << "the notification area goes with the program's window";

    folder.WriteSettings(HotspotSettings({TestHotspot{}}));
    Tarvex again;
    ASSERT_TRUE(again.Start(folder));
    std::optional<WindowInfo> box = WaitForMessageBox(again.processId());
    ASSERT_TRUE(box) << "the user is told why the notification area is gone";
    EXPECT_NE(DialogText(box->hwnd).find("Sign out and in again"), std::string::npos);
    ASSERT_TRUE(PressButton(box->hwnd, "OK"));
    ASSERT_TRUE(again.WaitUntilReady());
    EXPECT_TRUE(::IsWindowVisible(taskbar)) << "the taskbar shows again";
    EXPECT_FALSE(folder.Exists("DesktopChanges.ini")) << "and the next start has nothing to put back";
    EXPECT_TRUE(again.ExitThroughTray());
}
