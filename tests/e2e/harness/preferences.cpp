#include "harness/preferences.h"

#include "harness/dialogs.h"
#include "harness/input.h"
#include "win/text_convert.h"

#include <algorithm>
#include <iterator>

namespace E2e {

namespace {

BOOL CALLBACK CollectAll(HWND hwnd, LPARAM list) {
    reinterpret_cast<std::vector<WindowInfo>*>(list)->push_back(DescribeWindow(hwnd));
    return TRUE;
}

} // namespace

std::optional<WindowInfo> VisibleControl(HWND preferences, std::string_view className, std::string_view text) {
    for (const WindowInfo& control : AllControls(preferences))
        if (control.visible && control.className == className && (text.empty() || control.title == text))
            return control;
    return std::nullopt;
}

std::optional<WindowInfo> WaitForPreferences(DWORD processId, Duration timeout) {
    return WaitForVisibleWindow(kPreferencesClass, processId, timeout);
}

std::vector<WindowInfo> AllControls(HWND preferences) {
    std::vector<WindowInfo> all;
    ::EnumChildWindows(preferences, CollectAll, reinterpret_cast<LPARAM>(&all));
    return all;
}

bool ShowPreferencePage(HWND preferences, std::string_view title) {
    std::optional<WindowInfo> list = VisibleControl(preferences, "ListBox", "");
    if (!list)
        return false;
    int count = static_cast<int>(::SendMessageW(list->hwnd, LB_GETCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        wchar_t text[128]{};
        if (::SendMessageW(list->hwnd, LB_GETTEXTLEN, index, 0) >= 127)
            continue;
        ::SendMessageW(list->hwnd, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text));
        std::wstring wide(text);
        if (std::string(wide.begin(), wide.end()) != title)
            continue;
        RECT item{};
        ::SendMessageW(list->hwnd, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
        POINT centre{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
        ::ClientToScreen(list->hwnd, &centre);
        if (!Click(centre.x, centre.y))
            return false;
        return WaitUntil([&] { return ::SendMessageW(list->hwnd, LB_GETCURSEL, 0, 0) == index; }, 10s);
    }
    return false;
}

std::optional<WindowInfo> ControlBesideLabel(HWND preferences, std::string_view label, const std::string& className) {
    std::optional<WindowInfo> text = VisibleControl(preferences, "Static", label);
    if (!text)
        return std::nullopt;
    const int middle = (text->rect.top + text->rect.bottom) / 2;
    std::optional<WindowInfo> nearest;
    for (const WindowInfo& control : AllControls(preferences)) {
        if (!control.visible || control.className != className || control.rect.left < text->rect.right ||
            control.rect.top > middle || control.rect.bottom < middle)
            continue;
        if (!nearest || control.rect.left < nearest->rect.left)
            nearest = control;
    }
    return nearest;
}

std::string ControlText(HWND control) {
    wchar_t text[512]{};
    DWORD_PTR copied = 0;
    if (!::SendMessageTimeoutW(control, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                               5000, &copied))
        return {};
    return Win::Narrow(std::wstring(text, copied));
}

HWND FocusedControl(HWND preferences) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    if (!::GetGUIThreadInfo(::GetWindowThreadProcessId(preferences, nullptr), &info))
        return nullptr;
    return info.hwndFocus;
}

std::optional<WindowInfo> PreviewWindow(HWND preferences) {
    return VisibleControl(preferences, "Tarvex2Menu", "");
}

bool CancelPreferences(HWND preferences, DWORD processId) {
    std::optional<WindowInfo> cancel = VisibleControl(preferences, "Button", "Cancel");
    if (!cancel || !ClickWindow(cancel->hwnd))
        return false;
    if (std::optional<WindowInfo> question = WaitForMessageBox(processId, 2s))
        PressButton(question->hwnd, "Yes");
    return WaitForWindowGone(preferences, 10s);
}

} // namespace E2e
