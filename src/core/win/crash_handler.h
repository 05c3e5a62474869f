// The last chance of a run that crashes: before the process dies, what the program did to
// the desktop (a hidden taskbar, hidden desktop icons, the notification area in its own
// window) is put back as the exit would, so the user is not left without a taskbar. A
// kill gives no such chance; the desktop changes file covers that at the next start.
#pragma once

#include <windows.h>

#include <csignal>

class Form1;

class CrashHandler {
public:
    // Watches for an unhandled exception on any thread and for abort(), which the C++
    // runtime's terminate ends in, for as long as it lives.
    explicit CrashHandler(Form1& form1);
    ~CrashHandler();
    CrashHandler(const CrashHandler&) = delete;
    CrashHandler& operator=(const CrashHandler&) = delete;

private:
    LPTOP_LEVEL_EXCEPTION_FILTER previousFilter_;
    void (*previousAbort_)(int);
};
