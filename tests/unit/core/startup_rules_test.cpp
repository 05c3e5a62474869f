// Which folder is the program folder, the folders made in it and the tray icon's clicks
// are the end-to-end start-up and tray tests'.
#include "core/startup_rules.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

using StartupRules::CommandLineWords;

TEST(CommandLineWords, AreFoundAnywhereWhateverTheirCase) {
    const std::pair<const char*, CommandLineWords> cases[] = {{"/AUTOSTART", {true, false}},
                                                              {"xxSETUPxx", {false, true}},
                                                              {"setup /AutoStart", {true, true}},
                                                              {"", {false, false}},
                                                              {"auto start set up", {false, false}}};
    for (const auto& [line, words] : cases)
        EXPECT_EQ(StartupRules::FindCommandLineWords(line), words) << line;
}

TEST(ProgramFolder, LosesATrailingBackslashSoNamesJoinWithOne) {
    EXPECT_EQ(StartupRules::ChooseProgramFolder({false, false}, "", "C:\\"), "C:");
    EXPECT_EQ(StartupRules::ChooseProgramFolder({true, false}, "\\\\server\\share\\", ""), "\\\\server\\share");
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
    entries = {1, 0, -1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_EQ(StartupRules::StartupHotspotsToOpen(entries, 0), (std::vector<int>{0})) << "the default hotspot";
}
