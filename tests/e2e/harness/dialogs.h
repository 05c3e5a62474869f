// Message boxes and other dialogs of the program under test (class "#32770"): their
// title and text, and their buttons, pressed by caption or by id.
#pragma once

#include "harness/wait.h"
#include "harness/windows.h"

#include <windows.h>

#include <optional>
#include <string>

namespace E2e {

inline constexpr const char* kDialogClass = "#32770";

std::optional<WindowInfo> WaitForMessageBox(DWORD processId, Duration timeout = 10s);

// The texts of the dialog's static controls, joined by line breaks: for a message box,
// its message.
std::string DialogText(HWND dialog);

// Presses the button whose caption, without its '&', is the given one ("Yes", "OK"),
// and waits for the dialog to close: a box that was answered is gone before the test
// looks for the next one, which would otherwise find the answered box still up. False
// when the dialog has no such button or is still open when the time is up.
bool PressButton(HWND dialog, const std::string& caption, Duration timeout = 10s);

// True when the window is destroyed or hidden before the time is up.
bool WaitForWindowGone(HWND window, Duration timeout);

} // namespace E2e
