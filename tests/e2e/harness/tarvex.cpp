#include "harness/tarvex.h"

#include "harness/dialogs.h"
#include "harness/popup_menu.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

namespace E2e {

namespace {
constexpr UINT kTrayIconId = 1;
constexpr UINT kTrayCallbackMessage = WM_MOUSEMOVE;
} // namespace

Tarvex::~Tarvex() {
    if (!running())
        return;
    if (ExitThroughTray())
        return;
    ADD_FAILURE() << "tarvex2.exe did not end through its own exit and is killed";
    Kill();
}

bool Tarvex::Kill() {
    return process_ && ::TerminateProcess(process_.get(), 1) && WaitForExit(10s);
}

bool Tarvex::Crash() {
    // The first page of memory is never mapped.
    const auto nowhere = reinterpret_cast<LPTHREAD_START_ROUTINE>(std::uintptr_t{0x10});
    Win::UniqueKernelHandle thread(::CreateRemoteThread(process_.get(), nullptr, 0, nowhere, nullptr, 0, nullptr));
    return static_cast<bool>(thread);
}

bool Tarvex::Start(const ProgramFolder& folder, const std::string& arguments, const std::string& currentDirectory) {
    std::wstring exe = Win::Widen(folder.ExePath());
    std::wstring commandLine = L"\"" + exe + L"\"";
    if (!arguments.empty())
        commandLine += L" " + Win::Widen(arguments);
    std::wstring directory = Win::Widen(currentDirectory.empty() ? folder.path() : currentDirectory);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info{};
    if (!::CreateProcessW(exe.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, directory.c_str(),
                          &startup, &info))
        return false;
    ::CloseHandle(info.hThread);
    process_.reset(info.hProcess);
    processId_ = info.dwProcessId;
    mainForm_ = nullptr;
    return true;
}

bool Tarvex::running() const {
    return process_ && ::WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

bool Tarvex::WaitForExit(Duration timeout) {
    return process_ && WaitForProcess(process_.get(), timeout);
}

std::optional<DWORD> Tarvex::ExitCode() const {
    DWORD code = 0;
    if (!process_ || !::GetExitCodeProcess(process_.get(), &code) || code == STILL_ACTIVE)
        return std::nullopt;
    return code;
}

std::optional<WindowInfo> Tarvex::WaitForMainForm(Duration timeout) {
    std::optional<WindowInfo> found;
    WaitUntil(
        [&] {
            std::vector<WindowInfo> forms = TopLevelWindows(kMainFormClass, processId_);
            if (!forms.empty())
                found = forms.front();
            return found.has_value() || !running();
        },
        timeout);
    if (found)
        mainForm_ = found->hwnd;
    return found;
}

bool Tarvex::WaitUntilReady(Duration timeout) {
    return WaitForMainForm(timeout) &&
           ::WaitForInputIdle(process_.get(), static_cast<DWORD>(timeout.count())) == 0;
}

bool Tarvex::WaitUntilIdle(Duration timeout) {
    if (!mainForm_ && !WaitForMainForm(timeout))
        return false;
    DWORD_PTR result = 0;
    return ::SendMessageTimeoutW(mainForm_, WM_NULL, 0, 0, SMTO_NORMAL, static_cast<UINT>(timeout.count()),
                                 &result) != 0;
}

void Tarvex::SendTrayMessage(UINT mouseMessage) {
    if (!mainForm_)
        WaitForMainForm();
    ::PostMessageW(mainForm_, kTrayCallbackMessage, kTrayIconId, mouseMessage);
}

std::optional<WindowInfo> Tarvex::OpenTrayMenu() {
    SendTrayMessage(WM_RBUTTONUP);
    return WaitForPopupMenu(processId_);
}

// By a click: a program a test started may hold the keyboard.
bool Tarvex::ExitThroughTray() {
    std::optional<WindowInfo> menu = OpenTrayMenu();
    if (!menu)
        return false;
    ClickMenuEntry(*menu, 2, 2); // "Preferences", "Exit"
    std::optional<WindowInfo> question = WaitForMessageBox(processId_);
    if (!question || !PressButton(question->hwnd, "Yes"))
        return false;
    return WaitForExit(20s);
}

} // namespace E2e
