#include "core/win/subroutines.h"

#include "core/exit_rules.h"
#include "core/message_box.h"
#include "core/win/form1.h"
#include "desktop/win/desktop_windows.h"
#include "win/text_convert.h"

#include <windows.h>

#include <string>

namespace Subroutines {

namespace {

constexpr std::string_view kUnwantedTitle = "unwanted instance";

bool AskExitQuestion(ProgramValues& values) {
    values.ExitQuestionShowing = true;
    int answer = MessageBoxes::MsgBox(ExitRules::kQuestion, ExitRules::kTitle, ExitRules::kStyle);
    values.ExitQuestionShowing = false;
    return ExitRules::ExitConfirmed(answer);
}

void CloseMenuWindows(Program& program) {
    program.openMenus.CloseAll();
}

// The issues that bring further forms fill this: they unload them before the main form.
void UnloadOtherForms() {}

void RunExitStep(Form1& form1, ExitRules::ExitStep step) {
    switch (step) {
    case ExitRules::ExitStep::PutBackTaskbar:
        form1.taskbarReplacement().PutBackTray();
        break;
    case ExitRules::ExitStep::ShowTaskbar:
        DesktopWindows::SetTaskbar(CommandActions::Visibility::Show, form1.program());
        break;
    case ExitRules::ExitStep::ShowDesktopIcons:
        DesktopWindows::SetDesktopIcons(CommandActions::Visibility::Show, form1.program());
        break;
    case ExitRules::ExitStep::RemoveTrayIcon:
        form1.Remove_TrayIcon();
        break;
    case ExitRules::ExitStep::UnloadSystray:
        form1.taskbarReplacement().Unload();
        break;
    case ExitRules::ExitStep::CloseMenuWindows:
        CloseMenuWindows(form1.program());
        break;
    case ExitRules::ExitStep::UnloadForms:
        UnloadOtherForms();
        form1.Unload();
        break;
    }
}

} // namespace

void BuildInternalCommandTable(Program& program) {
    program.commandTable = CommandTable::BuildCommandTable(program.values.SystemFolder, [](char letter) {
        wchar_t root[] = {static_cast<wchar_t>(letter), L':', L'\\', L'\0'};
        return ::GetDriveTypeW(root) == DRIVE_CDROM;
    });
}

bool SingleInstance(Form1& form1) {
    ProgramValues& values = form1.program().values;
    std::string remembered = values.ProgramTitle;
    values.ProgramTitle = kUnwantedTitle;
    ::SetWindowTextW(form1.hwnd(), Win::Widen(kUnwantedTitle).c_str());
    HWND other = ::FindWindowW(Form1::kClassName, Win::Widen(remembered).c_str());
    if (!other)
        return false;
    ::OpenIcon(other);
    ::SetForegroundWindow(other);
    return true;
}

void PutBackDesktop(Form1& form1) {
    for (ExitRules::ExitStep step : ExitRules::PutBackSteps(form1.program().desktopChanges))
        RunExitStep(form1, step);
}

void ExitProgram(Form1& form1, bool quiet) {
    ProgramValues& values = form1.program().values;
    // One question at a time: a second exit while the box is up would take the
    // program down underneath the first.
    if (values.ExitQuestionShowing)
        return;
    if (!quiet && !AskExitQuestion(values))
        return;
    for (ExitRules::ExitStep step : ExitRules::ExitSteps(form1.program().desktopChanges, form1.TrayIconShown()))
        RunExitStep(form1, step);
}

} // namespace Subroutines
