#include "core/win/form1.h"

#include "core/message_box.h"
#include "core/win/autostart.h"
#include "core/win/subroutines.h"
#include "desktop/win/desktop_windows.h"
#include "menuwindow/win/screen_area.h"
#include "win/text_convert.h"

#include <windowsx.h>

namespace {

constexpr UINT kPopSetup = 1;
constexpr UINT kPopExit = 2;

// Posted by the preferences window as it closes: its object goes once its message is over.
constexpr UINT kPreferencesClosedMessage = WM_APP + 10;

HICON ProgramIcon(const Program& program, int size) {
    return Win::LoadProgramIcon(program.instance, program.iconResource, size);
}

} // namespace

Form1::Form1(Program& program) : program_(program) {
    program_.openMenus.choices = &menuLauncher_;
}

// The window goes first, while the object it calls back into is still whole.
Form1::~Form1() {
    window_.reset();
    program_.openMenus.choices = nullptr;
}

bool Form1::Create() {
    WNDCLASSEXW wc = Win::FormClass<Form1>(program_.instance, kClassName);
    wc.hIcon = ProgramIcon(program_, ::GetSystemMetrics(SM_CXICON));
    wc.hIconSm = FormIcon();
    if (!Win::RegisterFormClass(wc))
        return false;
    BuildSystrayMenu();
    taskbarCreatedMessage_ = ::RegisterWindowMessageW(L"TaskbarCreated");
    // A tool window never appears in the taskbar; the form is never shown anyway.
    HWND hwnd = ::CreateWindowExW(WS_EX_TOOLWINDOW, kClassName, Win::Widen(kProgramTitle).c_str(), WS_POPUP, 0, 0, 0, 0,
                                  nullptr, nullptr, program_.instance, this);
    if (!hwnd)
        return false;
    // An elevated program would otherwise not hear a restarted shell ask for its icon.
    ::ChangeWindowMessageFilterEx(hwnd, taskbarCreatedMessage_, MSGFLT_ALLOW, nullptr);
    return true;
}

HICON Form1::FormIcon() const {
    return ProgramIcon(program_, ::GetSystemMetrics(SM_CXSMICON));
}

void Form1::BuildSystrayMenu() {
    menuBar_.reset(::CreateMenu());
    HMENU popup = ::CreatePopupMenu();
    ::AppendMenuW(popup, MF_STRING, kPopSetup, L"&Preferences");
    ::AppendMenuW(popup, MF_STRING, kPopExit, L"E&xit");
    // The menu bar owns the popup from here on and destroys it with itself.
    ::AppendMenuW(menuBar_.get(), MF_POPUP, reinterpret_cast<UINT_PTR>(popup), L"&Systray");
}

LRESULT Form1::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        hotspotTimers_.Start(hwnd);
        return 0;
    case WM_MOUSEMOVE:
        Form_MouseMove(wParam, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        return 0;
    case WM_TIMER:
        if (wParam == HotspotTimers::kTimer1Id)
            Timer1_Timer();
        else if (wParam == HotspotTimers::kTimer3Id)
            Timer3_Timer();
        return 0;
    case WM_CLOSE:
        // Closed from outside (a task manager, the system): leave the desktop as it was.
        Subroutines::ExitProgram(*this, true);
        return 0;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
        // Monitors came, went, moved or changed their scaling, or a work area changed.
        MenuWindow::ForgetMonitors();
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    case WM_QUERYENDSESSION:
        return TRUE;
    case WM_ENDSESSION:
        if (wParam)
            Form_EndSession();
        return 0;
    case WM_DESTROY:
        ::PostQuitMessage(0);
        return 0;
    case kPreferencesClosedMessage:
        if (preferences_ && !preferences_->hwnd())
            preferences_.reset();
        return 0;
    default:
        if (message == taskbarCreatedMessage_ && message != 0) {
            if (trayIcon_.shown())
                trayIcon_.Add();
            return 0;
        }
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

// The tray icon's callback: the icon's record names the mouse-move message, and the
// shell puts the mouse message where the form reads its X coordinate. The form
// measures in pixels, so X is the message as it is.
void Form1::Form_MouseMove(WPARAM, int x, int) {
    switch (StartupRules::TrayCallbackAction(x)) {
    case StartupRules::TrayAction::ChoosePreferences:
        mPopSetup_Click();
        break;
    case StartupRules::TrayAction::PopUpMenu:
        PopUpSystrayMenu();
        break;
    case StartupRules::TrayAction::None:
        break;
    }
}

// The form comes to the front first, so that a click anywhere else closes the menu;
// the posted null message lets the menu close cleanly when the form loses the front.
void Form1::PopUpSystrayMenu() {
    HWND hwnd = window_.get();
    POINT cursor{};
    ::GetCursorPos(&cursor);
    ::SetForegroundWindow(hwnd);
    HMENU mPopupSys = ::GetSubMenu(menuBar_.get(), 0);
    UINT chosen = static_cast<UINT>(::TrackPopupMenuEx(mPopupSys, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                                       cursor.x, cursor.y, hwnd, nullptr));
    ::PostMessageW(hwnd, WM_NULL, 0, 0);
    if (chosen == kPopSetup)
        mPopSetup_Click();
    else if (chosen == kPopExit)
        mPopExit_Click();
}

// The session ends, whoever ended it: the desktop is put back as the program found it.
void Form1::Form_EndSession() {
    Subroutines::ExitProgram(*this, true);
}

void Form1::mPopSetup_Click() {
    OpenPreferences();
}

void Form1::OpenPreferences() {
    if (!program_.values.PreferencesOpen)
        Show_Setup_Screen();
}

void Form1::mPopExit_Click() {
    Subroutines::ExitProgram(*this, false);
}

// The one place that opens the preferences window.
void Form1::Show_Setup_Screen() {
    program_.values.PreferencesOpen = true;
    if (preferences_ && !preferences_->hwnd())
        preferences_.reset(); // closed, its object not gone yet
    if (preferences_) {
        preferences_->BringForward();
        return;
    }
    preferences_ = std::make_unique<PrefsWin::PreferencesWindow>(program_, *this);
    if (!preferences_->Create()) {
        preferences_.reset();
        program_.values.PreferencesOpen = false;
    }
}

bool Form1::TranslatePreferencesMessage(MSG& message) {
    return preferences_ && preferences_->TranslateDialogMessage(message);
}

void Form1::SettingsApplied(const SettingsRec& before) {
    const SettingsRec& now = program_.settings;
    {
        BusyScope busy(program_.RebuildBusy);
        program_.openMenus.RepaintAll();
    }
    if (now.GenShowInTray != before.GenShowInTray) {
        if (now.GenShowInTray)
            Insert_TrayIcon();
        else
            Remove_TrayIcon();
    }
    if (now.GenHideDesktopIcons != before.GenHideDesktopIcons)
        DesktopWindows::SetDesktopIcons(
            now.GenHideDesktopIcons ? CommandActions::Visibility::Hide : CommandActions::Visibility::Show, program_);
    taskbarReplacement_.SettingsApplied();
    Autostart::WriteAutostartValue(now.GenAutoRun, program_.values.ProgramFolder);
}

// The window is gone once the message that closed it is over; the object goes then.
void Form1::PreferencesClosed() {
    program_.values.PreferencesOpen = false;
    ::PostMessageW(window_.get(), kPreferencesClosedMessage, 0, 0);
}

void Form1::Insert_TrayIcon() {
    trayIcon_.Fill(window_.get(), FormIcon());
    trayIcon_.Add();
}

void Form1::Remove_TrayIcon() {
    trayIcon_.Remove();
}

void Form1::Form_Unload() {
    hotspotTimers_.Stop();
}

void Form1::Unload() {
    Form_Unload();
    preferences_.reset();
    window_.reset();
}

void Form1::EnableTimer1() {
    hotspotTimers_.EnableTimer1();
}

void Form1::Timer1_Timer() {
    hotspotTimers_.Timer1_Timer();
}

void Form1::Timer3_Timer() {
    KeepParked();
    hotspotTimers_.Timer3_Timer();
}
