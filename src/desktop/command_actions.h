// What each internal command code does, as plain data the shell carries out: the key
// combinations it simulates, the session it ends and how, the windows it shows or hides,
// the folder it opens, the drive it ejects; and the texts of its questions and failures.
#pragma once

#include "core/exit_rules.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CommandActions {

enum class Kind {
    Keys,           // simulate a shell key combination
    Session,        // log out, restart or shut down
    ExitProgram,    // the program's own exit, with its question
    Preferences,    // the preferences window
    Help,           // the help page
    Taskbar,        // the shell's taskbar window
    DesktopIcons,   // the desktop's icons window
    SystrayCopy,    // the program's copy of the notification area
    TaskListWindow, // the program's task list window
    TaskManagement, // the program's own task management
    CdDoor,         // the CD door, through the multimedia command strings
    ScreenSaver,
    HangUp, // every dial-up connection
    SpecialFolder,
    Eject,
    NotImplemented,
};

enum class Visibility { Show, Hide, Toggle };

enum class SessionMode { LogOut = 0, Restart = 1, Shutdown = 2 };

enum class SpecialFolder { DialUpNetwork, MyComputer, NetworkNeighbourhood, Internet, Desktop };

struct KeyStroke {
    std::uint8_t key = 0; // virtual key code
    bool up = false;
    bool operator==(const KeyStroke&) const = default;
};

struct Action {
    Kind kind = Kind::NotImplemented;
    std::vector<KeyStroke> keys;                 // Keys
    SessionMode mode = SessionMode::LogOut;      // Session
    std::string label;                           // Session: asks first when not empty
    Visibility visibility = Visibility::Toggle;  // Taskbar ... TaskManagement
    SpecialFolder folder = SpecialFolder::MyComputer;
    bool doorOpen = false; // CdDoor
    char drive = 0;        // Eject: 'A' to 'Z'
};

Action ActionOf(std::int16_t code);

// Whether a window that shows or not now is to be shown.
bool ShowWindowFor(Visibility visibility, bool visibleNow);

// The multimedia command string that opens or closes the CD door.
std::string_view CdDoorCommand(bool open);

// "Are you sure you want to " + the label + "?"
std::string SessionQuestion(std::string_view label);
inline constexpr std::string_view kSessionQuestionTitle = "Tarvex";

// What runs before the session ends, in order: the desktop put back as it was (each only
// where the program changed it) and the program's icon taken away; for restart and shut
// down on the platform with privileges, the shutdown privilege; then the end itself.
enum class SessionStep { PutBackTaskbar, ShowTaskbar, ShowDesktopIcons, RemoveTrayIcon, EnableShutdownPrivilege, EndSession };
std::vector<SessionStep> SessionSteps(const ExitRules::DesktopChanges& changes, bool showInTray, SessionMode mode,
                                      bool isNT);

// The flags of the system's exit-session call: log off 0; reboot 2; power off 8 with
// GenATXShutdown, else shut down 1; the force flag 4 with GenForceShutdown, never when
// logging off.
std::uint32_t SessionFlags(SessionMode mode, bool atxShutdown, bool forceShutdown);

inline constexpr std::string_view kMessageTitle = "Tarvex Warning";
inline constexpr std::string_view kNotImplemented = "Sorry, this Internal Command is not yet implemented...";
std::string EjectFailedMessage(char drive);
std::string HelpMissingMessage(std::intptr_t errorCode);
inline constexpr std::string_view kHelpPage = "Tarvex.htm";

} // namespace CommandActions
