#include "desktop/win/session_end.h"

#include "win/handles.h"

#include <windows.h>

namespace SessionEnd {

void EnableShutdownPrivilege() {
    HANDLE token = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token))
        return;
    Win::UniqueKernelHandle owned(token);
    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    if (::LookupPrivilegeValueW(nullptr, SE_SHUTDOWN_NAME, &privileges.Privileges[0].Luid))
        ::AdjustTokenPrivileges(token, FALSE, &privileges, 0, nullptr, nullptr);
}

bool EndSession(std::uint32_t flags) {
    return ::ExitWindowsEx(flags, SHTDN_REASON_FLAG_PLANNED) != FALSE;
}

} // namespace SessionEnd
