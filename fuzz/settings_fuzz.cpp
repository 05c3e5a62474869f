// The settings loader: the input's lines are a [TARVEX] section. What the preferences
// write of the loaded record loads back to the same record; the first of duplicate keys
// wins; a theme file's load reads the look keys alone and leaves the others as they were.
#include "fuzz_support.h"

#include "core/settings.h"
#include "prefs/preference_writes.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using Fuzz::Require;

// What the preferences write after the look keys: the general keys, hotspots, user
// tasks, sounds and start-up hotspots.
ProfileWrites GeneralWrites(const SettingsRec& settings) {
    ProfileWrites writes = Preferences::PreferencesWrites(settings);
    writes.erase(writes.begin(), writes.begin() + static_cast<std::ptrdiff_t>(SaveSettings(settings, true).size()));
    return writes;
}

// A record far from the defaults, so that a load which forgets to reset a field shows.
SettingsRec Stale() {
    SettingsRec stale;
    stale.TitleFont = "stale";
    stale.GenHotKey = 1;
    stale.SoundFx[2] = "stale.wav";
    stale.GenStartupHotspot[4] = 4;
    stale.HotSpots.resize(4);
    stale.UserTasks.resize(2);
    return stale;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ProfileSection section = Fuzz::SectionOf(std::string_view(reinterpret_cast<const char*>(data), size));

    SettingsRec loaded = Stale();
    LoadSettings(section, false, loaded);
    const ProfileWrites written = Preferences::PreferencesWrites(loaded);
    const ProfileSection file = Fuzz::SectionOf(written, kSettingsSection);

    SettingsRec reloaded = Stale();
    LoadSettings(file, false, reloaded);
    Require(reloaded == loaded, "the written settings load back to the same record");

    ProfileSection both = file;
    both.insert(both.end(), section.begin(), section.end());
    SettingsRec first = Stale();
    LoadSettings(both, false, first);
    Require(first == loaded, "the first of duplicate keys wins");

    SettingsRec themed = Stale();
    LoadSettings(section, true, themed);
    const ProfileWrites look = SaveSettings(themed, true);
    Require(look == SaveSettings(loaded, true), "a theme file's look keys read as a settings file's do");
    Require(GeneralWrites(themed) == GeneralWrites(Stale()), "a theme file leaves the general keys as they were");

    SettingsRec lookOnly;
    LoadSettings(Fuzz::SectionOf(look, kSettingsSection), true, lookOnly);
    Require(SaveSettings(lookOnly, true) == look, "a saved theme loads back to the same look");
    return 0;
}
