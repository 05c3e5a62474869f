// PlaySoundFile: plays one sound file as the core decides (a wave through PlaySoundW, a
// MIDI file through the media control interface), never waiting for it and never
// reporting a failure.
#pragma once

#include "menuwindow/look/sounds.h"

#include <string_view>

namespace MenuWindow {

void PlaySoundFile(std::string_view path, const SoundConditions& conditions);

// Whether the machine has a wave output device, counted once on the first call.
bool WaveDeviceAvailable();

} // namespace MenuWindow
