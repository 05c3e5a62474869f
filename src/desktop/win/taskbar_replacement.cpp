#include "desktop/win/taskbar_replacement.h"

#include "desktop/win/desktop_windows.h"

using CommandActions::Visibility;

void TaskbarReplacement::SetTaskList(Visibility visibility) {
    if (CommandActions::ShowWindowFor(visibility, taskList_.Visible()))
        taskList_.Show();
    else
        taskList_.Hide();
}

void TaskbarReplacement::SettingsApplied() {
    if (taskList_.Visible())
        taskList_.Show();
    if (systray_.Visible())
        systray_.Show();
}

void TaskbarReplacement::SetSystray(Visibility visibility) {
    if (CommandActions::ShowWindowFor(visibility, systray_.Visible()))
        systray_.Show();
    else
        systray_.Hide();
}

void TaskbarReplacement::SetTaskManagement(Visibility visibility) {
    managing_ = CommandActions::ShowWindowFor(visibility, managing_);
    Visibility each = managing_ ? Visibility::Show : Visibility::Hide;
    DesktopWindows::SetTaskbar(managing_ ? Visibility::Hide : Visibility::Show, program_);
    SetSystray(each);
    SetTaskList(each);
}

void TaskbarReplacement::ReplaceTaskbar() {
    DesktopWindows::SetTaskbar(Visibility::Hide, program_);
    SetSystray(Visibility::Show);
}

void TaskbarReplacement::PutBackTray() {
    systray_.Hide();
}

void TaskbarReplacement::Unload() {
    systray_.Hide();
    taskList_.Hide();
}
