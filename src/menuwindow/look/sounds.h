// The menu sounds: the seven events and their files, the sound a menu plays as it opens,
// and what PlaySoundFile does with a path. The shell carries the answer out with winmm
// and never waits for it; a new sound simply starts over the previous one.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace MenuWindow {

// The events in the order of SoundFx0 to SoundFx6, which is also the order in which the
// sound page lists them.
enum class SoundEvent {
    OpenMenu = 0,        // a menu window opens, from a hotspot or as a sub-menu
    CloseMenu = 1,       // closed by its close button or by the keyboard
    ExecuteItem = 2,     // an item is started
    RollMenuUp = 3,      // the roll-up button rolls the menu up to its title bar
    RollMenuDown = 4,    // and unrolls it
    MenuAlwaysOnTop = 5, // the on-top button, either way
    RotateMenu = 6,      // the rotate button
};

inline constexpr std::size_t kSoundEventCount = 7;

using SoundFiles = std::array<std::string, kSoundEventCount>;

// The file of an event; empty for none.
const std::string& EventSoundFile(const SoundFiles& soundFx, SoundEvent event);

// The sound of a menu that opens. The most particular choice wins: the SoundPath of the
// hotspot that opened it (empty for a sub-menu), then the menu's own SOUNDPATH (empty for
// a folder or task list, which have no menu record), then the Open Menu event's file.
// An empty path means "not chosen here", so it never silences a more general choice.
std::string_view OpenMenuSoundFile(const SoundFiles& soundFx, std::string_view hotspotSoundPath,
                                   std::string_view menuSoundPath);

// What PlaySoundFile depends on besides the path.
struct SoundConditions {
    bool soundAvailable = false;    // at least one wave output device, counted at start-up
    std::int16_t GenSoundsOn = 0;   // non-zero plays sounds
    std::string_view programFolder; // relative sound paths are taken against it
};

enum class SoundAction { Nothing, Wave, Media };

// Wave: play waveFile asynchronously, without the default sound when it is missing.
// Media: send mciCommands in order to the media control interface, without a return
// buffer or a callback window, ignoring their errors.
struct SoundPlay {
    SoundAction action = SoundAction::Nothing;
    std::string waveFile;
    std::vector<std::string> mciCommands;
    bool operator==(const SoundPlay&) const = default;
};

// The alias of the one media sound that plays at a time.
inline constexpr std::string_view kMediaSoundAlias = "tarvexsound";

// Nothing without a wave device, with an empty path or with sounds off. A path whose
// upper-cased form contains ".MID" anywhere goes to the media control interface: close
// the previous media sound, open this one under the alias (the device chosen by the
// file's extension) and play it. Anything else is a wave file.
SoundPlay ChooseSoundPlay(std::string_view path, const SoundConditions& conditions);

// Sent when the program ends, so that no media sound outlives it.
std::string MediaSoundCloseCommand();

} // namespace MenuWindow
