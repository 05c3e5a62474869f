#include "harness/wait.h"

namespace E2e {

namespace {

constexpr DWORD kPollMs = 20;

void PumpMessages() {
    MSG msg;
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

// Sleeps for at most ms, waking for any message sent or posted to this thread.
void IdleFor(DWORD ms) {
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, ms, QS_ALLINPUT);
    PumpMessages();
}

} // namespace

bool WaitUntil(const std::function<bool()>& condition, Duration timeout) {
    auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        PumpMessages();
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        IdleFor(kPollMs);
    }
}

void Settle(Duration time) {
    auto deadline = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < deadline)
        IdleFor(kPollMs);
}

bool WaitForProcess(HANDLE process, Duration timeout) {
    return WaitUntil([process] { return ::WaitForSingleObject(process, 0) == WAIT_OBJECT_0; }, timeout);
}

} // namespace E2e
