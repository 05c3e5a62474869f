// A notification area of the test's own, which hears every tray-icon call the program
// makes: a hidden window of the shell's tray class, placed above the shell's, so that
// Shell_NotifyIcon finds it first. It records each add, change and delete with the
// icon's record, and can announce a shell restart ("TaskbarCreated") as a shell does.
//
// Shell_NotifyIcon hands the record over in WM_COPYDATA, in the layout of the
// system's shell32. This one reads the layout of Wine's shell32, which the
// end-to-end tests run under.
#pragma once

#include "harness/wait.h"

#include <windows.h>
#include <shellapi.h>

#include <string>
#include <vector>

namespace E2e {

struct TrayCall {
    DWORD command = 0; // NIM_ADD, NIM_MODIFY, NIM_DELETE ...
    HWND owner = nullptr;
    UINT id = 0;
    UINT flags = 0;
    UINT callbackMessage = 0;
    std::string tip; // UTF-8
};

class RecordingTray {
public:
    RecordingTray();
    ~RecordingTray();
    RecordingTray(const RecordingTray&) = delete;
    RecordingTray& operator=(const RecordingTray&) = delete;

    bool ready() const { return window_ != nullptr; }
    const std::vector<TrayCall>& calls() const { return calls_; }
    // How many calls of a command came for one owner window (any owner when null).
    int Count(DWORD command, HWND owner = nullptr) const;
    bool WaitForCount(DWORD command, HWND owner, int count, Duration timeout);

    // Broadcasts "TaskbarCreated", the message of a shell that has just started.
    void AnnounceRestart();

private:
    static LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Record(const COPYDATASTRUCT& data);

    HWND window_ = nullptr;
    std::vector<TrayCall> calls_;
};

} // namespace E2e
