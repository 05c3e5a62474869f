// Themes on disk under Wine, on a program folder of the test's own: save and load, delete,
// export and import, packages that must write nothing, the wallpaper, the font resource.
#include "themes/win/themes.h"

#include "core/paths.h"
#include "core/win/ini_handler.h"
#include "core/win/system_values.h"
#include "support/answered_message_boxes.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"
#include "themes/win/desktop_wallpaper.h"
#include "themes/win/file_tree.h"
#include "themes/win/zip_archive.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

using namespace Themes;
using namespace MessageBoxes;
using namespace TestSupport;

namespace {

using Files = std::initializer_list<std::pair<const char*, std::string>>;

class ThemesTest : public ::testing::Test {
protected:
    void SetUp() override {
        SetProgramFolder(program.values, folder.path());
        program.values.WindowsFolder = folder.path();
        SystemValues::CreateFolder(program.values.ThemesFolder);
    }
    // A file in a theme's folder (the folder itself, with its backslash, for no file).
    std::string Theme(std::string_view name, std::string_view file = {}) const {
        return program.values.ThemesFolder + "\\" + std::string(name) + "\\" + std::string(file);
    }
    std::string BlueKey(std::string_view key) const {
        for (const ProfileEntry& entry : IniHandler::ReadWholeSection("TARVEX", Theme("Blue", "Blue.wst")))
            if (entry.key == key)
                return entry.value;
        return "(none)";
    }
    void Write(const std::string& path, const std::string& bytes) const {
        FileTree::CreateFolders(path.substr(0, path.rfind('\\')));
        WriteBytes(path, bytes);
    }
    void WriteTheme(std::string_view name, Files files) const {
        for (const auto& [file, bytes] : files)
            Write(Theme(name, file), bytes);
    }
    void WriteZip(const std::string& path, Files entries) const {
        ThemeZip::ZipWriter zip(path);
        for (const auto& [name, bytes] : entries) {
            WriteBytes(folder.File("entry"), bytes);
            ASSERT_TRUE(zip.AddFile(name, folder.File("entry")));
        }
        ::DeleteFileW(Win::Widen(folder.File("entry")).c_str());
        ASSERT_TRUE(zip.Close());
    }

    TempFolder folder;
    Program program;
    SettingsRec& settings = program.settings;
};

// Every file below a folder, with its bytes.
std::vector<std::pair<std::string, std::string>> Contents(const std::string& folder) {
    std::vector<std::pair<std::string, std::string>> contents;
    for (const std::string& file : FileTree::FilesBelow(folder))
        contents.emplace_back(file, ReadBytes(Paths::Join(folder, file)));
    return contents;
}

} // namespace

TEST_F(ThemesTest, ASavedThemeLoadsItsLookPicturesAndSoundsBack) {
    AnsweredMessageBoxes boxes(kOk);
    Write(folder.File("Pictures\\TitleA.bmp"), "title picture");
    Write(folder.File("Pictures\\Notes.txt"), "no theme picture");
    Write(folder.File("open.wav"), "RIFF");
    settings.BitmapsFolder = "Pictures"; // relative to the program folder, as shipped themes give it
    settings.SoundFx[0] = "open.wav";
    settings.TitleColor = 0x0000FF;
    settings.TitleFont = settings.ButtonFont = "No Such Font";
    settings.GenShowInTray = false;
    ASSERT_EQ(SaveTheme(program.values, settings, {"Blue", "Ann"}), Outcome::Done);
    EXPECT_TRUE(boxes.requests.empty());
    EXPECT_EQ(ReadBytes(Theme("Blue", "TitleA.bmp")), "title picture");
    EXPECT_FALSE(FileExists(Theme("Blue", "Notes.txt")));
    EXPECT_EQ(ReadBytes(Theme("Blue", "open.wav")), "RIFF");
    EXPECT_EQ(settings.BitmapsFolder, Theme("Blue"));
    EXPECT_EQ(BlueKey("TitleColor"), "255");
    EXPECT_EQ(BlueKey("GenThemeAuthor"), "Ann");
    EXPECT_EQ(BlueKey("GenShowInTray"), "(none)") << "a general key in a theme file";

    settings.TitleColor = 0x00FF00;
    settings.BitmapsFolder.clear();
    settings.SoundFx[0] = "C:\\Elsewhere\\open.wav";
    ASSERT_EQ(LoadTheme(program, {"Blue"}), Outcome::Done);
    EXPECT_EQ(settings.TitleColor, 0x0000FF);
    EXPECT_EQ(settings.BitmapsFolder, Theme("Blue"));
    EXPECT_EQ(settings.SoundFx[0], Theme("Blue", "open.wav"));
    EXPECT_EQ(settings.GenThemeName, "Blue");
    EXPECT_FALSE(settings.GenShowInTray) << "general keys are not the theme's";
    ASSERT_EQ(boxes.requests.size(), 1u) << "one font, checked once";
    EXPECT_EQ(boxes.requests[0].title, "Tarvex Warning");
    EXPECT_EQ(settings.TitleFont + settings.ButtonFont, "ArialArial");
}

TEST_F(ThemesTest, SavingOverAThemeAsksAndAThemeWithoutItsFileDoesNotLoad) {
    Write(folder.File("TitleA.bmp"), "picture");
    settings.BitmapsFolder = folder.path();
    settings.TitleColor = 1;
    AnsweredMessageBoxes no(kNo);
    ASSERT_EQ(SaveTheme(program.values, settings, {"Blue", ""}), Outcome::Done);
    settings.TitleColor = 2;
    EXPECT_EQ(SaveTheme(program.values, settings, {"Blue", ""}), Outcome::Declined);
    ASSERT_EQ(no.requests.size(), 1u);
    EXPECT_EQ(no.requests[0].text, "Warning! Theme already exists. Overwrite?");
    EXPECT_EQ(BlueKey("TitleColor"), "1");
    {
        AnsweredMessageBoxes yes(kYes); // saved under its own name: the pictures stay where they are
        EXPECT_EQ(SaveTheme(program.values, settings, {"Blue", ""}), Outcome::Done);
    }
    EXPECT_EQ(BlueKey("TitleColor"), "2");
    EXPECT_EQ(ReadBytes(Theme("Blue", "TitleA.bmp")), "picture");

    WriteTheme("Empty", {{"TitleA.bmp", "x"}});
    EXPECT_EQ(LoadTheme(program, {"Empty"}), Outcome::Failed);
    EXPECT_EQ(settings.TitleColor, 2) << "the look stays";
    EXPECT_NE(no.requests.back().text.find("Empty.wst cannot be found"), std::string::npos);
}

TEST_F(ThemesTest, DeleteAsksThenRemovesTheFolderWholeAndNothingOutsideThemes) {
    WriteTheme("Blue", {{"Blue.wst", "[TARVEX]"}, {"sub\\deep.bmp", "x"}});
    {
        AnsweredMessageBoxes cancel(kCancel);
        EXPECT_EQ(DeleteTheme(program.values, "Blue"), Outcome::Declined);
        EXPECT_EQ(cancel.requests.at(0).title, "Tarvex - Delete Theme Confirmation Dialog");
    }
    EXPECT_TRUE(FileExists(Theme("Blue", "sub\\deep.bmp")));
    AnsweredMessageBoxes ok(kOk);
    for (const char* outside : {"..", "..\\Themes", "C:"})
        EXPECT_EQ(DeleteTheme(program.values, outside), Outcome::Declined) << outside;
    EXPECT_EQ(DeleteTheme(program.values, "Blue"), Outcome::Done);
    EXPECT_FALSE(SystemValues::FolderExists(Theme("Blue")));
    EXPECT_TRUE(SystemValues::FolderExists(program.values.ThemesFolder));
}

TEST_F(ThemesTest, AnExportedThemeImportsFileForFileAndReplacesOnlyWhenAsked) {
    std::string picture(256, '\0');
    std::iota(picture.begin(), picture.end(), '\0');
    WriteTheme("Blue", {{"Blue.wst", "[TARVEX]\r\nTitleColor=255\r\n"},
                        {"Zoë Ωmega.bmp", picture},
                        {"sub\\deep.ico", "icon"},
                        {"Wallpaper.jpg", "jpg"},
                        {"Wallpaper.bmp", "bmp"}});
    AnsweredMessageBoxes yes(kYes);
    ASSERT_EQ(ExportTheme(program.values, "Blue"), Outcome::Done);
    ASSERT_EQ(yes.requests.size(), 1u);
    EXPECT_EQ(yes.requests[0].text.substr(0, 64), "Warning! There are two Wallpaper bitmaps in this theme's folder.");
    EXPECT_FALSE(FileExists(Theme("Blue", "Wallpaper.bmp"))) << "Yes deletes the BMP one";

    TempFolder otherFolder;
    ProgramValues other;
    SetProgramFolder(other, otherFolder.path());
    std::string zip = program.values.ExportFolder + "\\Blue.zip";
    Imported imported = ImportPackage(other, SettingsRec(), zip);
    EXPECT_EQ(imported.outcome, Outcome::Done);
    EXPECT_EQ(imported.themeName, "Blue");
    std::string otherBlue = other.ThemesFolder + "\\Blue";
    EXPECT_EQ(Contents(otherBlue), Contents(Theme("Blue")));
    EXPECT_EQ(Contents(otherBlue).size(), 4u);

    WriteBytes(otherBlue + "\\Blue.wst", "changed");
    {
        AnsweredMessageBoxes no(kNo);
        EXPECT_EQ(ImportPackage(other, SettingsRec(), zip).outcome, Outcome::Declined);
    }
    EXPECT_EQ(ReadBytes(otherBlue + "\\Blue.wst"), "changed");
    EXPECT_EQ(ImportPackage(other, SettingsRec(), zip).outcome, Outcome::Done);
    EXPECT_EQ(Contents(otherBlue), Contents(Theme("Blue")));
    for (const std::string& file : FileTree::FilesBelow(other.ThemesFolder))
        EXPECT_TRUE(file.starts_with("Blue\\")) << file << " left beside the theme";
}

TEST_F(ThemesTest, AnUnsafePackageIsRefusedAndWritesNothingAnywhere) {
    std::string zip = folder.File("Evil.zip");
    WriteZip(zip, {{"Evil/Evil.wst", ""}, {"..\\evil.txt", "x"}, {"C:\\evil.txt", "x"}, {"/abs.txt", "x"}});
    AnsweredMessageBoxes yes(kYes);
    EXPECT_EQ(ImportPackage(program.values, settings, zip).outcome, Outcome::Declined);
    ASSERT_EQ(yes.requests.size(), 1u);
    EXPECT_NE(yes.requests[0].text.find("cannot be installed: the entry \"..\\evil.txt\""), std::string::npos);
    EXPECT_EQ(FileTree::FilesBelow(folder.path()), std::vector<std::string>{"Evil.zip"});
    std::string parent = folder.path().substr(0, folder.path().rfind('\\'));
    for (const std::string& outside : {parent + "\\evil.txt", std::string("C:\\evil.txt"), std::string("C:\\abs.txt")})
        EXPECT_FALSE(FileExists(outside)) << outside;
}

TEST_F(ThemesTest, ADamagedPackageLeavesTheThemeItWouldReplaceAsItWas) {
    WriteTheme("Blue", {{"Blue.wst", "old"}});
    std::string noise(64 * 1024, '\0');
    std::generate(noise.begin(), noise.end(), std::minstd_rand(7));
    std::string zip = folder.File("Blue.zip");
    WriteZip(zip, {{"Blue/Blue.wst", "new"}, {"Blue/Tasks.bmp", noise}});
    std::string bytes = ReadBytes(zip);
    bytes[bytes.size() / 2] ^= 0x55; // inside the noise, which does not compress
    WriteBytes(zip, bytes);
    WriteBytes(folder.File("Junk.zip"), "PK but no zip at all");
    settings.GenUnzipAlwaysOverwrite = true;

    AnsweredMessageBoxes ok(kOk);
    EXPECT_EQ(ImportPackage(program.values, settings, zip).outcome, Outcome::Failed);
    EXPECT_EQ(ImportPackage(program.values, settings, folder.File("Junk.zip")).outcome, Outcome::Failed);
    ASSERT_EQ(ok.requests.size(), 2u);
    for (const Request& request : ok.requests)
        EXPECT_NE(request.text.find("it is not a zip file, or it is damaged."), std::string::npos) << request.text;
    EXPECT_EQ(FileTree::FilesBelow(program.values.ThemesFolder), std::vector<std::string>{"Blue\\Blue.wst"});
    EXPECT_FALSE(SystemValues::FolderExists(ThemePackage::UnpackFolder(program.values.ThemesFolder, "Blue")));
    EXPECT_EQ(ReadBytes(Theme("Blue", "Blue.wst")), "old");
}

TEST_F(ThemesTest, AJpegWallpaperBecomesTarvexBmpOnTheDesktop) {
    // The prefix's desktop is every Wine test's: its wallpaper is put back afterwards.
    struct PutBack {
        std::string wallpaper = DesktopWallpaper::Current();
        std::string tile = DesktopWallpaper::CurrentTile();
        ~PutBack() {
            DesktopWallpaper::SetTile(tile);
            DesktopWallpaper::Set(wallpaper);
        }
    } putBack;
    WriteTheme("Blue", {{"Blue.wst", "[TARVEX]\r\nSysTileWallpaper=1\r\n"}});
    ASSERT_TRUE(WriteJpeg(Theme("Blue", "Wallpaper.jpg"), 8, 8, RGB(0, 128, 255)));
    AnsweredMessageBoxes ok(kOk); // fonts the prefix may lack
    ASSERT_EQ(LoadTheme(program, {"Blue", true, false}), Outcome::Done);
    EXPECT_EQ(ReadBytes(folder.File("Tarvex.bmp")).substr(0, 2), "BM");
    EXPECT_EQ(DesktopWallpaper::Current(), folder.File("Tarvex.bmp"));
    EXPECT_EQ(DesktopWallpaper::CurrentTile(), "1");
}

// Wine writes "??" as the face of the fonts it has here, so the name itself is checked on
// resource bytes by the unit tests; this is the resource made, read and removed.
TEST_F(ThemesTest, AFontFilesFaceNameComesFromAFontResourceRemovedAfter) {
    Win::WindowDc screen(nullptr);
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    wanted.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    Win::UniqueFont font(::CreateFontIndirectW(&wanted));
    Win::SelectGuard select(screen.get(), font.get());
    DWORD size = ::GetFontData(screen.get(), 0, 0, nullptr, 0); // the whole file of the font
    ASSERT_NE(size, GDI_ERROR) << "no TrueType font in the prefix";
    std::string bytes(size, '\0');
    ASSERT_EQ(::GetFontData(screen.get(), 0, 0, bytes.data(), size), size);
    WriteBytes(folder.File("probe.ttf"), bytes);
    wchar_t temp[MAX_PATH + 1] = {};
    std::string resource = Win::Narrow(std::wstring_view(temp, ::GetTempPathW(MAX_PATH + 1, temp))) + "~TEMP.FOT";

    EXPECT_NE(FaceNameOfFontFile(folder.File("probe.ttf")), "");
    EXPECT_FALSE(FileExists(resource));
    EXPECT_EQ(FaceNameOfFontFile(folder.File("missing.ttf")), "");
    wchar_t face[LF_FACESIZE] = {};
    ::GetTextFaceW(screen.get(), LF_FACESIZE, face);
    EXPECT_EQ(ThemeFontCheck(Win::Narrow(face)), Win::Narrow(face)) << "an installed font is kept";
}
