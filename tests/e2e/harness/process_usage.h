// What a process holds, for tests that look for leaks: its GDI and USER objects and its
// private memory. Windows counts them for any process; Wine reports zeros, so under Wine
// the GDI objects are counted in the process's shared handle table, the USER objects
// as its windows, and the memory as Linux's anonymous resident pages of the process.
#pragma once

#include <windows.h>

#include <string>

namespace E2e {

struct ProcessUsage {
    long gdiObjects = -1;
    long userObjects = -1;
    double privateMegabytes = -1;
};

// `exeName` finds the process in Linux's table under Wine ("tarvex2.exe").
ProcessUsage MeasureProcess(DWORD processId, const std::string& exeName);

} // namespace E2e
