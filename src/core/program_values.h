// The values that start-up works out once and every part of the program reads: the
// program's folders and files, facts about the system, and two flags that keep the
// preferences and the exit question from being opened twice.
#pragma once

#include "core/program_folders.h"

#include <cstdint>
#include <string>
#include <string_view>

inline constexpr std::string_view kProgramTitle = "Tarvex 2.0";

// The caption font of window title bars, as the system reports it.
struct CaptionFont {
    std::string Name; // face name
    bool Bold = false;
    bool Italic = false;
    std::int16_t Size = 0; // points
    bool operator==(const CaptionFont&) const = default;
};

struct ProgramValues {
    std::string ProgramTitle;
    std::string ProgramFolder;                      // never ends with a backslash
    std::string SettingsFileName = "\\Helmora.ini"; // appended to ProgramFolder where used
    std::string MenuFileName = "\\TvMenus.ini";     // likewise
    std::string ThemesFolder;
    std::string HelpFolder;
    std::string AutoInstallFolder;
    std::string ExportFolder;
    std::string WindowsFolder;
    std::string SystemFolder;
    bool IsNT = false;
    bool SoundAvailable = false;
    CaptionFont SystemCaptionFont;
    std::int16_t TwipsPerPixelX = 15;
    std::int16_t TwipsPerPixelY = 15;
    ProgramFolders ShellFolders; // the shell's program-menu and desktop folders, read with the settings
    bool PreferencesOpen = false;
    bool ExitQuestionShowing = false;
};

// Sets the program folder and the file and folder names that hang off it.
void SetProgramFolder(ProgramValues& values, std::string_view folder);

std::string SettingsFile(const ProgramValues& values);
std::string MenuFile(const ProgramValues& values);
