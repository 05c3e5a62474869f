// The program's icon in the notification area. Its record is filled once and kept,
// so that the delete names the icon exactly as the add did.
#pragma once

#include <windows.h>
#include <shellapi.h>

class TrayIcon {
public:
    // The shell reports clicks on the icon to the owner as this message, with the
    // mouse message in lParam; the owner handles them with its mouse-move handler.
    static constexpr UINT kCallbackMessage = WM_MOUSEMOVE;
    static constexpr UINT kId = 1;

    void Fill(HWND owner, HICON icon);

    // Adds the icon. It counts as shown even when the shell has no notification area
    // yet; the owner adds it again when the shell announces that it has (re)started.
    void Add();
    void Remove();
    bool shown() const { return shown_; }

private:
    NOTIFYICONDATAW record_{};
    bool shown_ = false;
};
