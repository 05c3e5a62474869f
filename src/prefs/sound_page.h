// The words of the sound page: the seven events by their names, in the order of
// SoundFx0 to SoundFx6, the files it offers, and the question before clearing them all.
#pragma once

#include <array>
#include <string_view>

namespace Preferences {

inline constexpr std::array<std::string_view, 7> kSoundEventNames = {
    "Open Menu",      "Close Menu",         "Execute Item", "Roll Menu Up",
    "Roll Menu Down", "Menu Always on Top", "Rotate Menu"};

// The buttons under the list of events.
inline constexpr std::array<std::string_view, 4> kSoundButtons = {"&Browse...", "&Play", "Re&move", "&Clear All"};

inline constexpr std::string_view kSoundFilePatterns = "*.wav *.mid";
inline constexpr std::string_view kClearSoundsQuestion = "Warning! This will clear ALL sound events! Are you sure?";

} // namespace Preferences
