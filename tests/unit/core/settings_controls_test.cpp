// The preferences controls of the catalogue: what the table cannot check by itself at
// compile time, because it needs the pages' groups or looks across rows.
#include "core/settings_catalogue.h"
#include "prefs/hotspot_fields.h"
#include "prefs/menu_editor.h"
#include "prefs/preference_pages.h"
#include "prefs/sound_page.h"
#include "prefs/themes_page.h"
#include "prefs/user_tasks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

// The keys without a control of their own. Listed by hand so that no key loses its control
// unnoticed: set by another key's control (the font buttons, the hot key), kept for pages
// still to come (themes, user tasks, hotspots), or read by nothing.
const std::set<std::string_view> kWithoutControl = {
    "TitleFontSize", "TitleFontColor", "TitleFontBold", "TitleFontItalic", "ButtonFontSize",
    "ButtonFontColor", "ButtonFontBold", "ButtonFontItalic", "GenShiftHotKey", "GenThemeAuthor",
    "GenThemeName", "SysTileWallpaper", "GenUnzipAlwaysOverwrite", "NoOfUserTasks", "NoOfHotSpots",
    "HorzAutoRotate", "GenShowTooltips", "GenRightClick", "GenMiddleClick", "GenDblClick", "BrowserIconType"};

// Groups that the page fills itself rather than with catalogue keys.
const std::set<std::pair<PrefPage, std::string_view>> kGroupsOfTheirOwn = {{PrefPage::SoundAnimation, "Sounds"},
                                                                         {PrefPage::Hotspots, "Hotspots"},
                                                                         {PrefPage::TasklistSystray, "User tasks"},
                                                                         {PrefPage::MenuEditor, "Menus"},
                                                                         {PrefPage::Themes, "Themes"}};

bool Shown(const SettingDef& def) {
    return def.control.kind != ControlKind::None;
}

std::string Visible(std::string_view label) {
    std::string text(label);
    std::erase(text, '&');
    return text;
}

} // namespace

TEST(SettingsControls, FindSettingTakesTheExactSpelling) {
    for (const SettingDef& def : SettingsCatalogue())
        EXPECT_EQ(FindSetting(def.name), &def) << def.name;
    for (std::string_view missing : {"titlecolor", "TitleColour", "", "SoundFx0"})
        EXPECT_EQ(FindSetting(missing), nullptr) << missing;
}

TEST(SettingsControls, EveryKeyHasAControlExceptTheListedOnes) {
    for (std::string_view name : kWithoutControl)
        EXPECT_NE(FindSetting(name), nullptr) << name;
    for (const SettingDef& def : SettingsCatalogue())
        EXPECT_EQ(Shown(def), !kWithoutControl.contains(def.name)) << def.name;
}

TEST(SettingsControls, EveryControlStandsInAGroupOfItsPageAndNoGroupStaysEmpty) {
    std::set<std::pair<PrefPage, std::string_view>> used;
    for (const SettingDef& def : SettingsCatalogue()) {
        if (!Shown(def))
            continue;
        auto groups = Preferences::PageOf(def.control.page).groups;
        EXPECT_NE(std::find(groups.begin(), groups.end(), def.control.group), groups.end())
            << def.name << " in " << def.control.group;
        used.emplace(def.control.page, def.control.group);
    }
    for (const Preferences::PageDef& page : Preferences::Pages())
        for (std::string_view group : page.groups)
            EXPECT_TRUE(used.contains({page.page, group}) || kGroupsOfTheirOwn.contains({page.page, group}))
                << page.title << ": " << group;
}

// A mnemonic is one '&' before a letter or digit, used once on its page: a second use would
// make Alt+letter stop at the first control only; the window's buttons are on every page,
// and the pages that make their own controls (sounds, menus, hotspots, user tasks) name them in core. Labels in one group must differ to be told apart.
TEST(SettingsControls, LabelsAreDistinctAndMnemonicsUniquePerPage) {
    std::map<std::pair<PrefPage, char>, std::string_view> mnemonics;
    auto reserve = [&](PrefPage page, std::span<const std::string_view> buttons) {
        for (std::string_view button : buttons)
            if (std::size_t amp = button.find('&'); amp != std::string_view::npos) {
                auto [it, fresh] =
                    mnemonics.emplace(std::pair{page, static_cast<char>(std::tolower(button[amp + 1]))}, button);
                EXPECT_TRUE(fresh) << button << " and " << it->second << " share a mnemonic";
            }
    };
    for (const Preferences::PageDef& page : Preferences::Pages())
        reserve(page.page, Preferences::kWindowButtons);
    reserve(PrefPage::SoundAnimation, Preferences::kSoundButtons);
    reserve(PrefPage::MenuEditor, MenuEditor::kButtons);
    reserve(PrefPage::Themes, Preferences::kThemeLabels);
    reserve(PrefPage::Themes, std::array{Preferences::kImportLabel});
    reserve(PrefPage::Hotspots, Preferences::kHotspotFieldLabels);
    reserve(PrefPage::Hotspots, Preferences::kHotspotButtons);
    reserve(PrefPage::TasklistSystray, Preferences::kUserTaskLabels);
    std::set<std::tuple<PrefPage, std::string_view, std::string>> labels;
    for (const SettingDef& def : SettingsCatalogue()) {
        if (!Shown(def))
            continue;
        const PrefControl& control = def.control;
        EXPECT_TRUE(labels.emplace(control.page, control.group, Visible(control.label)).second)
            << def.name << ": " << control.label;
        std::size_t amp = control.label.find('&');
        if (amp == std::string_view::npos)
            continue;
        ASSERT_LT(amp + 1, control.label.size()) << def.name;
        char letter = control.label[amp + 1];
        EXPECT_TRUE(std::isalnum(static_cast<unsigned char>(letter))) << def.name << ": " << control.label;
        EXPECT_EQ(control.label.find('&', amp + 1), std::string_view::npos) << def.name << ": " << control.label;
        auto [it, fresh] =
            mnemonics.emplace(std::pair{control.page, static_cast<char>(std::tolower(letter))}, def.name);
        EXPECT_TRUE(fresh) << def.name << " and " << it->second << " share '" << letter << "'";
    }
}

TEST(SettingsControls, KeysOfListsEachShownKeyOnceInCatalogueOrder) {
    const auto catalogue = SettingsCatalogue();
    std::size_t listed = 0;
    for (const Preferences::PageDef& page : Preferences::Pages()) {
        for (std::string_view group : page.groups) {
            std::vector<const SettingDef*> keys = Preferences::KeysOf(page.page, group);
            EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end())) << page.title << ": " << group;
            for (const SettingDef* key : keys)
                EXPECT_TRUE(key->control.page == page.page && key->control.group == group) << key->name;
            listed += keys.size();
        }
    }
    EXPECT_EQ(listed, static_cast<std::size_t>(std::count_if(catalogue.begin(), catalogue.end(), Shown)));
}
