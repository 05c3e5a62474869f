// frmSystray, the systray copy: the shell's notification area taken off the taskbar into
// a window of the program's own, beside a clock with the date; and frmSystrayButton, the
// small button it collapses to when SystrayAutoHide is on. Where the shell has no
// notification area window to give (Wine's taskbar draws its icons itself), the copy shows
// the clock alone and moves nothing.
#pragma once

#include "core/exit_rules.h"
#include "core/win/program.h"
#include "desktop/desktop_bars.h"
#include "desktop/systray_collapse.h"
#include "desktop/win/bar_surface.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <string>

class frmSystray;

class frmSystrayButton {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2SystrayButton";

    explicit frmSystrayButton(frmSystray& systray) : systray_(systray) {}
    frmSystrayButton(const frmSystrayButton&) = delete;
    frmSystrayButton& operator=(const frmSystrayButton&) = delete;

    bool Create(const Program& program);
    void ShowAt(const MenuWindow::Rect& place);
    void Hide();
    // Arms tmrSystrayAutoHide as the toggle does.
    void ArmAutoHide(const SettingsRec& settings);

private:
    friend LRESULT CALLBACK Win::FormWindowProc<frmSystrayButton>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void ApplyTimer();
    void tmrSystrayAutoHide_Timer();
    void Form_MouseUp();

    frmSystray& systray_;
    DesktopBarsWin::BarSurface surface_;
    SystrayCollapse::Timer timer_;
    Win::UniqueIcon icon_;
    Win::UniqueWindow window_;
};

class frmSystray {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2Systray";
    static constexpr UINT kClockInterval = 5000; // tmrUpdateSystray

    explicit frmSystray(Program& program) : program_(program), button_(*this) {}
    ~frmSystray();
    frmSystray(const frmSystray&) = delete;
    frmSystray& operator=(const frmSystray&) = delete;

    // "Show Tray on Desktop": takes the notification area over and shows the copy.
    void Show();
    // "Show Tray on TaskBar": gives the notification area back and hides the copy.
    void Hide();
    bool Visible() const { return window_ && ::IsWindowVisible(window_.get()); }

    // The collapsed flag (-1 collapsed) and what the button's toggle and timer do to it.
    std::int16_t collapsed = 0;
    void ShowAgain();
    void HideForCollapse();
    const Program& program() const { return program_; }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<frmSystray>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    bool Create();
    void TakeNotifyArea();
    void GiveNotifyAreaBack();
    void tmrUpdateSystray_Timer();
    void Repaint(bool force);

    Program& program_;
    DesktopBarsWin::BarSurface surface_;
    DesktopBars::SystrayLayout layout_;
    MenuWindow::Rect place_;
    std::string time_;
    std::string date_;
    // The notification area while it is ours: where it stood in the taskbar.
    HWND notifyArea_ = nullptr;
    HWND shellClock_ = nullptr;
    RECT notifyPlace_{};
    frmSystrayButton button_;
    Win::UniqueWindow window_;
};
