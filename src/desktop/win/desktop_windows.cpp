#include "desktop/win/desktop_windows.h"

namespace DesktopWindows {

namespace {

// Shows or hides the window and notes whether it is now hidden by the program.
void SetShown(HWND window, CommandActions::Visibility visibility, bool& hiddenByProgram) {
    if (!window)
        return;
    bool show = CommandActions::ShowWindowFor(visibility, ::IsWindowVisible(window) != FALSE);
    ::ShowWindow(window, show ? SW_SHOW : SW_HIDE);
    hiddenByProgram = !show;
}

} // namespace

HWND Taskbar() {
    return ::FindWindowW(L"Shell_traywnd", nullptr);
}

HWND DesktopIcons() {
    return ::FindWindowW(L"Progman", L"Program Manager");
}

void SetTaskbar(CommandActions::Visibility visibility, ExitRules::DesktopChanges& changes) {
    SetShown(Taskbar(), visibility, changes.TaskbarHidden);
}

void SetDesktopIcons(CommandActions::Visibility visibility, ExitRules::DesktopChanges& changes) {
    SetShown(DesktopIcons(), visibility, changes.DesktopIconsHidden);
}

} // namespace DesktopWindows
