// What start-up decides: the words of the command line, the program folder, the
// folders to create, whether the preferences open, which hotspots open at once, and
// what a message from the tray icon asks for. The shell carries the answers out.
#pragma once

#include "core/program_values.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace StartupRules {

struct CommandLineWords {
    bool autostart = false;
    bool setup = false;
    bool operator==(const CommandLineWords&) const = default;
};

// The words are found anywhere in the lower-cased arguments, so "/AUTOSTART" counts.
CommandLineWords FindCommandLineWords(std::string_view arguments);

// The folder part of a file's path, without the last backslash.
std::string FolderOfFile(std::string_view path);

// Started by the autostart entry, the current directory is unrelated to the program,
// so the executable's folder is taken; started by hand, the current directory is.
std::string ChooseProgramFolder(const CommandLineWords& words, std::string_view exeFolder,
                                std::string_view currentDirectory);

// Folders that start-up creates; the help folder ships with the program and is not one.
std::vector<std::string> FoldersToCreate(const ProgramValues& values);

enum class PreferencesAtStart { None, FirstRun, Setup };

// A missing settings file means a first run, which comes before the "setup" word.
PreferencesAtStart ChoosePreferencesAtStart(bool settingsFileExists, const CommandLineWords& words);

// The start-up hotspot entries to open, in entry order: those from 0 to noOfHotSpots.
std::vector<int> StartupHotspotsToOpen(std::span<const std::int16_t> entries, int noOfHotSpots);

inline constexpr int kTrayDoubleClick = 515;   // left button double click
inline constexpr int kTrayRightButtonUp = 517; // right button up

enum class TrayAction { None, ChoosePreferences, PopUpMenu };

TrayAction TrayCallbackAction(int mouseMessage);

// The warning when the first run cannot leave its settings file behind.
std::string SettingsNotWrittenMessage(std::string_view settingsFile);

// Screen measures: twips per pixel at a number of dots per inch, a twips length in
// pixels, and a font height in pixels as points. Results are rounded.
std::int16_t TwipsPerPixel(int dotsPerInch);
int TwipsToPixels(int twips, int twipsPerPixel);
std::int16_t FontPointSize(int height, int dotsPerInch);

} // namespace StartupRules
