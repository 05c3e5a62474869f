#include "menuwindow/look/sounds.h"

#include "core/settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace MenuWindow;

namespace {

SoundConditions SoundsOn() {
    return {true, -1, "C:\\Tarvex"};
}

SoundFiles NumberedFiles() {
    SoundFiles files;
    for (std::size_t i = 0; i < files.size(); ++i)
        files[i] = "fx" + std::to_string(i) + ".wav";
    return files;
}

} // namespace

TEST(OpenMenuSound, HotspotThenMenuThenTheEventsFile) {
    SoundFiles files = NumberedFiles();
    EXPECT_EQ(OpenMenuSoundFile(files, "hot.wav", "menu.wav"), "hot.wav");
    EXPECT_EQ(OpenMenuSoundFile(files, "", "menu.wav"), "menu.wav");
    EXPECT_EQ(OpenMenuSoundFile(files, "", ""), "fx0.wav");
    files[0].clear();
    EXPECT_EQ(OpenMenuSoundFile(files, "", ""), "");
    EXPECT_EQ(OpenMenuSoundFile(files, "", "menu.mid"), "menu.mid");
}

TEST(PlaySoundFile, NothingWithoutDevicePathOrSwitch) {
    EXPECT_EQ(ChooseSoundPlay("C:\\a.wav", {false, -1, "C:\\Tarvex"}).action, SoundAction::Nothing);
    EXPECT_EQ(ChooseSoundPlay("C:\\a.wav", {true, 0, "C:\\Tarvex"}).action, SoundAction::Nothing);
    EXPECT_EQ(ChooseSoundPlay("", SoundsOn()).action, SoundAction::Nothing);
    EXPECT_EQ(ChooseSoundPlay("C:\\a.mid", {true, 0, "C:\\Tarvex"}), SoundPlay{});
    // Any non-zero value switches sounds on, not only -1.
    EXPECT_EQ(ChooseSoundPlay("C:\\a.wav", {true, 1, "C:\\Tarvex"}).action, SoundAction::Wave);
}

TEST(PlaySoundFile, WaveFilesPlayByPathRelativeToTheProgramFolder) {
    EXPECT_EQ(ChooseSoundPlay("C:\\Sounds\\ding.wav", SoundsOn()),
              (SoundPlay{SoundAction::Wave, "C:\\Sounds\\ding.wav", {}}));
    EXPECT_EQ(ChooseSoundPlay("Themes\\Aurora\\open.wav", SoundsOn()).waveFile, "C:\\Tarvex\\Themes\\Aurora\\open.wav");
    EXPECT_EQ(ChooseSoundPlay("\\\\server\\s\\x.wav", SoundsOn()).waveFile, "\\\\server\\s\\x.wav");
}

TEST(PlaySoundFile, MidiGoesThroughTheMediaControlInterface) {
    SoundPlay play = ChooseSoundPlay("C:\\My Music\\tune.mid", SoundsOn());
    EXPECT_EQ(play.action, SoundAction::Media);
    EXPECT_TRUE(play.waveFile.empty());
    EXPECT_EQ(play.mciCommands,
              (std::vector<std::string>{"close tarvexsound", "open \"C:\\My Music\\tune.mid\" alias tarvexsound",
                                        "play tarvexsound"}));
    EXPECT_EQ(MediaSoundCloseCommand(), play.mciCommands.front());
}

TEST(PlaySoundFile, MidTestedAnywhereInTheUpperCasedPath) {
    EXPECT_EQ(ChooseSoundPlay("C:\\a.MiD", SoundsOn()).action, SoundAction::Media);
    EXPECT_EQ(ChooseSoundPlay("C:\\a.midi", SoundsOn()).action, SoundAction::Media);
    EXPECT_EQ(ChooseSoundPlay("C:\\x.mid\\b.wav", SoundsOn()).action, SoundAction::Media);
    EXPECT_EQ(ChooseSoundPlay("C:\\amid.wav", SoundsOn()).action, SoundAction::Wave);
    EXPECT_EQ(ChooseSoundPlay("tune.mid", SoundsOn()).mciCommands.at(1),
              "open \"C:\\Tarvex\\tune.mid\" alias tarvexsound");
}
