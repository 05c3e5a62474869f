// What the program's exit does, and in which order: the question, then undoing what
// the program changed on the desktop (only what it changed), then taking itself down.
#pragma once

#include "core/message_box.h"

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
};

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

} // namespace ExitRules
