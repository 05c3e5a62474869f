#include "core/startup_rules.h"

#include "core/settings.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

using StartupRules::CommandLineWords;

TEST(CommandLineWords, AreFoundAnywhereWhateverTheirCase) {
    const std::pair<const char*, CommandLineWords> cases[] = {
        {"autostart", {true, false}},         {"/AUTOSTART", {true, false}},      {"-Setup", {false, true}},
        {"xxSETUPxx", {false, true}},         {"setup /AutoStart", {true, true}}, {"", {false, false}},
        {"auto start set up", {false, false}}};
    for (const auto& [line, words] : cases)
        EXPECT_EQ(StartupRules::FindCommandLineWords(line), words) << line;
}

TEST(ProgramFolder, AutostartTakesTheExecutablesFolderOtherwiseTheCurrentDirectory) {
    EXPECT_EQ(StartupRules::ChooseProgramFolder({true, false}, "C:\\Tools\\Tarvex", "C:\\Windows\\System32"),
              "C:\\Tools\\Tarvex");
    EXPECT_EQ(StartupRules::ChooseProgramFolder({true, true}, "C:\\Tools\\Tarvex", "D:\\"), "C:\\Tools\\Tarvex");
    EXPECT_EQ(StartupRules::ChooseProgramFolder({false, true}, "C:\\Tools\\Tarvex", "D:\\Work"), "D:\\Work");
}

TEST(ProgramFolder, LosesATrailingBackslashSoNamesJoinWithOne) {
    EXPECT_EQ(StartupRules::ChooseProgramFolder({false, false}, "", "C:\\"), "C:");
    EXPECT_EQ(StartupRules::ChooseProgramFolder({true, false}, "\\\\server\\share\\", ""), "\\\\server\\share");
}

TEST(ProgramFolder, TheFolderOfTheExecutable) {
    EXPECT_EQ(StartupRules::FolderOfFile("C:\\Program Files\\Tarvex\\tarvex2.exe"), "C:\\Program Files\\Tarvex");
    EXPECT_EQ(StartupRules::FolderOfFile("C:\\tarvex2.exe"), "C:");
    EXPECT_EQ(StartupRules::FolderOfFile("tarvex2.exe"), "");
}

TEST(ProgramFolder, FoldersToCreateAreThemesAutoInstallAndExportButNotHelp) {
    ProgramValues values;
    SetProgramFolder(values, "C:\\Tarvex");
    EXPECT_EQ(StartupRules::FoldersToCreate(values),
              (std::vector<std::string>{"C:\\Tarvex\\Themes", "C:\\Tarvex\\AutoInstall", "C:\\Tarvex\\Export"}));
}

using StartupRules::PreferencesAtStart;

TEST(PreferencesAtStart, AMissingSettingsFileIsAFirstRunEvenWithSetupWhichElseOpensThem) {
    EXPECT_EQ(StartupRules::ChoosePreferencesAtStart(false, {false, false}), PreferencesAtStart::FirstRun);
    EXPECT_EQ(StartupRules::ChoosePreferencesAtStart(false, {true, true}), PreferencesAtStart::FirstRun);
    EXPECT_EQ(StartupRules::ChoosePreferencesAtStart(true, {false, true}), PreferencesAtStart::Setup);
    EXPECT_EQ(StartupRules::ChoosePreferencesAtStart(true, {true, false}), PreferencesAtStart::None);
}

TEST(StartupHotspots, OpenEntriesFromZeroToTheNumberOfHotspotsInEntryOrder) {
    std::array<std::int16_t, 10> entries = {2, -1, 0, 3, 4, -5, 1, 32767, -1, 3};
    EXPECT_EQ(StartupRules::StartupHotspotsToOpen(entries, 3), (std::vector<int>{2, 0, 3, 1, 3}));
}

TEST(StartupHotspots, TheDefaultHotspotAloneCanBeOpened) {
    std::array<std::int16_t, 10> entries = {1, 0, -1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_EQ(StartupRules::StartupHotspotsToOpen(entries, 0), (std::vector<int>{0}));
}

using StartupRules::TrayAction;

TEST(TrayCallback, DoubleClickChoosesPreferencesRightButtonUpPopsUpTheMenuTheRestIsIgnored) {
    EXPECT_EQ(StartupRules::TrayCallbackAction(515), TrayAction::ChoosePreferences);
    EXPECT_EQ(StartupRules::TrayCallbackAction(517), TrayAction::PopUpMenu);
    for (int message : {0, 512, 513, 514, 516, 518, 519, 520, 521, 522, 1024})
        EXPECT_EQ(StartupRules::TrayCallbackAction(message), TrayAction::None) << message;
}

TEST(ScreenMeasures, TwipsPerPixelAtCommonResolutions) {
    EXPECT_EQ(StartupRules::TwipsPerPixel(96), 15);
    EXPECT_EQ(StartupRules::TwipsPerPixel(120), 12);
    EXPECT_EQ(StartupRules::TwipsPerPixel(144), 10);
    EXPECT_EQ(StartupRules::TwipsPerPixel(192), 8); // 7.5 rounds to the even 8
    EXPECT_EQ(StartupRules::TwipsPerPixel(0), 15);
}

TEST(ScreenMeasures, TheParkedFormIsFarOffScreenAt96Dpi) {
    EXPECT_EQ(StartupRules::TwipsToPixels(-20000, 15), -1333);
    EXPECT_EQ(StartupRules::TwipsToPixels(720, 15), 48);
    EXPECT_EQ(StartupRules::TwipsToPixels(720, 12), 60);
}

TEST(ScreenMeasures, FontHeightsInPoints) {
    EXPECT_EQ(StartupRules::FontPointSize(-12, 96), 9);
    EXPECT_EQ(StartupRules::FontPointSize(12, 96), 9);
    EXPECT_EQ(StartupRules::FontPointSize(-15, 120), 9);
    EXPECT_EQ(StartupRules::FontPointSize(-11, 96), 8); // 8.25
    EXPECT_EQ(StartupRules::FontPointSize(-12, 0), 0);
}
