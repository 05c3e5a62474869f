// The preferences window as a user meets it: found by its class, its pages turned in
// the page list, a key's control found by the label the catalogue gives it, and closed
// with Cancel.
#pragma once

#include "harness/windows.h"

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace E2e {

inline constexpr const char* kPreferencesClass = "Tarvex2Preferences";

std::optional<WindowInfo> WaitForPreferences(DWORD processId, Duration timeout = 30s);

// Every window inside it, at any depth.
std::vector<WindowInfo> AllControls(HWND preferences);

// The first visible control of a class inside it with that text (any text when empty).
std::optional<WindowInfo> VisibleControl(HWND preferences, std::string_view className, std::string_view text);

// Shows a page by clicking its title in the page list; true once its heading shows.
bool ShowPreferencePage(HWND preferences, std::string_view title);

// The visible control of a class that stands to the right of the visible label, on its
// row (the first such control from the label on).
std::optional<WindowInfo> ControlBesideLabel(HWND preferences, std::string_view label, const std::string& className);

// A control's text as the control itself holds it (an edit field's typed text included).
std::string ControlText(HWND control);

// The control that has the keyboard focus in the window's thread.
HWND FocusedControl(HWND preferences);

// The sample menu window the preferences paint their preview in.
std::optional<WindowInfo> PreviewWindow(HWND preferences);

// Presses Cancel (answering Yes to the question about changes when one comes) and
// waits until the window has gone.
bool CancelPreferences(HWND preferences, DWORD processId);

} // namespace E2e
