// Start-up as a user meets it: where the program puts itself and its folders, and what
// a second start does.
#include "harness/dialogs.h"
#include "harness/program_folder.h"
#include "harness/recording_tray.h"
#include "harness/tarvex.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace E2e;

constexpr const char* kSettings = "[TARVEX]\nGenShowInTray=True\n";

// Pixels for a length in twips on this screen, as a program that measures in twips
// places its windows.
int TwipsToScreenPixels(int twips) {
    HDC screen = ::GetDC(nullptr);
    int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    int twipsPerPixel = static_cast<int>(std::lround(1440.0 / dpi));
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel));
}

void ExpectProgramFoldersIn(const TempFolder& folder) {
    EXPECT_TRUE(folder.IsFolder("Themes")) << folder.path();
    EXPECT_TRUE(folder.IsFolder("AutoInstall")) << folder.path();
    EXPECT_TRUE(folder.IsFolder("Export")) << folder.path();
}

void ExpectNoProgramFoldersIn(const TempFolder& folder) {
    EXPECT_FALSE(folder.Exists("Themes")) << folder.path();
    EXPECT_FALSE(folder.Exists("AutoInstall")) << folder.path();
    EXPECT_FALSE(folder.Exists("Export")) << folder.path();
}

} // namespace

TEST(Startup, TheMainFormIsHiddenOffScreenUnderTheProgramsTitle) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(kSettings);
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));

    std::optional<WindowInfo> form = tarvex.WaitForMainForm();
    ASSERT_TRUE(form);
    ASSERT_TRUE(WaitUntil([&] { return DescribeWindow(form->hwnd).rect.right < 0; }, 10s));
    WindowInfo parked = DescribeWindow(form->hwnd);
    EXPECT_EQ(parked.title, "Tarvex 2.0");
    EXPECT_FALSE(parked.visible);
    EXPECT_EQ(parked.rect.left, TwipsToScreenPixels(-20000));
    EXPECT_EQ(parked.rect.top, TwipsToScreenPixels(-20000));
    EXPECT_EQ(parked.rect.right - parked.rect.left, TwipsToScreenPixels(720));
    EXPECT_EQ(parked.rect.bottom - parked.rect.top, TwipsToScreenPixels(720));
    EXPECT_TRUE(::GetWindowLongPtrW(form->hwnd, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) << "it would get a taskbar button";
}

TEST(Startup, TheProgramFolderGetsItsFoldersButNoHelpFolder) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(kSettings);
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    ASSERT_TRUE(tarvex.WaitForMainForm());

    ASSERT_TRUE(WaitUntil([&] { return folder.IsFolder("Export"); }, 10s));
    ExpectProgramFoldersIn(folder);
    EXPECT_FALSE(folder.Exists("Help"));
}

TEST(Startup, AutostartFromAnotherDirectoryUsesTheExecutablesFolder) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(kSettings);
    TempFolder elsewhere;
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder, "AUTOSTART", elsewhere.path()));
    ASSERT_TRUE(tarvex.WaitForMainForm());

    ASSERT_TRUE(WaitUntil([&] { return folder.IsFolder("Export"); }, 10s));
    ExpectProgramFoldersIn(folder);
    ExpectNoProgramFoldersIn(elsewhere);
}

TEST(Startup, WithoutAutostartTheCurrentDirectoryIsTheProgramFolder) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    TempFolder current;
    // The settings and the menus in the current directory, so that this is no first run
    // and no question about missing menus holds start-up up.
    current.WriteBytes("Helmora.ini", "[TARVEX]\r\nGenShowInTray=True\r\n");
    current.WriteBytes("TvMenus.ini", "[MENUS]\r\n");
    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder, "", current.path()));
    ASSERT_TRUE(tarvex.WaitForMainForm());

    ASSERT_TRUE(WaitUntil([&] { return current.IsFolder("Export"); }, 10s));
    ExpectProgramFoldersIn(current);
    ExpectNoProgramFoldersIn(folder);
}

TEST(Startup, ASecondStartLeavesOneMainFormAndEnds) {
    RecordingTray tray;
    ASSERT_TRUE(tray.ready());
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings(kSettings);
    Tarvex first;
    ASSERT_TRUE(first.Start(folder));
    std::optional<WindowInfo> form = first.WaitForMainForm();
    ASSERT_TRUE(form);
    ASSERT_TRUE(tray.WaitForCount(NIM_ADD, form->hwnd, 1, 20s));

    Tarvex second;
    ASSERT_TRUE(second.Start(folder));
    ASSERT_TRUE(second.WaitForExit(30s)) << "the second instance kept running";
    EXPECT_EQ(second.ExitCode(), 0u);

    std::vector<WindowInfo> forms = TopLevelWindows(kMainFormClass);
    ASSERT_EQ(forms.size(), 1u);
    EXPECT_EQ(forms[0].processId, first.processId());
    EXPECT_EQ(forms[0].title, "Tarvex 2.0");
    EXPECT_TRUE(first.running());
    EXPECT_EQ(tray.Count(NIM_ADD), 1) << "the second instance touched the tray";
}
