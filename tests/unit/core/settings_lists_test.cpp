// The hotspot and user-task keys that follow NoOfHotSpots and NoOfUserTasks.
#include "core/settings.h"
#include "profile_file_fake.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// A hotspot with every field away from its default.
HotspotRec SampleHotSpot(int n) {
    const std::string number = std::to_string(n);
    return {.x1 = static_cast<std::int16_t>(n),
            .x2 = static_cast<std::int16_t>(1000 + n),
            .y1 = static_cast<std::int16_t>(-n),
            .y2 = 768,
            .App = "App " + number,
            .GroupName = "Group",
            .Menutop = 10,
            .Menuleft = -20,
            .Menuname = "Menu " + number,
            .Menupath1 = "C:\\Folder " + number + "\\",
            .Menupath2 = "*7",
            .MenuType = 2,
            .FileTypeMask = "*.exe;*.lnk",
            .OnMouse = true,
            .MouseButton = 11,
            .UseHotKey = -1,
            .Hotkey = 112,
            .ShiftHotKey = true,
            .Theme = "Blue",
            .Inherit = true,
            .SoundPath = "s.wav",
            .AppPath = "a.exe",
            .Type = 4,
            .StartPath = "C:\\",
            .AlwaysOpen = 1,
            .Horizontal = true,
            .ForceOnTop = true};
}

ProfileWrites WritesAfter(const ProfileWrites& writes, const std::string& key) {
    auto at = std::find_if(writes.begin(), writes.end(), [&](const ProfileWrite& w) { return w.key == key; });
    return at == writes.end() ? ProfileWrites() : ProfileWrites(at, writes.end());
}

} // namespace

TEST(HotSpotKeys, FollowNoOfHotSpotsWithEveryFieldInRecordOrder) {
    SettingsRec settings;
    settings.HotSpots = {HotspotRec(), SampleHotSpot(1)};
    ProfileWrites writes = WritesAfter(SaveSettings(settings, false), "NoOfHotSpots");
    const std::vector<std::string> suffixes = {
        "x1",          "x2",        "y1",        "y2",          "App",        "GroupName",    "Menutop",
        "Menuleft",    "Menuname",  "Menupath1", "Menupath2",   "MenuType",   "FileTypeMask", "OnMouse",
        "MouseButton", "UseHotKey", "Hotkey",    "ShiftHotKey", "Theme",      "Inherit",      "SoundPath",
        "AppPath",     "Type",      "StartPath", "AlwaysOpen",  "Horizontal", "ForceOnTop", "Monitor"};
    std::vector<std::string> expected = {"NoOfHotSpots=1"};
    for (const char* index : {"0", "1"})
        for (const std::string& suffix : suffixes)
            expected.push_back("HotSpot" + std::string(index) + suffix);
    std::vector<std::string> got;
    for (const ProfileWrite& write : writes)
        got.push_back(write.key == "NoOfHotSpots" ? write.key + "=" + write.value : write.key);
    EXPECT_EQ(got, expected);
    EXPECT_EQ(WrittenValue(writes, "HotSpot1OnMouse"), "True");
}

// Every field survives; an eleventh hotspot's index 10 lands on 0.
TEST(HotSpotKeys, RoundTripAndElevenLoseOne) {
    SettingsRec saved;
    saved.HotSpots.clear(); // fresh settings hold one blank hotspot
    for (int i = 0; i < 11; ++i)
        saved.HotSpots.push_back(SampleHotSpot(i));
    SettingsRec loaded;
    LoadSettings(SectionOf(SaveSettings(saved, false)), false, loaded);
    std::vector<HotspotRec> expected(saved.HotSpots.begin(), saved.HotSpots.begin() + 10);
    expected[0] = saved.HotSpots[10];
    EXPECT_EQ(loaded.HotSpots, expected);
}

TEST(HotSpotKeys, ReadTheIndexFromTheEighthCharacterAndTheFieldFromTheRest) {
    SettingsRec settings;
    LoadSettings({{"NoOfHotSpots", "2"},
                  {"HOTSPOT2MENUPATH1", "C:\\Tools"},
                  {"HotSpot1Type", "3"},
                  {"HotSpot1Type", "1"},
                  {"HotSpot1Typo", "2"},
                  {"HotSpotXApp", "Notepad"},
                  {"HotSpot5App", "Beyond the count"},
                  {"HotSpot0Type", "256"}},
                 false, settings);
    std::vector<HotspotRec> expected(3);
    expected[2].Menupath1 = "C:\\Tools";
    expected[1].Type = 3;
    EXPECT_EQ(settings.HotSpots, expected);
}

TEST(HotSpotKeys, CountSaysHowManyRecordsThereAre) {
    SettingsRec settings;
    LoadSettings({{"HotSpot0App", "Desktop"}}, false, settings);
    ASSERT_EQ(settings.HotSpots.size(), 1u);
    EXPECT_EQ(settings.HotSpots[0].App, "Desktop");
    LoadSettings({{"NoOfHotSpots", "-1"}, {"HotSpot0App", "Desktop"}}, false, settings);
    EXPECT_TRUE(settings.HotSpots.empty());
    LoadSettings({{"NoOfHotSpots", "30000"}}, false, settings);
    EXPECT_EQ(settings.HotSpots.size(), 10u);
}

TEST(UserTaskKeys, FollowNoOfUserTasksTaskByTask) {
    SettingsRec settings;
    settings.UserTasks = {UserTaskRec{"Mail", "C:\\mail.exe", "C:\\mail.ico"}, UserTaskRec()};
    ProfileWrites writes = WritesAfter(SaveSettings(settings, false), "NoOfUserTasks");
    ASSERT_GE(writes.size(), 8u);
    std::vector<std::string> got;
    for (std::size_t i = 0; i < 8; ++i)
        got.push_back(writes[i].key + "=" + writes[i].value);
    EXPECT_EQ(got, (std::vector<std::string>{"NoOfUserTasks=2", "TaskName0=Mail", "TaskExec0=C:\\mail.exe",
                                             "TaskIcon0=C:\\mail.ico", "TaskName1=NewItem",
                                             "TaskExec1=", "TaskIcon1=", "BrowserIconType=0"}));
}
