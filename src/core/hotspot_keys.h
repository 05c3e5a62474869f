// The keys of the hotspots in section [TARVEX]: "HotSpot" + the last digit of the index +
// the field's suffix ("HotSpot1x1", "HotSpot3MouseButton"). One digit names the index, so
// only hotspots 0 to 9 survive a save and a load: index 10 is written over index 0.
#pragma once

#include "core/profile.h"
#include "core/settings.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

// Appends the keys of every hotspot, fields in record order, after the NoOfHotSpots write.
void WriteHotSpotKeys(const std::vector<HotspotRec>& hotSpots, ProfileWrites& writes);

// A hotspot's menu dropped in a new place: its top and left, in pixels, under
// "HotSpot" + the index's last digit + "MenuTop" / "MenuLeft", so that it opens there next time.
ProfileWrites HotSpotPlaceWrites(std::size_t index, int left, int top);

// Gathers the hotspot keys of a section, entry by entry.
class HotSpotKeyReader {
public:
    static constexpr std::size_t kIndexes = 10;
    static constexpr std::size_t kFields = 28;

    // False when the key is not a hotspot key. A key whose index or field is unknown is a
    // hotspot key that stores nothing; the first occurrence of a key wins.
    bool Read(std::string_view key, std::string_view value);

    // Hotspots 0..noOfHotSpots as read; at most the ten that one digit can name, none when
    // noOfHotSpots is negative.
    std::vector<HotspotRec> Records(int noOfHotSpots) const;

private:
    std::array<HotspotRec, kIndexes> records_{};
    std::array<std::array<bool, kFields>, kIndexes> taken_{};
};
