#include "menuwindow/win/play_sound.h"

#include "win/text_convert.h"

#include <windows.h>

#include <mmsystem.h>

namespace MenuWindow {

namespace {

void SendMediaCommand(const std::string& command) {
    ::mciSendStringW(Win::Widen(command).c_str(), nullptr, 0, nullptr);
}

// Made with the first media sound, so that the program's end closes the alias it plays under.
class MediaAlias {
public:
    MediaAlias() = default;
    MediaAlias(const MediaAlias&) = delete;
    MediaAlias& operator=(const MediaAlias&) = delete;
    ~MediaAlias() { SendMediaCommand(MediaSoundCloseCommand()); }
};

} // namespace

bool WaveDeviceAvailable() {
    static const bool available = ::waveOutGetNumDevs() >= 1;
    return available;
}

void PlaySoundFile(std::string_view path, const SoundConditions& conditions) {
    SoundPlay play = ChooseSoundPlay(path, conditions);
    switch (play.action) {
    case SoundAction::Nothing:
        break;
    case SoundAction::Wave:
        ::PlaySoundW(Win::Widen(play.waveFile).c_str(), nullptr, SND_ASYNC | SND_FILENAME | SND_NODEFAULT);
        break;
    case SoundAction::Media: {
        static MediaAlias alias;
        for (const std::string& command : play.mciCommands)
            SendMediaCommand(command);
        break;
    }
    }
}

} // namespace MenuWindow
