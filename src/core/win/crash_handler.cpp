#include "core/win/crash_handler.h"

#include "core/win/subroutines.h"

#include <atomic>

namespace {

std::atomic<Form1*> watched{nullptr};

// Once: a second crash on another thread, or one inside the put-back itself, must not
// start it again.
void PutBackOnce() {
    static std::atomic_flag done = ATOMIC_FLAG_INIT;
    if (done.test_and_set())
        return;
    if (Form1* form1 = watched.load())
        Subroutines::PutBackDesktop(*form1);
}

// The process ends at once with the exception's code: handed on, the crash would wait
// on the system's error report or debugger, with nothing left for the program to do.
LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS*) {
    PutBackOnce();
    return EXCEPTION_EXECUTE_HANDLER;
}

// abort() goes on to end the process when this returns.
void OnAbort(int) {
    PutBackOnce();
}

} // namespace

CrashHandler::CrashHandler(Form1& form1) {
    watched.store(&form1);
    previousFilter_ = ::SetUnhandledExceptionFilter(OnUnhandledException);
    previousAbort_ = std::signal(SIGABRT, OnAbort);
}

CrashHandler::~CrashHandler() {
    std::signal(SIGABRT, previousAbort_);
    ::SetUnhandledExceptionFilter(previousFilter_);
    watched.store(nullptr);
}
