#include "prefs/preference_writes.h"

#include "core/setting_values.h"

namespace Preferences {

ProfileWrites PreferencesWrites(const SettingsRec& settings) {
    ProfileWrites writes = SaveSettings(settings, false);
    for (std::size_t i = 0; i < settings.SoundFx.size(); ++i)
        writes.push_back({kSettingsSection, "SoundFx" + std::string(1, SettingValues::IndexDigit(i)), settings.SoundFx[i]});
    for (std::size_t i = 0; i < settings.GenStartupHotspot.size(); ++i)
        writes.push_back({kSettingsSection, "GenStartupHotspot" + std::string(1, SettingValues::IndexDigit(i)),
                          SettingValues::WriteNumber(settings.GenStartupHotspot[i])});
    return writes;
}

} // namespace Preferences
