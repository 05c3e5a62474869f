#include "menus/win/launcher.h"

#include "core/message_box.h"
#include "core/win/form1.h"
#include "desktop/win/internal_commands.h"
#include "menus/launch_rules.h"
#include "menuwindow/win/play_sound.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <shellapi.h>

namespace Launcher {

namespace {

std::intptr_t ShellStart(const wchar_t* verb, const std::wstring& path, const std::wstring& arguments,
                         const std::wstring& folder, int showCommand) {
    HINSTANCE result = ::ShellExecuteW(::GetDesktopWindow(), verb, path.c_str(), arguments.c_str(), folder.c_str(),
                                       showCommand);
    return reinterpret_cast<std::intptr_t>(result);
}

void ShowStartError(std::string_view title, std::intptr_t result) {
    MessageBoxes::MsgBox(LaunchRules::ErrorText(result), LaunchRules::ErrorTitle(title), MessageBoxes::kExclamation);
}

// The sound of an item being started.
void PlayLaunchSound(const Program& program) {
    const SettingsRec& settings = program.settings;
    MenuWindow::SoundConditions conditions{MenuWindow::WaveDeviceAvailable(), settings.GenSoundsOn,
                                           program.values.ProgramFolder};
    MenuWindow::PlaySoundFile(MenuWindow::EventSoundFile(settings.SoundFx, MenuWindow::SoundEvent::ExecuteItem),
                              conditions);
}

} // namespace

void StartCommandLine(std::string_view commandLine, int showCommand) {
    std::wstring line = Win::Widen(commandLine);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(showCommand);
    PROCESS_INFORMATION started{};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
        return;
    Win::UniqueKernelHandle process(started.hProcess);
    Win::UniqueKernelHandle thread(started.hThread);
}

void RunProgram(const Program& program, std::string_view title, std::string_view startFolder, std::string_view path,
                std::string_view arguments, int runState) {
    PlayLaunchSound(program);
    int show = LaunchRules::ShowCommandFor(runState);
    if (LaunchRules::IsControlPanelApplet(path)) {
        StartCommandLine(LaunchRules::AppletCommandLine(path), show);
        return;
    }
    if (!LaunchRules::PathFitsTheShell(path)) {
        ShowStartError(title, LaunchRules::kFileNotFound);
        return;
    }
    std::wstring file = Win::Widen(path);
    std::wstring parameters = Win::Widen(arguments);
    std::wstring folder = Win::Widen(LaunchRules::StartFolderFor(startFolder, path));
    std::intptr_t result = ShellStart(nullptr, file, parameters, folder, show);
    if (LaunchRules::StartFailed(result))
        result = ShellStart(Win::Widen(LaunchRules::kSecondVerb).c_str(), file, parameters, folder, show);
    if (LaunchRules::StartFailed(result))
        ShowStartError(title, result);
}

std::int16_t RunCommand(Form1& form1, std::string_view value) {
    PlayLaunchSound(form1.program());
    LaunchRules::CommandValue command = LaunchRules::ParseCommandValue(value);
    // A number too large for a code names no command: it gets the unknown code's answer.
    if (command.internal)
        return InternalCommands::RunInternalCommand(form1, command.code.value_or(InternalCommands::kNoCommand));
    StartCommandLine(command.commandLine, SW_SHOWNORMAL);
    return -1;
}

bool ActivateTaskWindow(HWND window) {
    HWND foreground = ::GetForegroundWindow();
    if (foreground == window) {
        // A window minimised without being deactivated stays the foreground window; the
        // user who picks it wants it back on screen all the same.
        if (::IsIconic(window))
            ::ShowWindowAsync(window, SW_RESTORE);
        return true;
    }
    bool brought = false;
    DWORD theirThread = ::GetWindowThreadProcessId(foreground, nullptr);
    DWORD ourThread = ::GetCurrentThreadId();
    if (foreground && theirThread != ourThread) {
        ::AttachThreadInput(theirThread, ourThread, TRUE);
        brought = ::SetForegroundWindow(window) != FALSE;
        ::AttachThreadInput(theirThread, ourThread, FALSE);
    } else {
        brought = ::SetForegroundWindow(window) != FALSE;
    }
    // Asked, not waited for: a task that hangs must not hang the menus with it.
    ::ShowWindowAsync(window, ::IsIconic(window) ? SW_RESTORE : SW_SHOW);
    return brought;
}

} // namespace Launcher
