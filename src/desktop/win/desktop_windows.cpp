#include "desktop/win/desktop_windows.h"

#include "core/message_box.h"
#include "core/win/ini_handler.h"
#include "core/win/profile_rewrite.h"
#include "win/text_convert.h"

namespace DesktopWindows {

namespace {

// Shows or hides the window and notes whether it is now hidden by the program.
void SetShown(HWND window, CommandActions::Visibility visibility, bool& hiddenByProgram, const Program& program) {
    if (!window)
        return;
    bool show = CommandActions::ShowWindowFor(visibility, ::IsWindowVisible(window) != FALSE);
    ::ShowWindow(window, show ? SW_SHOW : SW_HIDE);
    hiddenByProgram = !show;
    RecordChanges(program);
}

std::string ChangesFile(const Program& program) {
    std::string file = program.values.ProgramFolder;
    file += '\\';
    file += ExitRules::kChangesFile;
    return file;
}

// The notification area that an earlier run took into its own window: if it outlived
// that window, it goes back into the taskbar with the shell's clock showing; if not,
// the user learns why the taskbar has lost it.
void TakeBackNotifyArea() {
    HWND taskbar = Taskbar();
    if (!taskbar || ::FindWindowExW(taskbar, nullptr, L"TrayNotifyWnd", nullptr))
        return;
    HWND notify = ::FindWindowW(L"TrayNotifyWnd", nullptr);
    if (!notify) {
        MessageBoxes::MsgBox(ExitRules::kNotifyAreaLost, ExitRules::kTitle, MessageBoxes::kExclamation);
        return;
    }
    ::SetParent(notify, taskbar);
    if (HWND clock = ::FindWindowExW(notify, nullptr, L"TrayClockWClass", nullptr))
        ::ShowWindow(clock, SW_SHOW);
}

} // namespace

HWND Taskbar() {
    return ::FindWindowW(L"Shell_traywnd", nullptr);
}

HWND DesktopIcons() {
    return ::FindWindowW(L"Progman", L"Program Manager");
}

void SetTaskbar(CommandActions::Visibility visibility, Program& program) {
    SetShown(Taskbar(), visibility, program.desktopChanges.TaskbarHidden, program);
}

void SetDesktopIcons(CommandActions::Visibility visibility, Program& program) {
    SetShown(DesktopIcons(), visibility, program.desktopChanges.DesktopIconsHidden, program);
}

void RecordChanges(const Program& program) {
    if (program.values.ProgramFolder.empty())
        return; // before start-up knows its folder
    std::string file = ChangesFile(program);
    ProfileWrites writes = ExitRules::ChangesWrites(program.desktopChanges);
    if (writes.empty())
        ::DeleteFileW(Win::Widen(file).c_str());
    else
        ProfileRewrite::Rewrite(file, writes);
}

void PutBackLeftChanges(Program& program) {
    ExitRules::DesktopChanges left =
        ExitRules::ChangesFrom(IniHandler::ReadWholeSection(ExitRules::kChangesSection, ChangesFile(program)));
    for (ExitRules::ExitStep step : ExitRules::PutBackSteps(left)) {
        switch (step) {
        case ExitRules::ExitStep::PutBackTaskbar:
            TakeBackNotifyArea();
            break;
        case ExitRules::ExitStep::ShowTaskbar:
            SetTaskbar(CommandActions::Visibility::Show, program);
            break;
        case ExitRules::ExitStep::ShowDesktopIcons:
            SetDesktopIcons(CommandActions::Visibility::Show, program);
            break;
        default:
            break;
        }
    }
    RecordChanges(program);
}

} // namespace DesktopWindows
