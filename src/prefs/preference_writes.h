// What applying the preferences writes into the settings file: the catalogue's keys in
// their order, then the seven sound events and the ten start-up hotspots, which the
// sound and general pages own.
#pragma once

#include "core/profile.h"
#include "core/settings.h"

namespace Preferences {

ProfileWrites PreferencesWrites(const SettingsRec& settings);

} // namespace Preferences
