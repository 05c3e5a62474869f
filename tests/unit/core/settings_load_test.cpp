#include "core/settings.h"
#include "core/settings_catalogue.h"
#include "profile_file_fake.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <variant>

namespace {

SettingsRec Loaded(const ProfileSection& section) {
    SettingsRec settings;
    LoadSettings(section, false, settings);
    return settings;
}

// Every catalogue field moved away from its default, so that a field that is not saved or
// not read back shows up as a difference.
SettingsRec EveryFieldChanged() {
    SettingsRec settings;
    std::int16_t next = 100;
    for (const SettingDef& def : SettingsCatalogue()) {
        ++next;
        std::visit(
            [&](auto member) {
                auto& value = settings.*member;
                using Value = std::remove_cvref_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, bool>)
                    value = !value;
                else if constexpr (std::is_same_v<Value, std::string>)
                    value = "text " + std::to_string(next);
                else if constexpr (std::is_integral_v<Value>)
                    value = static_cast<Value>(-next);
            },
            def.field);
    }
    return settings;
}

} // namespace

TEST(SettingsLoad, MissingSectionGivesEveryDefault) {
    SettingsRec settings = EveryFieldChanged();
    settings.SoundFx[2] = "x.wav";
    settings.GenStartupHotspot[1] = 3;
    settings.HotSpots.resize(4);
    settings.UserTasks.resize(2);
    LoadSettings({}, false, settings);
    EXPECT_EQ(settings, SettingsRec());
    EXPECT_EQ(settings.NoOfHotSpots(), 0);
    EXPECT_EQ(settings.GenStartupHotspot[1], -1);
}

TEST(SettingsLoad, SaveThenLoadGivesTheSameSettings) {
    SettingsRec saved = EveryFieldChanged();
    EXPECT_EQ(Loaded(SectionOf(SaveSettings(saved, false))), saved);
}

TEST(SettingsLoad, ReadsAColourAsANumberOrAsRedGreenBlue) {
    EXPECT_EQ(Loaded({{"TitleColor", "255,0,0"}}).TitleColor, 0x0000FF);
    EXPECT_EQ(Loaded({{"TitleColor", "255"}}).TitleColor, 0x0000FF);
    EXPECT_EQ(Loaded({{"TitleColor", "0,128,255"}}).TitleColor, 0xFF8000);
    EXPECT_EQ(Loaded({{"SelBarColor", " 16 , 32 , 48 "}}).SelBarColor, 0x302010);
    EXPECT_EQ(Loaded({{"MenuFrameColor", "1,2"}}).MenuFrameColor, 0x000201);
    // A part beyond 255 would spill into the next colour: the default stays instead.
    EXPECT_EQ(Loaded({{"TitleColor2", "256,0,0"}}).TitleColor2, 0x808080);
    // Only the colour keys read the comma form.
    EXPECT_EQ(Loaded({{"ButtonInactiveTransparent", "1,2,3"}}).ButtonInactiveTransparent, 1);
}

TEST(SettingsLoad, MatchesKeysWithoutRegardToCase) {
    SettingsRec settings = Loaded({{"titlecolor", "255"}, {"TITLEFONT", "Tahoma"}, {"buttontextofset", "4"}});
    EXPECT_EQ(settings.TitleColor, 255);
    EXPECT_EQ(settings.TitleFont, "Tahoma");
    EXPECT_EQ(settings.ButtonTextOfset, 4);
}

// Saving overwrites the first of duplicate keys, so the first is the one that counts.
TEST(SettingsLoad, FirstOfDuplicateKeysWins) {
    SettingsRec settings = Loaded({{"TitleVSize", "30"},
                                   {"titlevsize", "40"},
                                   {"TitleFont", "Tahoma"},
                                   {"TitleFont", "Verdana"},
                                   {"SoundFx1", "a.wav"},
                                   {"SOUNDFX1", "b.wav"}});
    EXPECT_EQ(settings.TitleVSize, 30);
    EXPECT_EQ(settings.TitleFont, "Tahoma");
    EXPECT_EQ(settings.SoundFx[1], "a.wav");
}

TEST(SettingsLoad, PresentButEmptyValueOverridesTheDefault) {
    SettingsRec settings = Loaded(
        {{"TitleFont", ""}, {"TitleFontBold", ""}, {"TitleVSize", ""}, {"TitleColor2", ""}, {"GenSoundsOn", ""}});
    EXPECT_EQ(settings.TitleFont, "");
    EXPECT_FALSE(settings.TitleFontBold);
    EXPECT_EQ(settings.TitleVSize, 0);
    EXPECT_EQ(settings.TitleColor2, 0);
    EXPECT_EQ(settings.GenSoundsOn, 0);
}

TEST(SettingsLoad, TextThatDoesNotConvertReadsZeroOrFalse) {
    SettingsRec settings = Loaded({{"TitleVSize", "abc"},
                                   {"TitleColor2", "grey"},
                                   {"ButtonInactiveTransparent", "yes"},
                                   {"TitleFontBold", "yes"},
                                   {"MenuScrollSpeed", "12px"}});
    EXPECT_EQ(settings.TitleVSize, 0);
    EXPECT_EQ(settings.TitleColor2, 0);
    EXPECT_EQ(settings.ButtonInactiveTransparent, 0);
    EXPECT_FALSE(settings.TitleFontBold);
    EXPECT_EQ(settings.MenuScrollSpeed, 12);
}

TEST(SettingsLoad, ReadsBooleanWordsAndNumbers) {
    SettingsRec settings = Loaded({{"TitleGradient", "-1"},
                                   {"TitleFontBold", "0"},
                                   {"ButtonIcons", "TRUE"},
                                   {"SelBar", "false"},
                                   {"GenShiftHotKey", "True"}});
    EXPECT_TRUE(settings.TitleGradient);
    EXPECT_FALSE(settings.TitleFontBold);
    EXPECT_TRUE(settings.ButtonIcons);
    EXPECT_FALSE(settings.SelBar);
    EXPECT_TRUE(settings.GenShiftHotKey);
}

TEST(SettingsLoad, RoundsNumbersAndKeepsTheDefaultWhenOneDoesNotFit) {
    SettingsRec settings = Loaded({{"TitleVSize", "2.5"},
                                   {"ButtonVSize", "40000"},
                                   {"MenuDropDownDelay", "-32769"},
                                   {"RotatePosition", "-32768"},
                                   {"ButtonInactiveTransparent", "9999999999"},
                                   {"NoOfHotSpots", "99999"}});
    EXPECT_EQ(settings.TitleVSize, 2);
    EXPECT_EQ(settings.ButtonVSize, 20);
    EXPECT_EQ(settings.MenuDropDownDelay, 400);
    EXPECT_EQ(settings.RotatePosition, -32768);
    EXPECT_EQ(settings.ButtonInactiveTransparent, 0);
    EXPECT_EQ(settings.NoOfHotSpots(), 0);
}

TEST(SettingsLoad, IgnoresUnknownKeys) {
    EXPECT_EQ(Loaded({{"TitleColour", "255"}, {"Foo", "1"}, {"", "x"}, {"TitleColor2x", "1"}}), SettingsRec());
}

TEST(SettingsLoad, NumberedFamiliesTakeTheirIndexFromTheLastCharacter) {
    SettingsRec settings = Loaded({{"SoundFx0", "open.wav"},
                                   {"soundfx6", "close.wav"},
                                   {"SoundFx7", "seven.wav"},
                                   {"SoundFx9", "nine.wav"},
                                   {"SoundFx", "none.wav"},
                                   {"GenStartupHotspot9", "4"},
                                   {"genstartuphotspot0", "1"},
                                   {"GenStartupHotspot12", "3"},
                                   {"GenStartupHotspotX", "5"}});
    EXPECT_EQ(settings.SoundFx, (std::array<std::string, 7>{"open.wav", "", "", "", "", "", "close.wav"}));
    EXPECT_EQ(settings.GenStartupHotspot, (std::array<std::int16_t, 10>{1, -1, 3, -1, -1, -1, -1, -1, -1, 4}));
}

TEST(SettingsLoad, ThemeLoadChangesTheLookKeysAlone) {
    SettingsRec before = EveryFieldChanged();
    before.SoundFx[3] = "click.wav";
    before.GenStartupHotspot[0] = 1;
    before.HotSpots.resize(3);
    before.HotSpots[2].App = "Desktop";
    before.UserTasks = {UserTaskRec{"Mail", "mail.exe", "mail.ico"}};
    SettingsRec settings = before;
    LoadSettings({{"TitleColor", "255"},
                  {"GenHotKey", "99"},
                  {"TaskbarPos", "0"},
                  {"SoundFx3", "other.wav"},
                  {"GenStartupHotspot0", "2"},
                  {"NoOfHotSpots", "0"},
                  {"HotSpot2App", "Notepad"},
                  {"NoOfUserTasks", "0"}},
                 true, settings);

    SettingsRec expected = before;
    bool look = true;
    for (const SettingDef& def : SettingsCatalogue()) {
        look = look && def.theme;
        if (look)
            std::visit([&](auto member) { expected.*member = SettingsRec().*member; }, def.field);
    }
    expected.TitleColor = 255;
    EXPECT_EQ(settings, expected);
}
