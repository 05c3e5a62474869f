// What the launcher decides before it calls the shell: whether a path is a control-panel
// applet and the command line that starts one, the folder a program starts in, the show
// command of a RUNSTATE, the error box of a failed start, and how a command value names
// an internal command or a command line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace LaunchRules {

// A path ending in ".cpl" (any case) is an applet, unless it already holds "rundll32",
// in which case it is started like any other file.
bool IsControlPanelApplet(std::string_view path);

// "rundll32.exe shell32.dll,Control_RunDLL " followed directly by the applet's path.
std::string AppletCommandLine(std::string_view path);

// The folder a program starts in: the item's own when it names one, else the folder
// part of the path up to and including its last backslash, else "\" alone.
std::string StartFolderFor(std::string_view startFolder, std::string_view path);

// RUNSTATE 0 normal, 1 minimised, 2 maximised, as the show command 1, 2 or 3.
int ShowCommandFor(int runState);

// Whether the shell can be asked to start a path at all: a file's path fits in MAX_PATH
// (259 characters), an address (a "scheme://" path) in the 2083 of an Internet address.
// A longer path is reported as kFileNotFound without asking the shell, which some
// versions of it do not survive.
bool PathFitsTheShell(std::string_view path);
inline constexpr std::intptr_t kFileNotFound = 2;

// The shell's start functions report success with a result above 32.
bool StartFailed(std::intptr_t result);

// The verb of the second attempt, after the file type's default action failed.
inline constexpr std::string_view kSecondVerb = "open";

// The box shown when both attempts failed: its title names the entry, its text says
// why, ending in a full stop.
std::string ErrorTitle(std::string_view label);
std::string ErrorText(std::intptr_t result);

// A command value is "*" and a number, an internal command, or a command line. The
// number is read from the text after the "*" as numbers in profile values are ("*12"
// is 12, a lone "*" and "*abc" are 0) and rounded to a 16-bit integer; code is empty
// when it does not fit one.
struct CommandValue {
    bool internal = false;
    std::optional<std::int16_t> code; // internal: the command's code
    std::string commandLine;          // otherwise: the value as it is
    bool operator==(const CommandValue&) const = default;
};
CommandValue ParseCommandValue(std::string_view value);

} // namespace LaunchRules
