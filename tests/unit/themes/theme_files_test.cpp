// The theme folder's names and rules, and the fonts of a theme.
#include "themes/font_rules.h"
#include "themes/theme_files.h"

#include "core/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace ThemeFiles;

TEST(ThemeFiles, PictureNamesAreTheEightyEightOfTheDataModelAndTheSystrayIconEachOnce) {
    std::span<const std::string> names = PictureFiles();
    std::set<std::string> upper;
    for (const std::string& name : names)
        upper.insert(Text::ToUpper(name));
    EXPECT_EQ(names.size(), 89u);
    EXPECT_EQ(upper.size(), names.size());
    for (const char* name : {"ButtonIS.jpg", "VTitleI.bmp", "Tasks.jpg", "OnTopIP.jpg", "RollupAP.ico", "ComSymbIS.ico",
                             "LfArrowI.ico", "DnArrowAS.ico", "Systray.ico"})
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    EXPECT_EQ(std::find(names.begin(), names.end(), "UpArrowAS.ico"), names.end()) << "no selected form";
}

TEST(ThemeFiles, FolderFileAndDeletePaths) {
    EXPECT_EQ(ThemeFolder("C:\\P\\Themes", "Blue"), "C:\\P\\Themes\\Blue\\");
    EXPECT_EQ(ThemeFile("C:\\P\\Themes\\Blue\\", "Blue"), "C:\\P\\Themes\\Blue\\Blue.wst");
    const std::pair<const char*, const char*> deletes[] = {{"C:\\P\\Themes", "C:\\P\\Themes\\Blue"},
                                                           {"C:\\P\\THEMES\\", "C:\\P\\THEMES\\Blue"},
                                                           {"C:\\P\\MyThemes\\", "C:\\P\\MyThemes\\Blue"},
                                                           {"D:\\Looks", "D:\\Looks\\Blue"}};
    for (const auto& [themes, folder] : deletes)
        EXPECT_EQ(FolderToDelete(themes, "Blue"), folder) << themes;
}

TEST(ThemeFiles, ANameMustBeOneFolderOfItsOwn) {
    for (const char* bad : {"", ".", "..", "a\\b", "../up", "C:", "why?", "x|y", "tab\t", "Dots.", "Space ", "CON",
                            "nul.txt", "Com1", "LPT9.wst"})
        EXPECT_FALSE(NameProblem(bad).empty()) << bad;
    for (const char* good : {"Blue Sky", "Console", "COM10", "..Dots", "Ωmega 2.0"})
        EXPECT_EQ(NameProblem(good), "") << good;
}

TEST(ThemeFiles, PathsNamesAndSoundsInTheThemeFolder) {
    EXPECT_TRUE(SamePath("c:\\p\\themes\\blue\\", "C:\\P\\Themes\\Blue"));
    EXPECT_FALSE(SamePath("C:\\P\\Themes\\Blue2\\", "C:\\P\\Themes\\Blue\\"));
    EXPECT_EQ(WallpaperCopyName("C:\\Windows\\Forest.bmp"), "Wallpaper.bmp");
    EXPECT_EQ(WallpaperCopyName("D:\\pics\\sky.JPG"), "Wallpaper.JPG");
    EXPECT_EQ(WallpaperCopyName("D:\\Фото"), "WallpaperФото") << "characters, not bytes";
    std::array<std::string, 7> sounds = {"C:\\Snd\\open.wav", "", "chimes.mid", "", "", "", "T\\roll.wav"};
    std::array<std::string, 7> moved = {"T\\open.wav", "", "T\\chimes.mid", "", "", "", "T\\roll.wav"};
    EXPECT_EQ(SoundsInFolder(sounds, "T\\"), moved);
}

TEST(ThemeFiles, TheWallpaperToSetAndTheOneToOfferDeleting) {
    std::vector<std::string> both = {"TitleA.bmp", "wallpaper.JPG", "Wallpaper.bmp"};
    EXPECT_EQ(ChooseWallpaper(both).value().name, "Wallpaper.bmp");
    EXPECT_FALSE(ChooseWallpaper(both)->convert);
    EXPECT_TRUE(ChooseWallpaper(std::vector<std::string>{"WALLPAPER.jpg"}).value().convert);
    EXPECT_FALSE(ChooseWallpaper(std::vector<std::string>{"Wallpapers.bmp", "MyWallpaper.bmp"}));
    EXPECT_EQ(SecondWallpaper(both), "Wallpaper.bmp");
    EXPECT_FALSE(SecondWallpaper(std::vector<std::string>{"Wallpaper.bmp", "Wallpaper.jpeg"}));
}

TEST(ThemeFiles, QuestionsAndRefusalsSayWhatTheUserIsAskedAndGiveTheirButtons) {
    const std::tuple<Box, const char*, int> boxes[] = {
        {SaveWithoutName(), "Sorry, you must provide a name for the theme being saved!", 48},
        {SaveOverwrite(), "Warning! Theme already exists. Overwrite?", 292},
        {LoadWithoutName(), "Sorry, you must select the theme to be loaded first!", 48},
        {DeleteWithoutName(), "Sorry, you must select the theme you want to delete first!", 48},
        {DeleteQuestion("Blue"),
         "Warning!\nThis will Delete the Blue theme and all its files!\nAre you sure you want to continue?", 273},
        {FontRules::MissingFont("Zed"),
         "This theme is using a font not installed in your system (Zed).\nArial will be used instead.", 64}};
    for (const auto& [box, text, style] : boxes)
        EXPECT_EQ(std::make_pair(box.text, box.style), std::make_pair(std::string(text), style));
    EXPECT_EQ(DeleteQuestion("Blue").title, "Tarvex - Delete Theme Confirmation Dialog");
    EXPECT_EQ(FontRules::MissingFont("Zed").title, "Tarvex Warning");
    EXPECT_TRUE(TwoWallpapers().text.starts_with("Warning! There are two Wallpaper bitmaps in this theme's folder.\n"));
}

TEST(FontRules, RegistryNamesFilesAndTheFaceInAFontResource) {
    EXPECT_EQ(FontRules::FontsKey(true), "Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts");
    EXPECT_EQ(FontRules::FontsKey(false), "Software\\Microsoft\\Windows\\CurrentVersion\\Fonts");
    EXPECT_EQ(FontRules::RegistryValueName("Tahoma"), "Tahoma (TrueType)");
    EXPECT_EQ(FontRules::FontFilePath("C:\\W\\Fonts\\", "tahoma.ttf"), "C:\\W\\Fonts\\tahoma.ttf");
    EXPECT_EQ(FontRules::FontFilePath("C:\\W\\Fonts\\", "D:\\Mine\\a.ttf"), "D:\\Mine\\a.ttf");
    using namespace std::string_literals;
    EXPECT_EQ(FontRules::FaceNameFromFontResource("MZ\0\0FONTRES:Blue Sans\0FONTRES:x"s), "Blue Sans");
    EXPECT_EQ(FontRules::FaceNameFromFontResource("FONTRES:Cut"), "Cut");
    EXPECT_EQ(FontRules::FaceNameFromFontResource("no marker\0"s), "");
    EXPECT_TRUE(FontRules::IsFontFile("Sky.TTF"));
    EXPECT_FALSE(FontRules::IsFontFile("Sky.ttf.txt"));
}

TEST(FontRules, OneFontOfTitleAndButtonIsLookedUpAndCheckedOnce) {
    SettingsRec settings;
    settings.ButtonFont = "Tahoma";
    settings.TitleFont = "TAHOMA";
    ASSERT_EQ(FontRules::FontsToSave(settings).size(), 1u);
    EXPECT_EQ(FontRules::NotInRegistry(FontRules::FontsToSave(settings)[0]).text,
              "Sorry - Tahoma font not found in the registry!");
    std::vector<std::string> checked;
    auto check = [&](std::string_view font) {
        checked.emplace_back(font);
        return FontRules::CheckFont(font, std::vector<std::string>{"tahoma", "Verdana"}).font;
    };
    FontRules::CheckThemeFonts(settings, check);
    EXPECT_EQ(checked.size(), 1u);
    EXPECT_EQ(settings.TitleFont, "Tahoma");

    settings.TitleFont = "Gone Gothic";
    std::vector<FontRules::FontToSave> two = FontRules::FontsToSave(settings);
    ASSERT_EQ(two.size(), 2u);
    EXPECT_EQ(two[0].notFoundTitle, "Tarvex - Font Not Saved");
    EXPECT_EQ(two[1].notFoundTitle, "Tarvex - Font not Saved");
    FontRules::CheckThemeFonts(settings, check);
    EXPECT_EQ(settings.TitleFont, "Arial");
    EXPECT_EQ(settings.ButtonFont, "Tahoma");
}
