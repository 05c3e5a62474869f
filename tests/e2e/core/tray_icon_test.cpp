// The tray icon: its record, its menu, and what its mouse messages do.
#include "harness/dialogs.h"
#include "harness/input.h"
#include "harness/popup_menu.h"
#include "harness/preferences.h"
#include "harness/program_folder.h"
#include "harness/recording_tray.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

namespace {

using namespace E2e;

constexpr const char* kSettings = "[TARVEX]\nGenShowInTray=True\n";

int VisibleWindows(const char* className, DWORD processId) {
    int count = 0;
    for (const WindowInfo& window : TopLevelWindows(className, processId))
        count += window.visible ? 1 : 0;
    return count;
}

class TrayIcon : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(tray.ready());
        ASSERT_TRUE(folder.ready());
        folder.WriteSettings(kSettings);
        ASSERT_TRUE(tarvex.Start(folder));
        std::optional<WindowInfo> found = tarvex.WaitForMainForm();
        ASSERT_TRUE(found);
        form = found->hwnd;
        ASSERT_TRUE(tray.WaitForCount(NIM_ADD, form, 1, 20s));
    }

    RecordingTray tray;
    ProgramFolder folder;
    Tarvex tarvex;
    HWND form = nullptr;
};

} // namespace

TEST_F(TrayIcon, IsAddedWithTheRecordThatRoutesItsClicksToTheMainFormAndAgainAfterAShellRestart) {
    const TrayCall& add = tray.calls().front();
    EXPECT_EQ(add.command, static_cast<DWORD>(NIM_ADD));
    EXPECT_EQ(add.owner, form);
    EXPECT_EQ(add.id, 1u);
    EXPECT_EQ(add.flags, 7u);
    EXPECT_EQ(add.callbackMessage, 512u);
    EXPECT_EQ(add.tip, "Tarvex");

    // It comes back when the shell restarts.
    tray.AnnounceRestart();
    EXPECT_TRUE(tray.WaitForCount(NIM_ADD, form, 2, 10s));
    const TrayCall& again = tray.calls().back();
    EXPECT_EQ(again.id, 1u);
    EXPECT_EQ(again.tip, "Tarvex");
}

// Its Exit entry is the exit tests'.
TEST_F(TrayIcon, RightButtonUpPopsUpTheMenuWithPreferences) {
    ASSERT_TRUE(tarvex.OpenTrayMenu());
    ChooseMenuEntry('p');
    std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(preferences) << "the Preferences entry opened nothing";
    EXPECT_EQ(preferences->title, "Tarvex Preferences");
    ASSERT_TRUE(CancelPreferences(preferences->hwnd, tarvex.processId()));
}

TEST_F(TrayIcon, TheMenuClosesOnAClickElsewhere) {
    std::optional<WindowInfo> menu = tarvex.OpenTrayMenu();
    ASSERT_TRUE(menu);
    // A spot of the desktop well away from the menu.
    int x = (menu->rect.left + menu->rect.right) / 2 < 512 ? 900 : 100;
    int y = (menu->rect.top + menu->rect.bottom) / 2 < 384 ? 600 : 150;
    ClickDuringCapture(x, y);
    EXPECT_TRUE(WaitForPopupMenuGone(tarvex.processId()));
    EXPECT_TRUE(tarvex.running());
    EXPECT_EQ(VisibleWindows(kDialogClass, tarvex.processId()), 0);
    EXPECT_EQ(VisibleWindows(kPreferencesClass, tarvex.processId()), 0);
}

TEST_F(TrayIcon, ADoubleClickOpensThePreferencesButNotASecondTime) {
    tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
    std::optional<WindowInfo> preferences = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(preferences);

    tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
    Settle(1500ms);
    EXPECT_EQ(VisibleWindows(kPreferencesClass, tarvex.processId()), 1) << "opened while they were open";

    ASSERT_TRUE(CancelPreferences(preferences->hwnd, tarvex.processId()));
    tarvex.SendTrayMessage(WM_LBUTTONDBLCLK);
    std::optional<WindowInfo> again = WaitForPreferences(tarvex.processId());
    ASSERT_TRUE(again) << "closed preferences did not open again";
    EXPECT_TRUE(CancelPreferences(again->hwnd, tarvex.processId()));
}

TEST_F(TrayIcon, OtherMouseMessagesAreIgnored) {
    for (UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONDBLCLK, WM_MBUTTONUP})
        tarvex.SendTrayMessage(message);
    Settle(1500ms);
    EXPECT_TRUE(WaitForPopupMenuGone(tarvex.processId(), 0ms)) << "a menu popped up";
    EXPECT_EQ(VisibleWindows(kDialogClass, tarvex.processId()), 0);
    EXPECT_EQ(VisibleWindows(kPreferencesClass, tarvex.processId()), 0);
}

TEST(TrayIconSetting, NoIconWhenTheSettingIsOff) {
    RecordingTray tray;
    ASSERT_TRUE(tray.ready());
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings("[TARVEX]\nGenShowInTray=False\n");
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    ASSERT_TRUE(tarvex.WaitForMainForm());
    // The menu answers once start-up is through, icon or not.
    ASSERT_TRUE(tarvex.OpenTrayMenu());
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitForPopupMenuGone(tarvex.processId()));
    EXPECT_EQ(tray.Count(NIM_ADD), 0);

    ASSERT_TRUE(tarvex.ExitThroughTray());
    EXPECT_EQ(tray.Count(NIM_DELETE), 0) << "exit removed an icon that was never added";
}
