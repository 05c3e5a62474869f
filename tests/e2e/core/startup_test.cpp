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

// The program folder is the current directory, or with "autostart" the executable's
// folder: it gets the program's folders, and no Help folder.
TEST(Startup, TheProgramFolderIsTheCurrentDirectoryOrWithAutostartTheExecutablesFolder) {
    const struct {
        const char* arguments;
        bool startElsewhere;
        bool exeFolderIsProgramFolder;
    } cases[] = {{"", false, true}, {"AUTOSTART", true, true}, {"", true, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string("arguments \"") + c.arguments + "\", elsewhere " + (c.startElsewhere ? "yes" : "no"));
        ProgramFolder folder;
        ASSERT_TRUE(folder.ready());
        TempFolder current;
        // Settings and menus in both, so that neither start is a first run held up by questions.
        folder.WriteSettings(kSettings);
        current.WriteBytes("Helmora.ini", "[TARVEX]\r\nGenShowInTray=True\r\n");
        current.WriteBytes("TvMenus.ini", "[MENUS]\r\n");
        Tarvex tarvex;
        ASSERT_TRUE(tarvex.Start(folder, c.arguments, c.startElsewhere ? current.path() : ""));
        ASSERT_TRUE(tarvex.WaitForMainForm());

        const TempFolder& home = c.exeFolderIsProgramFolder ? static_cast<const TempFolder&>(folder) : current;
        ASSERT_TRUE(WaitUntil([&] { return home.IsFolder("Export"); }, 10s));
        ExpectProgramFoldersIn(home);
        EXPECT_FALSE(home.Exists("Help"));
        if (c.startElsewhere)
            ExpectNoProgramFoldersIn(c.exeFolderIsProgramFolder ? current : static_cast<const TempFolder&>(folder));
    }
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
