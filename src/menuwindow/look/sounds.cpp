#include "menuwindow/look/sounds.h"

#include "core/text.h"
#include "menuwindow/look/program_relative.h"

namespace MenuWindow {

const std::string& EventSoundFile(const SoundFiles& soundFx, SoundEvent event) {
    return soundFx[static_cast<std::size_t>(event)];
}

std::string_view OpenMenuSoundFile(const SoundFiles& soundFx, std::string_view hotspotSoundPath,
                                   std::string_view menuSoundPath) {
    if (!hotspotSoundPath.empty())
        return hotspotSoundPath;
    if (!menuSoundPath.empty())
        return menuSoundPath;
    return EventSoundFile(soundFx, SoundEvent::OpenMenu);
}

std::string MediaSoundCloseCommand() {
    std::string command = "close ";
    command += kMediaSoundAlias;
    return command;
}

SoundPlay ChooseSoundPlay(std::string_view path, const SoundConditions& conditions) {
    SoundPlay play;
    if (!conditions.soundAvailable || path.empty() || conditions.GenSoundsOn == 0)
        return play;
    std::string file = ResolveProgramRelative(path, conditions.programFolder);
    if (Text::ToUpper(path).find(".MID") == std::string::npos) {
        play.action = SoundAction::Wave;
        play.waveFile = std::move(file);
        return play;
    }
    // Quoted, as a path may hold blanks; a Windows path cannot hold a quote itself.
    std::string open = "open \"";
    open += file;
    open += "\" alias ";
    open += kMediaSoundAlias;
    std::string start = "play ";
    start += kMediaSoundAlias;
    play.action = SoundAction::Media;
    play.mciCommands = {MediaSoundCloseCommand(), std::move(open), std::move(start)};
    return play;
}

} // namespace MenuWindow
