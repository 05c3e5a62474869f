#include "harness/windows.h"

#include "win/text_convert.h"

namespace E2e {

namespace {

std::string ClassOf(HWND hwnd) {
    wchar_t name[256];
    int n = ::GetClassNameW(hwnd, name, 256);
    return Win::Narrow(std::wstring_view(name, n > 0 ? static_cast<std::size_t>(n) : 0));
}

// The text of a window of another process: WM_GETTEXT is carried across processes.
std::string TitleOf(HWND hwnd) {
    int length = ::GetWindowTextLengthW(hwnd);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    int n = ::GetWindowTextW(hwnd, text.data(), length + 1);
    text.resize(n > 0 ? static_cast<std::size_t>(n) : 0);
    return Win::Narrow(text);
}

BOOL CALLBACK Collect(HWND hwnd, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
    return TRUE;
}

std::vector<WindowInfo> Visible(const std::vector<WindowInfo>& windows) {
    std::vector<WindowInfo> visible;
    for (const WindowInfo& w : windows) {
        if (w.visible)
            visible.push_back(w);
    }
    return visible;
}

} // namespace

WindowInfo DescribeWindow(HWND hwnd) {
    WindowInfo info;
    info.hwnd = hwnd;
    info.className = ClassOf(hwnd);
    info.title = TitleOf(hwnd);
    ::GetWindowRect(hwnd, &info.rect);
    info.visible = ::IsWindowVisible(hwnd) != FALSE;
    ::GetWindowThreadProcessId(hwnd, &info.processId);
    return info;
}

std::vector<WindowInfo> TopLevelWindows(const std::string& className, DWORD processId) {
    std::vector<HWND> all;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&all));
    std::vector<WindowInfo> found;
    for (HWND hwnd : all) {
        WindowInfo info = DescribeWindow(hwnd);
        if ((className.empty() || info.className == className) && (processId == 0 || info.processId == processId))
            found.push_back(info);
    }
    return found;
}

std::optional<WindowInfo> WaitForVisibleWindow(const std::string& className, DWORD processId, Duration timeout) {
    std::optional<WindowInfo> found;
    WaitUntil(
        [&] {
            std::vector<WindowInfo> visible = Visible(TopLevelWindows(className, processId));
            if (!visible.empty())
                found = visible.front();
            return found.has_value();
        },
        timeout);
    return found;
}

bool WaitForNoVisibleWindow(const std::string& className, DWORD processId, Duration timeout) {
    return WaitUntil([&] { return Visible(TopLevelWindows(className, processId)).empty(); }, timeout);
}

StandInWindow::StandInWindow(const wchar_t* className, const wchar_t* title) {
    WNDCLASSW wc{};
    wc.lpfnWndProc = ::DefWindowProcW;
    wc.hInstance = ::GetModuleHandleW(nullptr);
    wc.hbrBackground = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));
    wc.lpszClassName = className;
    ::RegisterClassW(&wc);
    hwnd_ = ::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, className, title, WS_POPUP | WS_VISIBLE, 0, 700, 300,
                              30, nullptr, nullptr, wc.hInstance, nullptr);
    // Above the shell's own windows of the class, which may stand in the topmost band.
    if (hwnd_)
        ::SetWindowPos(hwnd_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

StandInWindow::~StandInWindow() {
    if (hwnd_)
        ::DestroyWindow(hwnd_);
}

std::vector<WindowInfo> ChildWindows(HWND parent) {
    std::vector<HWND> all;
    ::EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&all));
    std::vector<WindowInfo> children;
    for (HWND hwnd : all) {
        if (::GetParent(hwnd) == parent)
            children.push_back(DescribeWindow(hwnd));
    }
    return children;
}

} // namespace E2e
