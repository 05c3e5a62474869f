#include "core/win/tray_icon.h"

#include <cwchar>

void TrayIcon::Fill(HWND owner, HICON icon) {
    record_ = {};
    // The first layout of the record, whose tip holds 64 characters: it works with
    // every shell, and with it the shell puts the plain mouse message into lParam.
    record_.cbSize = NOTIFYICONDATAW_V1_SIZE;
    record_.hWnd = owner;
    record_.uID = kId;
    record_.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    record_.uCallbackMessage = kCallbackMessage;
    record_.hIcon = icon;
    std::wcsncpy(record_.szTip, L"Tarvex", 63);
}

void TrayIcon::Add() {
    shown_ = true;
    ::Shell_NotifyIconW(NIM_ADD, &record_);
}

void TrayIcon::Remove() {
    if (!shown_)
        return;
    shown_ = false;
    ::Shell_NotifyIconW(NIM_DELETE, &record_);
}
