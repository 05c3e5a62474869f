#include "harness/recording_tray.h"

#include "win/text_convert.h"

#include <cwchar>

namespace E2e {

namespace {

constexpr const wchar_t* kTrayClass = L"Shell_TrayWnd";

// The start of Wine's record: the owner as a 32-bit value, the id, the flags, the
// callback message and the 128-character tip.
struct WineTrayRecord {
    std::uint32_t owner;
    UINT id;
    UINT flags;
    UINT callbackMessage;
    wchar_t tip[128];
};

} // namespace

RecordingTray::RecordingTray() {
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSW wc{};
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = instance;
    wc.lpszClassName = kTrayClass;
    if (!::RegisterClassW(&wc) && ::GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        return;
    // Topmost, so that it comes before the shell's tray in the search.
    window_ = ::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kTrayClass, L"", WS_POPUP, 0, 0, 1, 1, nullptr,
                                nullptr, instance, this);
    if (window_)
        ::SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

RecordingTray::~RecordingTray() {
    if (window_)
        ::DestroyWindow(window_);
}

LRESULT CALLBACK RecordingTray::WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* create = reinterpret_cast<CREATESTRUCTW*>(lParam);
        ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* tray = reinterpret_cast<RecordingTray*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (tray && message == WM_COPYDATA) {
        tray->Record(*reinterpret_cast<const COPYDATASTRUCT*>(lParam));
        return TRUE;
    }
    return ::DefWindowProcW(hwnd, message, wParam, lParam);
}

void RecordingTray::Record(const COPYDATASTRUCT& data) {
    TrayCall call;
    call.command = static_cast<DWORD>(data.dwData);
    if (data.cbData >= sizeof(WineTrayRecord)) {
        const auto* record = static_cast<const WineTrayRecord*>(data.lpData);
        call.owner = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(record->owner));
        call.id = record->id;
        call.flags = record->flags;
        call.callbackMessage = record->callbackMessage;
        call.tip = Win::Narrow(std::wstring_view(record->tip, ::wcsnlen(record->tip, 128)));
    }
    calls_.push_back(call);
}

int RecordingTray::Count(DWORD command, HWND owner) const {
    int count = 0;
    for (const TrayCall& call : calls_) {
        if (call.command == command && (!owner || call.owner == owner))
            ++count;
    }
    return count;
}

bool RecordingTray::WaitForCount(DWORD command, HWND owner, int count, Duration timeout) {
    return WaitUntil([&] { return Count(command, owner) >= count; }, timeout);
}

void RecordingTray::AnnounceRestart() {
    ::PostMessageW(HWND_BROADCAST, ::RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
}

} // namespace E2e
