#include "prefs/startup_hotspots.h"

#include <algorithm>
#include <ranges>
#include <vector>

namespace Preferences {

std::string HotspotListName(int index) {
    return index == 0 ? "Default" : "Hotspot " + std::to_string(index);
}

std::string StartupHotspotLabel(const SettingsRec& settings, int index) {
    std::string label = HotspotListName(index);
    if (index >= 0 && index < static_cast<int>(settings.HotSpots.size())) {
        const HotspotRec& hotspot = settings.HotSpots[static_cast<std::size_t>(index)];
        const std::string& opens = hotspot.Menuname.empty() ? hotspot.Menupath1 : hotspot.Menuname;
        if (!opens.empty())
            label += " (" + opens + ")";
    }
    return label;
}

bool OpensAtStart(const SettingsRec& settings, int index) {
    return std::ranges::find(settings.GenStartupHotspot, index) != settings.GenStartupHotspot.end();
}

void SetOpensAtStart(SettingsRec& settings, int index, bool opens) {
    std::vector<std::int16_t> kept;
    for (std::int16_t entry : settings.GenStartupHotspot)
        if (entry >= 0 && entry <= settings.NoOfHotSpots() && entry != index &&
            std::ranges::find(kept, entry) == kept.end())
            kept.push_back(entry);
    if (opens)
        kept.push_back(static_cast<std::int16_t>(index));
    settings.GenStartupHotspot.fill(-1);
    std::ranges::copy(kept | std::views::take(settings.GenStartupHotspot.size()), settings.GenStartupHotspot.begin());
}

} // namespace Preferences
