#include "harness/dialogs.h"

#include <algorithm>

namespace E2e {

namespace {

std::string WithoutAmpersands(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), '&'), text.end());
    return text;
}

// Presses the button with the id as a click on it would.
void PressButtonId(HWND dialog, int id) {
    HWND button = ::GetDlgItem(dialog, id);
    ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
}

} // namespace

std::optional<WindowInfo> WaitForMessageBox(DWORD processId, Duration timeout) {
    return WaitForVisibleWindow(kDialogClass, processId, timeout);
}

std::string DialogText(HWND dialog) {
    std::string text;
    for (const WindowInfo& child : ChildWindows(dialog)) {
        if (child.className != "Static" || child.title.empty())
            continue;
        if (!text.empty())
            text += "\n";
        text += child.title;
    }
    return text;
}

bool PressButton(HWND dialog, const std::string& caption, Duration timeout) {
    for (const WindowInfo& child : ChildWindows(dialog)) {
        if (child.className == "Button" && WithoutAmpersands(child.title) == caption) {
            PressButtonId(dialog, ::GetDlgCtrlID(child.hwnd));
            return WaitForWindowGone(dialog, timeout);
        }
    }
    return false;
}

bool WaitForWindowGone(HWND window, Duration timeout) {
    return WaitUntil([window] { return !::IsWindow(window) || !::IsWindowVisible(window); }, timeout);
}

} // namespace E2e
