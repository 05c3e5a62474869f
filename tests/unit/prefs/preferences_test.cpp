// The preferences window's decisions: what typed input does to a key, the two halves of
// a corner, the hot key's modifier, the page layout, the sample menus, and what Apply
// writes into a settings file that holds more than the settings.
#include "core/profile_merge.h"
#include "menus/data_manager.h"
#include "prefs/control_values.h"
#include "prefs/page_layout.h"
#include "prefs/preference_pages.h"
#include "prefs/preference_writes.h"
#include "prefs/sample_menu.h"
#include "prefs/startup_hotspots.h"

#include <gtest/gtest.h>

using namespace Preferences;

namespace {

const SettingDef& Key(std::string_view name) {
    return *FindSetting(name);
}

bool Overlap(const DluRect& a, const DluRect& b) {
    return a.width > 0 && b.width > 0 && a.x < b.Right() && b.x < a.Right() && a.y < b.Bottom() && b.y < a.Bottom();
}

} // namespace

TEST(PreferenceInput, ATypedNumberIsTakenOnlyWithinItsRange) {
    const PrefControl& control = Key("TitleVSize").control; // 0 to 200
    struct Case {
        const char* text;
        std::int32_t value;
        bool corrected;
    } cases[] = {{"40", 40, false}, {" 7 ", 7, false}, {"99999", control.max, true}, {"-5", control.min, true},
                 {"abc", 22, true}, {"", 22, true},     {"-", 22, true},           {"12x", 22, true}};
    for (const Case& c : cases) {
        NumberInput input = ReadNumberInput(c.text, control, 22);
        EXPECT_EQ(input.value, c.value) << c.text;
        EXPECT_EQ(input.corrected, c.corrected) << c.text;
        EXPECT_EQ(input.note.empty(), !c.corrected) << c.text;
    }
    EXPECT_EQ(RangeText(control), "0 to 200");
}

TEST(PreferenceInput, ControlsWriteTheValuesTheFileExpects) {
    SettingsRec settings;
    SetChecked(settings, Key("GenSoundsOn"), true); // a number used as a switch
    EXPECT_EQ(settings.GenSoundsOn, -1);
    SetChecked(settings, Key("GenSoundsOn"), false);
    EXPECT_EQ(settings.GenSoundsOn, 0);
    SetChecked(settings, Key("SelBar"), false);
    EXPECT_FALSE(settings.SelBar);

    SetChoice(settings, Key("TitlePosition"), 2);
    EXPECT_EQ(settings.TitlePosition, 2);
    EXPECT_EQ(ChoiceIndexOf(settings, Key("TitlePosition")), 2);
    settings.TitlePosition = 77; // written by hand: no choice shows
    EXPECT_FALSE(ChoiceIndexOf(settings, Key("TitlePosition")));

    FontKeys font = FontKeysOf(Key("TitleFont"));
    ASSERT_TRUE(font.size && font.bold && font.italic && font.colour);
    EXPECT_EQ(font.colour->name, "TitleFontColor");

    for (std::int16_t corner = 0; corner <= 3; ++corner)
        EXPECT_EQ(JoinCorner(SplitCorner(corner)), corner);
    EXPECT_TRUE(SplitCorner(3).bottom && SplitCorner(3).right);
    EXPECT_FALSE(SplitCorner(0).bottom || SplitCorner(0).right);
}

TEST(PreferenceInput, NotesSayWhatWillBeDrawnInsteadOfBadInput) {
    const std::vector<std::string> none;
    const std::vector<std::string> one = {"TitleA.bmp"};
    const std::vector<std::string> two = {"TitleA.bmp", "ArrowA.ico"};
    struct Case {
        std::string_view folder;
        bool found;
        const std::vector<std::string>& bad;
        std::string note;
    } cases[] = {{"", false, none, ""},
                 {"Themes\\Gone", false, one, "Folder not found: no pictures are drawn"},
                 {"Themes\\Blue", true, none, ""},
                 {"Themes\\Blue", true, one, "Not a picture: TitleA.bmp"},
                 {"Themes\\Blue", true, two, "Not pictures: TitleA.bmp, ArrowA.ico"}};
    for (const Case& c : cases)
        EXPECT_EQ(PictureFolderNote(c.folder, c.found, c.bad), c.note) << c.folder;
    EXPECT_EQ(FontNote(true, false), "");
    EXPECT_EQ(FontNote(false, true), "Not installed: Arial is used");
    EXPECT_EQ(FontNote(false, false), "Not installed: a similar font is used");
}

TEST(PreferenceInput, TheHotKeyTakesCtrlOrShiftAndNothingElse) {
    SettingsRec settings;
    const SettingDef& hotKey = Key("GenHotKey");
    EXPECT_TRUE(SetHotKey(settings, hotKey, {0x41, false, false, true}));  // Alt
    EXPECT_TRUE(SetHotKey(settings, hotKey, {0x41, true, true, false}));   // both
    EXPECT_TRUE(SetHotKey(settings, hotKey, {0x41, false, false, false})); // none
    EXPECT_TRUE(SetHotKey(settings, hotKey, {0, true, false, false}));     // no key
    EXPECT_EQ(settings.GenHotKey, 123) << "a refused key changes nothing";

    EXPECT_FALSE(SetHotKey(settings, hotKey, {0x41, true, false, false}));
    EXPECT_EQ(settings.GenHotKey, 0x41);
    EXPECT_TRUE(settings.GenShiftHotKey);
    EXPECT_TRUE(HotKeyOf(settings, hotKey).shift);
    EXPECT_FALSE(SetHotKey(settings, hotKey, {0x42, false, true, false}));
    EXPECT_FALSE(settings.GenShiftHotKey);
}

TEST(PreferenceInput, StartupHotspotsKeepTheirOrderAndDropStaleEntries) {
    SettingsRec settings;
    settings.HotSpots.resize(4); // Default and Hotspots 1 to 3
    settings.HotSpots[2].Menuname = "Programs";
    settings.HotSpots[2].Menupath1 = "Main";
    settings.HotSpots[3].Menupath1 = "C:\\Tools";
    settings.GenStartupHotspot = {3, 9, -1, 3, 0, -1, -1, -1, -1, -1}; // 9 is gone; 3 twice
    SetOpensAtStart(settings, 2, true);
    EXPECT_EQ(settings.GenStartupHotspot, (std::array<std::int16_t, 10>{3, 0, 2, -1, -1, -1, -1, -1, -1, -1}));
    SetOpensAtStart(settings, 3, false);
    EXPECT_EQ(settings.GenStartupHotspot, (std::array<std::int16_t, 10>{0, 2, -1, -1, -1, -1, -1, -1, -1, -1}));
    EXPECT_TRUE(OpensAtStart(settings, 0));
    EXPECT_FALSE(OpensAtStart(settings, 3));
    EXPECT_EQ(StartupHotspotLabel(settings, 0), "Default");
    EXPECT_EQ(StartupHotspotLabel(settings, 2), "Hotspot 2 (Programs)");
    EXPECT_EQ(StartupHotspotLabel(settings, 3), "Hotspot 3 (C:\\Tools)");
}

TEST(PreferencePages, EveryPageLaysOutItsRowsApartAndWithinItsWidth) {
    const GroupRoom sounds[] = {{"Sounds", 100}};
    for (const PageDef& page : Pages()) {
        PageLayout layout = LayOutPage(page.page, kPageWidth, sounds);
        std::vector<DluRect> parts;
        for (const PlacedKey& key : layout.keys)
            for (const DluRect& part : {key.label, key.control, key.second, key.secondLabel, key.note})
                if (part.width > 0)
                    parts.push_back(part);
        for (const PlacedGroup& group : layout.groups) {
            EXPECT_LE(group.box.Right(), kPageWidth) << page.title;
            EXPECT_LE(group.box.Bottom(), layout.height) << page.title;
            if (group.room.width > 0)
                parts.push_back(group.room);
        }
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_LE(parts[i].Right(), kPageWidth) << page.title;
            for (std::size_t j = i + 1; j < parts.size(); ++j)
                EXPECT_FALSE(Overlap(parts[i], parts[j])) << page.title << " parts " << i << " and " << j;
        }
    }
    EXPECT_EQ(LayOutPage(PrefPage::SoundAnimation, kPageWidth, sounds).groups.front().room.height, 100);
    EXPECT_TRUE(LayOutPage(PrefPage::About, kPageWidth).keys.empty());
}

TEST(PreferencePages, TheSampleMenuShowsASubMenuASelectionAndACommandKey) {
    MenuTable menus = SampleMenus();
    const int sample = DataManager::MenuNumberByName(menus, kSampleMenuName);
    ASSERT_GE(sample, 1);
    const MenuItemRec& first = menus.pool[DataManager::FindItem(menus, sample - 1, 0)];
    EXPECT_EQ(first.TYPE, kItemMenuName);
    EXPECT_GE(DataManager::MenuNumberByName(menus, first.PATH), 1) << "the sub-menu exists";
    EXPECT_NE(menus.pool[DataManager::FindItem(menus, sample - 1, kSampleSelectedItem - 1)].HOTKEY, "0");
}

TEST(SettingsFileMerge, ChangesKeepEveryOtherKeyAndSection) {
    std::vector<NamedSection> file = {
        {"TARVEX", {{"titlecolor", "0"}, {"MyOwnKey", "kept"}, {"MyOwnKey", "second, unread"}}},
        {"Other", {{"Keep", "this"}}}};
    ProfileWrites merged = MergeChanges(file, {{"TARVEX", "TitleColor", "255"},
                                               {"TARVEX", "ButtonColor", "1"},
                                               {"New", "Key", "v"}});
    ProfileWrites expected = {{"TARVEX", "titlecolor", "255"}, {"TARVEX", "MyOwnKey", "kept"},
                              {"TARVEX", "ButtonColor", "1"},  {"Other", "Keep", "this"},
                              {"New", "Key", "v"}};
    EXPECT_EQ(merged, expected);
}

TEST(SettingsFileMerge, ApplyWritesTheSoundsAndStartupHotspotsAfterTheCatalogue) {
    SettingsRec settings;
    settings.SoundFx[6] = "rotate.wav";
    settings.GenStartupHotspot[9] = 3;
    ProfileWrites writes = PreferencesWrites(settings);
    ASSERT_EQ(writes.size(), SaveSettings(settings, false).size() + 17);
    EXPECT_EQ(writes[writes.size() - 11], (ProfileWrite{"TARVEX", "SoundFx6", "rotate.wav"}));
    EXPECT_EQ(writes.back(), (ProfileWrite{"TARVEX", "GenStartupHotspot9", "3"}));
}
