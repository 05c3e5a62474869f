#include "harness/process_usage.h"

#include "win/handles.h"

#include <psapi.h>
#include <winternl.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

namespace E2e {

namespace {

// An entry of the GDI handle table that the 64-bit PEB points to (at 0xF8); a non-zero
// type marks a handle in use.
struct GdiHandleEntry {
    ULONG64 object;
    ULONG owner;
    USHORT unique;
    UCHAR type;
    UCHAR flags;
    ULONG64 userPointer;
};
static_assert(sizeof(GdiHandleEntry) == 24);
constexpr std::size_t kGdiTableOffset = 0xF8;
constexpr std::size_t kGdiHandles = 0x10000;

long GdiHandlesInTable(HANDLE process) {
    PROCESS_BASIC_INFORMATION info{};
    ULONG length = 0;
    if (::NtQueryInformationProcess(process, ProcessBasicInformation, &info, sizeof info, &length) != 0)
        return -1;
    void* table = nullptr;
    SIZE_T read = 0;
    if (!::ReadProcessMemory(process, static_cast<char*>(static_cast<void*>(info.PebBaseAddress)) + kGdiTableOffset,
                             &table, sizeof table, &read) ||
        !table)
        return -1;
    std::vector<GdiHandleEntry> entries(kGdiHandles);
    if (!::ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiHandleEntry), &read))
        return -1;
    long used = 0;
    for (const GdiHandleEntry& entry : entries)
        used += entry.type != 0 ? 1 : 0;
    return used;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM context) {
    auto* count = reinterpret_cast<std::pair<DWORD, long>*>(context);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    if (owner == count->first) {
        ++count->second;
        ::EnumChildWindows(window, CountWindow, context);
    }
    return TRUE;
}

long WindowsOf(DWORD processId) {
    std::pair<DWORD, long> count{processId, 0};
    ::EnumWindows(CountWindow, reinterpret_cast<LPARAM>(&count));
    HWND messageOnly = nullptr;
    while ((messageOnly = ::FindWindowExW(HWND_MESSAGE, messageOnly, nullptr, nullptr)) != nullptr)
        CountWindow(messageOnly, reinterpret_cast<LPARAM>(&count));
    return count.second;
}

// RssAnon of the Linux process whose name is exeName; -1 when there is no such table.
double LinuxAnonymousMegabytes(const std::string& exeName) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(L"Z:\\proc", error)) {
        std::ifstream stat(entry.path() / L"stat");
        std::string line;
        std::getline(stat, line);
        const std::size_t open = line.find('(');
        if (open == std::string::npos || line.compare(open + 1, exeName.size() + 1, exeName + ")") != 0)
            continue;
        std::ifstream status(entry.path() / L"status");
        while (std::getline(status, line))
            if (line.rfind("RssAnon:", 0) == 0)
                return std::atof(line.c_str() + 8) / 1024;
    }
    return -1;
}

} // namespace

ProcessUsage MeasureProcess(DWORD processId, const std::string& exeName) {
    ProcessUsage usage;
    Win::UniqueKernelHandle process(
        ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, processId));
    if (!process)
        return usage;
    usage.gdiObjects = static_cast<long>(::GetGuiResources(process.get(), GR_GDIOBJECTS));
    usage.userObjects = static_cast<long>(::GetGuiResources(process.get(), GR_USEROBJECTS));
    PROCESS_MEMORY_COUNTERS_EX memory{};
    if (::GetProcessMemoryInfo(process.get(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof memory))
        usage.privateMegabytes = static_cast<double>(memory.PrivateUsage) / (1024 * 1024);
    if (usage.gdiObjects == 0)
        usage.gdiObjects = GdiHandlesInTable(process.get());
    if (usage.userObjects == 0)
        usage.userObjects = WindowsOf(processId);
    if (usage.privateMegabytes <= 0)
        usage.privateMegabytes = LinuxAnonymousMegabytes(exeName);
    return usage;
}

} // namespace E2e
