#include "harness/other_program.h"

namespace E2e {

OtherProgram::~OtherProgram() {
    End();
}

bool OtherProgram::Start(const std::wstring& commandLine, const std::string& windowClass, Duration timeout) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION info{};
    std::wstring line = commandLine;
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &info))
        return false;
    ::CloseHandle(info.hThread);
    process_.reset(info.hProcess);
    window_ = WaitForVisibleWindow(windowClass, info.dwProcessId, timeout);
    return window_.has_value();
}

bool OtherProgram::Minimise() {
    ::ShowWindow(hwnd(), SW_MINIMIZE);
    return WaitUntil([this] { return ::IsIconic(hwnd()) != FALSE; }, 5s);
}

void OtherProgram::End() {
    if (!process_)
        return;
    ::TerminateProcess(process_.get(), 0);
    ::WaitForSingleObject(process_.get(), 10000);
    process_.reset();
    window_.reset();
}

} // namespace E2e
