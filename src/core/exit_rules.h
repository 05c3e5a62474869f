// What the program's exit does, and in which order: the question, then undoing what
// the program changed on the desktop (only what it changed), then taking itself down.
#pragma once

#include "core/message_box.h"
#include "core/profile.h"

#include <string_view>
#include <vector>

namespace ExitRules {

inline constexpr std::string_view kQuestion = "This will shutdown Tarvex. Are you sure?";
inline constexpr std::string_view kTitle = "Tarvex";
inline constexpr int kStyle = MessageBoxes::kYesNo | MessageBoxes::kExclamation; // 52

// What the program did to the desktop while it ran; each is put back at exit.
struct DesktopChanges {
    bool TaskbarTakenOver = false;   // the taskbar moved under the program's own window
    bool TaskbarHidden = false;      // the shell's taskbar hidden
    bool DesktopIconsHidden = false; // the desktop icons hidden
    bool operator==(const DesktopChanges&) const = default;
};

// The changes stand in this file of the program folder for as long as they last, so
// that a start after a crash or a kill can put back what the run before left.
inline constexpr std::string_view kChangesFile = "DesktopChanges.ini";
inline constexpr std::string_view kChangesSection = "Changes";

// Said at the start after a run that ended with the shell's notification area inside
// its window: the area went down with that window, and only the shell can make it anew.
inline constexpr std::string_view kNotifyAreaLost =
    "The last time Tarvex ran, it ended while the notification area of the taskbar was in "
    "its systray window, and the notification area was closed with it.\n\n"
    "Sign out and in again (or restart Explorer) to get it back.";

// The file's keys: one "True" key a change. No change, no file.
ProfileWrites ChangesWrites(const DesktopChanges& changes);
// What a file left by an earlier run says; anything but "True" is no change.
DesktopChanges ChangesFrom(const ProfileSection& section);

enum class ExitStep {
    PutBackTaskbar, // the taskbar under its own parent and in its own place again
    ShowTaskbar,
    ShowDesktopIcons,
    RemoveTrayIcon,
    UnloadSystray, // the systray copy
    CloseMenuWindows,
    UnloadForms, // the other forms, then the main form last
};

// Only a Yes goes on; any other answer, a closed box included, leaves everything running.
bool ExitConfirmed(int answer);

std::vector<ExitStep> ExitSteps(const DesktopChanges& changes, bool trayIconShown);

// The first of the exit's steps: those that undo the changes.
std::vector<ExitStep> PutBackSteps(const DesktopChanges& changes);

} // namespace ExitRules
