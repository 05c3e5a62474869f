// The program's stand-ins for the shell's taskbar: the task list window and the systray
// copy, shown and hidden by the internal commands, and the program's task management,
// which is the two of them in place of the hidden taskbar.
#pragma once

#include "core/win/program.h"
#include "desktop/command_actions.h"
#include "desktop/win/systray_window.h"
#include "desktop/win/task_list_window.h"

class TaskbarReplacement {
public:
    explicit TaskbarReplacement(Program& program) : program_(program), taskList_(program), systray_(program) {}

    void SetTaskList(CommandActions::Visibility visibility);
    void SetSystray(CommandActions::Visibility visibility);
    // On: the shell's taskbar hidden, the systray copy and the task list shown. Off: the
    // taskbar back as it was, the two hidden.
    void SetTaskManagement(CommandActions::Visibility visibility);

    // New settings: the windows that are shown take their look and place again.
    void SettingsApplied();

    // Start-up with TaskbarRunOnStartup: the taskbar hidden, the systray copy shown.
    void ReplaceTaskbar();

    // The notification area back on the taskbar (the exit, the end of the session).
    void PutBackTray();
    // Both windows hidden and the tray given back (the exit's unloading of the copy).
    void Unload();

private:
    Program& program_;
    frmTaskList taskList_;
    frmSystray systray_;
    bool managing_ = false;
};
