// Waiting on conditions with deadlines. Every wait keeps the test thread's messages
// flowing, since the program under test may be sending to a window of the test (the
// recording tray) and would hang until the test answers.
#pragma once

#include <windows.h>

#include <chrono>
#include <functional>

namespace E2e {

using namespace std::chrono_literals;
using Duration = std::chrono::milliseconds;

// Checks the condition until it holds or the time is up; true when it held.
bool WaitUntil(const std::function<bool()>& condition, Duration timeout);

// Lets time pass while messages flow: for a condition that must stay false, such as
// "no second box appears", checked after this.
void Settle(Duration time);

// Waits for a process handle to be signalled; true when it was.
bool WaitForProcess(HANDLE process, Duration timeout);

} // namespace E2e
