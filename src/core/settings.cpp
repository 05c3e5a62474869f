#include "core/settings.h"

#include "core/hotspot_keys.h"
#include "core/setting_values.h"
#include "core/settings_catalogue.h"
#include "core/text.h"
#include "core/user_task_keys.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

namespace {

using ListCount = std::optional<int>;

// Reads the entries of one section into settings. A key takes the value of its first entry
// only: the profile functions that the rest of the program uses, and the one that saving
// uses to overwrite a key, all see the first of duplicate keys.
class SettingsLoader {
public:
    SettingsLoader(SettingsRec& settings, bool themeOnly) : settings_(settings), themeOnly_(themeOnly) {}

    void Read(std::string_view key, std::string_view value) {
        if (ReadCatalogueKey(key, value) || themeOnly_)
            return;
        if (ReadNumberedKey(key, value) || hotSpots_.Read(key, value))
            return;
        userTasks_.Read(key, value);
    }

    void Finish() {
        if (themeOnly_)
            return;
        settings_.HotSpots = hotSpots_.Records(hotSpotCount_.value_or(0));
        settings_.UserTasks = userTasks_.Records(userTaskCount_.value_or(0));
    }

private:
    bool ReadCatalogueKey(std::string_view key, std::string_view value) {
        std::span<const SettingDef> catalogue = SettingsCatalogue();
        for (std::size_t i = 0; i < catalogue.size(); ++i) {
            const SettingDef& def = catalogue[i];
            if (!Text::EqualsIgnoreCase(key, def.name))
                continue;
            if ((def.theme || !themeOnly_) && !taken_[i]) {
                taken_[i] = true;
                Store(def, value);
            }
            return true;
        }
        return false;
    }

    void Store(const SettingDef& def, std::string_view text) {
        std::visit(
            [&](auto member) {
                auto& value = settings_.*member;
                using Value = std::remove_cvref_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, bool>)
                    value = SettingValues::ReadBool(text);
                else if constexpr (std::is_same_v<Value, std::int16_t>)
                    value = SettingValues::ReadInt16(text).value_or(value);
                else if constexpr (std::is_same_v<Value, std::int32_t>)
                    value = (def.type == SettingType::Color ? SettingValues::ReadColor(text)
                                                            : SettingValues::ReadInt32(text))
                                .value_or(value);
                else if constexpr (std::is_same_v<Value, std::string>)
                    value = std::string(text);
                else if constexpr (std::is_same_v<Value, std::vector<HotspotRec>>)
                    hotSpotCount_ = SettingValues::ReadInt16(text).value_or(0);
                else
                    userTaskCount_ = SettingValues::ReadInt32(text).value_or(0);
            },
            def.field);
    }

    // SoundFx0..6 and GenStartupHotspot0..9: the stem, then the index in the last character.
    bool ReadNumberedKey(std::string_view key, std::string_view value) {
        if (Text::StartsWithIgnoreCase(key, "SoundFx")) {
            std::optional<std::size_t> index = SettingValues::LastDigitIndex(key, settings_.SoundFx.size());
            if (index && !soundTaken_[*index]) {
                soundTaken_[*index] = true;
                settings_.SoundFx[*index] = std::string(value);
            }
            return true;
        }
        if (Text::StartsWithIgnoreCase(key, "GenStartupHotspot")) {
            std::optional<std::size_t> index = SettingValues::LastDigitIndex(key, settings_.GenStartupHotspot.size());
            if (index && !startupTaken_[*index]) {
                startupTaken_[*index] = true;
                std::int16_t& entry = settings_.GenStartupHotspot[*index];
                entry = SettingValues::ReadInt16(value).value_or(entry);
            }
            return true;
        }
        return false;
    }

    SettingsRec& settings_;
    bool themeOnly_;
    std::vector<bool> taken_ = std::vector<bool>(SettingsCatalogue().size());
    std::array<bool, 7> soundTaken_{};
    std::array<bool, 10> startupTaken_{};
    HotSpotKeyReader hotSpots_;
    UserTaskKeyReader userTasks_;
    ListCount hotSpotCount_;
    ListCount userTaskCount_;
};

void ResetLookKeys(SettingsRec& settings) {
    const SettingsRec defaults;
    for (const SettingDef& def : SettingsCatalogue()) {
        if (!def.theme)
            break;
        std::visit([&](auto member) { settings.*member = defaults.*member; }, def.field);
    }
}

} // namespace

void LoadSettings(const ProfileSection& section, bool themeOnly, SettingsRec& settings) {
    if (themeOnly)
        ResetLookKeys(settings);
    else
        settings = SettingsRec();
    SettingsLoader loader(settings, themeOnly);
    for (const ProfileEntry& entry : section)
        loader.Read(entry.key, entry.value);
    loader.Finish();
}

ProfileWrites SaveSettings(const SettingsRec& settings, bool themeOnly) {
    ProfileWrites writes;
    for (const SettingDef& def : SettingsCatalogue()) {
        if (themeOnly && !def.theme)
            break;
        std::visit(
            [&](auto member) {
                const auto& value = settings.*member;
                using Value = std::remove_cvref_t<decltype(value)>;
                std::string key(def.name);
                if constexpr (std::is_same_v<Value, bool>) {
                    writes.push_back({kSettingsSection, key, Text::BoolWord(value)});
                } else if constexpr (std::is_same_v<Value, std::string>) {
                    writes.push_back({kSettingsSection, key, value});
                } else if constexpr (std::is_same_v<Value, std::vector<HotspotRec>>) {
                    writes.push_back({kSettingsSection, key, SettingValues::WriteNumber(settings.NoOfHotSpots())});
                    WriteHotSpotKeys(value, writes);
                } else if constexpr (std::is_same_v<Value, std::vector<UserTaskRec>>) {
                    writes.push_back({kSettingsSection, key, SettingValues::WriteNumber(settings.NoOfUserTasks())});
                    WriteUserTaskKeys(value, writes);
                } else {
                    writes.push_back({kSettingsSection, key, SettingValues::WriteNumber(value)});
                }
            },
            def.field);
    }
    return writes;
}
