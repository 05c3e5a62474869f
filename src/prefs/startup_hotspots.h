// The start-up hotspots as the Global page shows them: one check box per hotspot, named
// as the hotspots are listed everywhere ("Default", "Hotspot 1" ...), checked when the
// start-up list names it. The list keeps its order: a hotspot checked later is opened
// after the ones already in it.
#pragma once

#include "core/settings.h"

#include <string>

namespace Preferences {

// "Default" for hotspot 0, "Hotspot N" for the others.
std::string HotspotListName(int index);

// The name with what the hotspot opens, for a check box: "Hotspot 2 (Programs)", by its
// caption, else its target.
std::string StartupHotspotLabel(const SettingsRec& settings, int index);

bool OpensAtStart(const SettingsRec& settings, int index);

// Checks or clears a hotspot. Entries that name no hotspot (negative, or past the last
// one) are dropped on the way, so that the freed places take new hotspots; the rest of
// the list is -1.
void SetOpensAtStart(SettingsRec& settings, int index, bool opens);

} // namespace Preferences
