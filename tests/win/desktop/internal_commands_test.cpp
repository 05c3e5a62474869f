// Internal commands that change the desktop or end the session, against windows of the
// shell's classes that the test makes, with the calls that end a session replaced.
#include "core/win/form1.h"
#include "desktop/win/internal_commands.h"
#include "support/answered_message_boxes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using TestSupport::AnsweredMessageBoxes;

// A top-level window of a class the shell's own windows have, found before the shell's
// because it is the newest in the topmost band.
class ShellLikeWindow {
public:
    ShellLikeWindow(const wchar_t* className, const wchar_t* title) {
        WNDCLASSW wc{};
        wc.lpfnWndProc = ::DefWindowProcW;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.lpszClassName = className;
        ::RegisterClassW(&wc);
        hwnd_ = ::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, className, title, WS_POPUP | WS_VISIBLE, 0, 740, 200,
                                  28, nullptr, nullptr, wc.hInstance, nullptr);
        ::SetWindowPos(hwnd_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    ~ShellLikeWindow() { ::DestroyWindow(hwnd_); }
    HWND hwnd() const { return hwnd_; }
    bool visible() const { return ::IsWindowVisible(hwnd_) != FALSE; }

private:
    HWND hwnd_ = nullptr;
};

class InternalCommandsTest : public ::testing::Test {
protected:
    void SetUp() override {
        program.values.IsNT = true;
        ASSERT_TRUE(form1.Create());
        ASSERT_TRUE(taskbar.hwnd());
        ASSERT_TRUE(icons.hwnd());
        // What ends the session only notes what it was asked, and what the desktop was then.
        previous = InternalCommands::SetSessionControl(
            {[this] { calls.push_back("privilege, taskbar " + Shown()); },
             [this](std::uint32_t flags) {
                 std::string call = "end ";
                 call += std::to_string(flags);
                 call += ", taskbar ";
                 call += Shown();
                 calls.push_back(call);
                 return true;
             }});
    }
    void TearDown() override { InternalCommands::SetSessionControl(previous); }

    std::string Shown() const { return taskbar.visible() ? "shown" : "hidden"; }
    std::int16_t Run(std::int16_t code) { return InternalCommands::RunInternalCommand(form1, code); }

    Program program;
    Form1 form1{program};
    ShellLikeWindow taskbar{L"Shell_TrayWnd", L""};
    ShellLikeWindow icons{L"Progman", L"Program Manager"};
    InternalCommands::SessionControl previous;
    std::vector<std::string> calls;
};

} // namespace

TEST_F(InternalCommandsTest, TaskbarAndDesktopIconsHideShowAndToggleAndTheSessionEndPutsThemBack) {
    EXPECT_EQ(Run(31), 31);
    EXPECT_FALSE(taskbar.visible());
    EXPECT_TRUE(program.desktopChanges.TaskbarHidden);
    Run(30);
    EXPECT_TRUE(taskbar.visible());
    EXPECT_FALSE(program.desktopChanges.TaskbarHidden);
    Run(10);
    EXPECT_FALSE(taskbar.visible());
    Run(26);
    EXPECT_FALSE(icons.visible());
    EXPECT_TRUE(program.desktopChanges.DesktopIconsHidden);
    Run(32);
    EXPECT_TRUE(icons.visible());
    Run(33);
    EXPECT_FALSE(icons.visible());

    // The session ends, ended by the user through the shell: the program ends quietly.
    ::SendMessageW(form1.hwnd(), WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(taskbar.visible()) << "the program shows the taskbar it hid";
    EXPECT_TRUE(icons.visible()) << "and the desktop icons";
}

TEST_F(InternalCommandsTest, AConfirmedShutdownPutsTheDesktopBackThenTakesThePrivilegeThenEnds) {
    program.settings.GenATXShutdown = true;
    program.settings.GenForceShutdown = true;
    Run(31);
    AnsweredMessageBoxes boxes(MessageBoxes::kYes);
    Run(42);
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].text, "Are you sure you want to Shutdown Windows?");
    EXPECT_EQ(boxes.requests[0].style, MessageBoxes::kYesNo | MessageBoxes::kQuestion);
    EXPECT_EQ(calls, (std::vector<std::string>{"privilege, taskbar shown", "end 12, taskbar shown"}));
}

TEST_F(InternalCommandsTest, NoToTheQuestionLeavesEverythingAsItWas) {
    Run(31);
    AnsweredMessageBoxes boxes(MessageBoxes::kNo);
    for (std::int16_t code : {16, 24, 42})
        Run(code);
    EXPECT_EQ(boxes.requests.size(), 3u);
    EXPECT_TRUE(calls.empty());
    EXPECT_FALSE(taskbar.visible());
    EXPECT_FALSE(program.QuestionBusy);
}

TEST_F(InternalCommandsTest, QuickCommandsAskNothingAndLoggingOutTakesNoPrivilege) {
    AnsweredMessageBoxes boxes(MessageBoxes::kNo);
    Run(7);
    Run(8);
    program.values.IsNT = false;
    Run(41);
    EXPECT_TRUE(boxes.requests.empty());
    EXPECT_EQ(calls, (std::vector<std::string>{"end 0, taskbar shown", "privilege, taskbar shown", "end 2, taskbar shown",
                                               "end 1, taskbar shown"}));
}

TEST_F(InternalCommandsTest, AFailedEjectAndAMissingHelpPageSaySo) {
    AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    Run(116); // Q:, which no test machine has
    program.values.HelpFolder = "C:\\no\\such\\folder";
    Run(15);
    ASSERT_EQ(boxes.requests.size(), 2u);
    EXPECT_EQ(boxes.requests[0].text, "Sorry, unable to eject media on drive Q");
    EXPECT_EQ(boxes.requests[0].title, "Tarvex Warning");
    EXPECT_EQ(boxes.requests[1].text.rfind("Sorry, the Help file could not be found (error code", 0), 0u)
        << boxes.requests[1].text;
}
