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
}

TEST(SettingsLoad, SaveThenLoadGivesTheSameSettings) {
    SettingsRec saved = EveryFieldChanged();
    EXPECT_EQ(Loaded(SectionOf(SaveSettings(saved, false))), saved);
}

// One key of the file read alone, seen as the value a save then writes for it.
TEST(SettingsLoad, ReadsEachValueByItsKeysType) {
    auto number = [](std::int32_t colour) { return std::to_string(colour); };
    const struct {
        const char* key;
        const char* text;
        std::string saved;
    } cases[] = {
        // "r,g,b" with blanks or a part missing; a part beyond 255 would spill into the next
        // colour, so the default stays instead.
        {"SelBarColor", " 16 , 32 , 48 ", number(0x302010)},
        {"MenuFrameColor", "1,2", number(0x000201)},
        {"TitleColor2", "256,0,0", number(0x808080)},
        // A present but empty value overrides the default.
        {"TitleFontBold", "", "False"},
        // Text that does not convert reads zero or false; a number reads its leading digits.
        {"TitleColor2", "grey", "0"},
        {"TitleGradient", "-1", "True"},
        // Numbers round half to even; one that does not fit its type keeps the default.
        {"TitleVSize", "2.5", "2"},
        {"ButtonInactiveTransparent", "9999999999", "0"},
    };
    for (const auto& c : cases) {
        std::optional<std::string> saved;
        for (const ProfileWrite& write : SaveSettings(Loaded({{c.key, c.text}}), false))
            if (!saved && Text::EqualsIgnoreCase(write.key, c.key))
                saved = write.value;
        EXPECT_EQ(saved, c.saved) << c.key << "=" << c.text;
    }
}

// Saving overwrites the first of duplicate keys, so the first is the one that counts.
TEST(SettingsLoad, IgnoresUnknownKeys) {
    EXPECT_EQ(Loaded({{"TitleColour", "255"}, {"Foo", "1"}, {"", "x"}, {"TitleColor2x", "1"}}), SettingsRec());
}

TEST(SettingsLoad, NumberedFamiliesTakeTheirIndexFromTheLastCharacter) {
    SettingsRec settings = Loaded({{"soundfx6", "close.wav"},
                                   {"SoundFx7", "seven.wav"},
                                   {"SoundFx", "none.wav"},
                                   {"GenStartupHotspot9", "4"},
                                   {"GenStartupHotspot12", "3"},
                                   {"GenStartupHotspotX", "5"}});
    EXPECT_EQ(settings.SoundFx, (std::array<std::string, 7>{"", "", "", "", "", "", "close.wav"}));
    EXPECT_EQ(settings.GenStartupHotspot, (std::array<std::int16_t, 10>{-1, -1, 3, -1, -1, -1, -1, -1, -1, 4}));
}

TEST(SettingsLoad, ThemeLoadChangesTheLookKeysAlone) {
    SettingsRec before = EveryFieldChanged();
    before.SoundFx[3] = "click.wav";
    before.HotSpots.resize(3);
    before.HotSpots[2].App = "Desktop";
    before.UserTasks = {UserTaskRec{"Mail", "mail.exe", "mail.ico"}};
    SettingsRec settings = before;
    LoadSettings({{"TitleColor", "255"},
                  {"GenHotKey", "99"},
                  {"SoundFx3", "other.wav"},
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
