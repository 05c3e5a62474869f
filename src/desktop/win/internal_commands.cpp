#include "desktop/win/internal_commands.h"

#include "core/message_box.h"
#include "core/win/form1.h"
#include "core/win/subroutines.h"
#include "desktop/command_actions.h"
#include "desktop/win/desktop_windows.h"
#include "desktop/win/session_end.h"
#include "desktop/win/shell_actions.h"
#include "menus/win/launcher.h"

namespace InternalCommands {

namespace {

using namespace CommandActions;

SessionControl& CurrentSessionControl() {
    static SessionControl control{SessionEnd::EnableShutdownPrivilege, SessionEnd::EndSession};
    return control;
}

void Warn(std::string_view text) {
    MessageBoxes::MsgBox(text, kMessageTitle, MessageBoxes::kExclamation);
}

// Asks first when the command has a label; the hotspots keep quiet while the question
// is up, so that no menu opens over it.
bool Confirmed(Program& program, const std::string& label) {
    if (label.empty())
        return true;
    BusyScope busy(program.QuestionBusy);
    return MessageBoxes::MsgBox(SessionQuestion(label), kSessionQuestionTitle,
                                MessageBoxes::kYesNo | MessageBoxes::kQuestion) == MessageBoxes::kYes;
}

void EndTheSession(Form1& form1, const Action& action) {
    Program& program = form1.program();
    if (!Confirmed(program, action.label))
        return;
    const SettingsRec& settings = program.settings;
    SessionControl& control = CurrentSessionControl();
    for (SessionStep step : SessionSteps(program.desktopChanges, settings.GenShowInTray, action.mode, program.values.IsNT)) {
        switch (step) {
        case SessionStep::PutBackTaskbar:
            form1.taskbarReplacement().PutBackTray();
            break;
        case SessionStep::ShowTaskbar:
            DesktopWindows::SetTaskbar(Visibility::Show, program);
            break;
        case SessionStep::ShowDesktopIcons:
            DesktopWindows::SetDesktopIcons(Visibility::Show, program);
            break;
        case SessionStep::RemoveTrayIcon:
            form1.Remove_TrayIcon();
            break;
        case SessionStep::EnableShutdownPrivilege:
            control.enableShutdownPrivilege();
            break;
        case SessionStep::EndSession:
            control.exitWindows(SessionFlags(action.mode, settings.GenATXShutdown, settings.GenForceShutdown));
            break;
        }
    }
}

void ShowHelp(const Program& program) {
    std::intptr_t result = ShellActions::OpenHelpPage(program.values.HelpFolder);
    if (result < 33)
        Warn(HelpMissingMessage(result));
}

} // namespace

SessionControl SetSessionControl(SessionControl control) {
    SessionControl previous = CurrentSessionControl();
    CurrentSessionControl() = std::move(control);
    return previous;
}

std::int16_t RunInternalCommand(Form1& form1, std::int16_t code) {
    Program& program = form1.program();
    Action action = ActionOf(code);
    switch (action.kind) {
    case Kind::Keys:
        ShellActions::PressKeys(action.keys);
        break;
    case Kind::Session:
        EndTheSession(form1, action);
        break;
    case Kind::ExitProgram:
        Subroutines::ExitProgram(form1, false);
        break;
    case Kind::Preferences:
        form1.Show_Setup_Screen();
        break;
    case Kind::Help:
        ShowHelp(program);
        break;
    case Kind::Taskbar:
        DesktopWindows::SetTaskbar(action.visibility, program);
        break;
    case Kind::DesktopIcons:
        DesktopWindows::SetDesktopIcons(action.visibility, program);
        break;
    case Kind::CdDoor:
        ShellActions::SendMediaCommand(CdDoorCommand(action.doorOpen));
        break;
    case Kind::ScreenSaver:
        ShellActions::StartScreenSaver();
        break;
    case Kind::HangUp:
        ShellActions::HangUpDialUpConnections();
        break;
    case Kind::SpecialFolder:
        ShellActions::OpenSpecialFolder(action.folder);
        break;
    case Kind::Eject:
        if (!ShellActions::EjectMedia(action.drive))
            Warn(EjectFailedMessage(action.drive));
        break;
    case Kind::SystrayCopy:
        form1.taskbarReplacement().SetSystray(action.visibility);
        break;
    case Kind::TaskListWindow:
        form1.taskbarReplacement().SetTaskList(action.visibility);
        break;
    case Kind::TaskManagement:
        form1.taskbarReplacement().SetTaskManagement(action.visibility);
        break;
    case Kind::NotImplemented:
        Warn(kNotImplemented);
        break;
    }
    return code;
}

} // namespace InternalCommands
