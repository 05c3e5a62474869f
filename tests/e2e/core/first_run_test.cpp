// The first run: the introduction, then the preferences, then a settings file, so
// that the introduction does not come back. And the "setup" word.
#include "harness/dialogs.h"
#include "harness/input.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/recording_tray.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

namespace {

using namespace E2e;

constexpr const char* kIntroductionClass = "Tarvex2Introduction";

std::optional<WindowInfo> WaitForIntroduction(const Tarvex& tarvex, Duration timeout = 30s) {
    return WaitForVisibleWindow(kIntroductionClass, tarvex.processId(), timeout);
}

std::optional<WindowInfo> ButtonOf(HWND window, const std::string& caption) {
    for (const WindowInfo& child : ChildWindows(window)) {
        if (child.className == "Button" && child.title == caption)
            return child;
    }
    return std::nullopt;
}

// The colour on the screen at a point of a window's client area.
COLORREF ClientPixel(HWND window, int x, int y) {
    POINT point{x, y};
    ::ClientToScreen(window, &point);
    return ReadPixel(point.x, point.y);
}

// Closes the introduction with a click on its OK button and closes the preferences
// window that follows.
void GoThroughFirstRun(Tarvex& tarvex) {
    std::optional<WindowInfo> introduction = WaitForIntroduction(tarvex);
    ASSERT_TRUE(introduction);
    std::optional<WindowInfo> ok = ButtonOf(introduction->hwnd, "OK");
    ASSERT_TRUE(ok);
    ASSERT_TRUE(ClickWindow(ok->hwnd));
    ASSERT_TRUE(WaitForNoVisibleWindow(kIntroductionClass, tarvex.processId(), 10s));
    std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(preferences) << "no preferences after the introduction";
    ASSERT_TRUE(CancelPreferences(preferences->hwnd, tarvex.processId()));
}

} // namespace

TEST(FirstRun, AStartWithoutSettingsShowsTheIntroductionFirst) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));

    std::optional<WindowInfo> introduction = WaitForIntroduction(tarvex);
    ASSERT_TRUE(introduction);
    EXPECT_EQ(introduction->title, "Welcome to Tarvex 2.0");
    int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    int screenHeight = ::GetSystemMetrics(SM_CYSCREEN);
    EXPECT_GE(introduction->rect.left, 0);
    EXPECT_GE(introduction->rect.top, 0);
    EXPECT_LE(introduction->rect.right, screenWidth);
    EXPECT_LE(introduction->rect.bottom, screenHeight);
    EXPECT_TRUE(ButtonOf(introduction->hwnd, "OK"));
    // Painted: the text on the window colour above a footer in the colour of buttons.
    RECT client{};
    ::GetClientRect(introduction->hwnd, &client);
    HWND hwnd = introduction->hwnd;
    EXPECT_TRUE(WaitUntil([&] { return ClientPixel(hwnd, 4, 4) == ::GetSysColor(COLOR_WINDOW); }, 10s));
    EXPECT_TRUE(WaitUntil([&] { return ClientPixel(hwnd, 4, client.bottom - 4) == ::GetSysColor(COLOR_BTNFACE); }, 10s))
        << "footer pixel " << ClientPixel(hwnd, 4, client.bottom - 4);
    EXPECT_TRUE(WaitForNoVisibleWindow(kDialogClass, tarvex.processId(), 0ms)) << "something came before it";
    EXPECT_FALSE(folder.Exists("Helmora.ini"));

    ASSERT_NO_FATAL_FAILURE(GoThroughFirstRun(tarvex));
}

TEST(FirstRun, LeavesASettingsFileSoTheNextStartIsNoFirstRun) {
    RecordingTray tray;
    ASSERT_TRUE(tray.ready());
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    {
        Tarvex first;
        ASSERT_TRUE(first.Start(folder));
        ASSERT_NO_FATAL_FAILURE(GoThroughFirstRun(first));
        ASSERT_TRUE(WaitUntil([&] { return folder.Exists("Helmora.ini"); }, 10s));
        ASSERT_TRUE(first.ExitThroughTray());
    }
    std::string bytes = folder.ReadBytes("Helmora.ini");
    ASSERT_GE(bytes.size(), 2u);
    EXPECT_EQ(bytes.substr(0, 2), std::string("\xFF\xFE")) << "not a UTF-16 file";
    EXPECT_NE(bytes.find(std::string("G\0e\0n\0S\0h\0o\0w\0I\0n\0T\0r\0a\0y\0", 26)), std::string::npos);

    Tarvex second;
    ASSERT_TRUE(second.Start(folder));
    std::optional<WindowInfo> form = second.WaitForMainForm();
    ASSERT_TRUE(form);
    ASSERT_TRUE(tray.WaitForCount(NIM_ADD, form->hwnd, 1, 20s));
    Settle(1s);
    EXPECT_TRUE(WaitForNoVisibleWindow(kIntroductionClass, second.processId(), 0ms));
    EXPECT_TRUE(WaitForNoVisibleWindow(kDialogClass, second.processId(), 0ms));
}

TEST(FirstRun, SetupOpensThePreferencesWhenTheSettingsExist) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings("[TARVEX]\nGenShowInTray=True\n");
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder, "/SETUP"));

    std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(preferences);
    EXPECT_TRUE(WaitForNoVisibleWindow(kIntroductionClass, tarvex.processId(), 0ms));
    ASSERT_TRUE(CancelPreferences(preferences->hwnd, tarvex.processId()));
}

TEST(FirstRun, BothWordsOnAFirstRunGiveTheIntroductionThenThePreferencesOnce) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    TempFolder elsewhere;
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder, "setup autostart", elsewhere.path()));

    ASSERT_NO_FATAL_FAILURE(GoThroughFirstRun(tarvex));
    Settle(1s);
    EXPECT_TRUE(WaitForNoVisibleWindow(kPreferencesClass, tarvex.processId(), 0ms)) << "the preferences opened twice";
    EXPECT_TRUE(folder.Exists("Helmora.ini"));
    EXPECT_FALSE(elsewhere.Exists("Helmora.ini"));
}

// A settings file that cannot be written (here a folder stands in its place) means the
// introduction will come back; the user is told so instead of meeting it again unawares.
TEST(FirstRun, ASettingsFileThatCannotBeWrittenIsReported) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("Helmora.ini")).c_str(), nullptr));
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));

    ASSERT_NO_FATAL_FAILURE(GoThroughFirstRun(tarvex));
    std::optional<WindowInfo> warning = WaitForMessageBox(tarvex.processId(), 30s);
    ASSERT_TRUE(warning);
    EXPECT_EQ(warning->title, "Tarvex Warning");
    std::string text = DialogText(warning->hwnd);
    EXPECT_NE(text.find("could not write its settings file"), std::string::npos) << text;
    EXPECT_NE(text.find("Helmora.ini"), std::string::npos) << text;
    ASSERT_TRUE(PressButton(warning->hwnd, "OK"));
    EXPECT_TRUE(tarvex.WaitForMainForm()) << "the program goes on after the warning";
}
