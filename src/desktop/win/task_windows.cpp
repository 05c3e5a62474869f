#include "desktop/win/task_windows.h"

#include "win/handles.h"
#include "win/text_convert.h"

#include <psapi.h>

namespace TaskWindows {

namespace {

// A title is read up to this many characters: a window may hold any text as its title,
// and the menus and the task list show only the start of one.
constexpr int kLongestTitle = 260;
constexpr DWORD kQueryAndRead = 0x410; // PROCESS_QUERY_INFORMATION | PROCESS_VM_READ
constexpr DWORD kModulePathLength = 260;

Tasks::WindowRecord RecordOf(HWND window) {
    Tasks::WindowRecord record;
    record.handle = reinterpret_cast<std::uintptr_t>(window);
    record.exStyle = static_cast<std::uint32_t>(::GetWindowLongW(window, GWL_EXSTYLE));
    record.owned = ::GetWindow(window, GW_OWNER) != nullptr;
    record.visible = ::IsWindowVisible(window) != FALSE;
    wchar_t title[kLongestTitle + 1] = {};
    ::GetWindowTextW(window, title, kLongestTitle + 1);
    record.title = Win::Narrow(title);
    return record;
}

BOOL CALLBACK AddWindow(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<Tasks::WindowRecord>*>(list)->push_back(RecordOf(window));
    return TRUE;
}

} // namespace

// EnumWindows gives the top-level windows in Z-order from the top, as a walk along the
// next-window links does, but from a list taken at once: a window that closes while it is
// listed only reads as untitled and invisible, where the walk would lose every window
// after it.
std::vector<Tasks::TaskEntry> ListTasks() {
    std::vector<Tasks::WindowRecord> windows;
    ::EnumWindows(AddWindow, reinterpret_cast<LPARAM>(&windows));
    std::vector<Tasks::TaskEntry> tasks;
    for (const Tasks::WindowRecord& window : Tasks::TasksOf(windows)) {
        HWND handle = WindowOf(window.handle);
        tasks.push_back({window.handle, window.title, ExecutableOf(handle)});
    }
    return tasks;
}

std::string ExecutableOf(HWND window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    Win::UniqueKernelHandle process(::OpenProcess(kQueryAndRead, FALSE, processId));
    if (!process)
        return {};
    wchar_t path[kModulePathLength] = {};
    if (!::GetModuleFileNameExW(process.get(), nullptr, path, kModulePathLength))
        return {};
    return Win::Narrow(path);
}

} // namespace TaskWindows
