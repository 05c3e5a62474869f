// Theme packages dropped into AutoInstall become themes when the program starts: one
// zip holding its theme's folder, one with the theme's files at its top; a broken one and
// one whose entries climb out, start at a drive or at the root are told about, write
// nothing, and start-up goes on.
#include "harness/dialogs.h"
#include "harness/program_folder.h"
#include "harness/tarvex.h"
#include "themes/win/zip_archive.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace E2e;

constexpr const char* kAlphaTheme = "[TARVEX]\r\nTitleColor=255\r\nGenThemeName=Alpha\r\n";
constexpr const char* kBetaTheme = "[TARVEX]\r\nTitleColor=65280\r\nGenThemeName=Beta\r\n";

bool WriteZip(const std::string& path, const std::map<std::string, std::string>& entries) {
    TempFolder files;
    ThemeZip::ZipWriter zip(path);
    for (const auto& [name, bytes] : entries) {
        files.WriteBytes("entry", bytes);
        if (!zip.AddFile(name, files.File("entry")))
            return false;
    }
    return zip.Close();
}

} // namespace

TEST(Themes, PackagesWaitingInAutoInstallAreInstalledAtStartUpAndBrokenOrUnsafeOnesAreToldAndWriteNothing) {
    ProgramFolder folder;
    ASSERT_TRUE(folder.ready());
    folder.WriteSettings("[TARVEX]\nGenShowInTray=True\n");
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(folder.File("AutoInstall")).c_str(), nullptr));
    ASSERT_TRUE(WriteZip(folder.File("AutoInstall\\Alpha.zip"),
                         {{"Alpha/Alpha.wst", kAlphaTheme}, {"Alpha/TitleA.bmp", "BM picture"}}));
    ASSERT_TRUE(WriteZip(folder.File("AutoInstall\\Beta.zip"),
                         {{"Beta.wst", kBetaTheme}, {"Readme.txt", "Made for Tarvex.\r\n"}}));
    folder.WriteBytes("AutoInstall\\Broken.zip", "PK\x03\x04 and then nothing a zip holds");
    ASSERT_TRUE(WriteZip(folder.File("AutoInstall\\Evil.zip"),
                         {{"Evil/Evil.wst", ""}, {"..\\evil.txt", "x"}, {"C:\\evil.txt", "x"}, {"/abs.txt", "x"}}));

    Tarvex tarvex;
    ASSERT_TRUE(tarvex.Start(folder));
    // The read-me is shown before its theme is installed; the broken and the unsafe packages are told.
    std::string told;
    for (int box = 0; box < 3; ++box) {
        std::optional<WindowInfo> shown = WaitForMessageBox(tarvex.processId(), 30s);
        ASSERT_TRUE(shown) << "boxes seen: " << told;
        told += shown->title + ": " + DialogText(shown->hwnd) + "\n";
        ASSERT_TRUE(PressButton(shown->hwnd, "OK")) << shown->title;
    }
    for (const char* seen : {"Tarvex - Readme.txt: Made for Tarvex.",
                             "Broken.zip cannot be installed: it is not a zip file",
                             "Evil.zip cannot be installed: the entry \"..\\evil.txt\""})
        EXPECT_NE(told.find(seen), std::string::npos) << seen << " in\n" << told;

    ASSERT_TRUE(tarvex.WaitUntilReady()) << "start-up went on";
    EXPECT_EQ(folder.ReadBytes("Themes\\Alpha\\Alpha.wst"), kAlphaTheme);
    EXPECT_EQ(folder.ReadBytes("Themes\\Alpha\\TitleA.bmp"), "BM picture");
    EXPECT_EQ(folder.ReadBytes("Themes\\Beta\\Beta.wst"), kBetaTheme);
    EXPECT_TRUE(folder.Exists("Themes\\Beta\\Readme.txt"));
    for (const char* gone :
         {"AutoInstall\\Alpha.zip", "AutoInstall\\Beta.zip", "AutoInstall\\Broken.zip", "AutoInstall\\Evil.zip"})
        EXPECT_FALSE(folder.Exists(gone)) << gone << " would be installed again";
    EXPECT_TRUE(folder.Exists("AutoInstall\\Installed\\Alpha.zip"));
    EXPECT_TRUE(folder.Exists("AutoInstall\\Installed\\Beta.zip"));
    EXPECT_TRUE(folder.Exists("AutoInstall\\Not installed\\Broken.zip"));
    EXPECT_TRUE(folder.Exists("AutoInstall\\Not installed\\Evil.zip"));
    EXPECT_FALSE(folder.Exists("Themes\\Evil")) << "nothing of an unsafe package is written";
    for (const std::string& outside : {folder.File("evil.txt"), folder.File("Themes\\evil.txt"),
                                       std::string("C:\\evil.txt"), std::string("C:\\abs.txt")})
        EXPECT_EQ(::GetFileAttributesW(Win::Widen(outside).c_str()), INVALID_FILE_ATTRIBUTES) << outside;
    EXPECT_TRUE(WaitForNoVisibleWindow(kDialogClass, tarvex.processId(), 0ms));
    EXPECT_TRUE(tarvex.ExitThroughTray());
}
