#include "desktop/win/systray_window.h"

#include "desktop/win/desktop_windows.h"
#include "menuwindow/look/dpi_scale.h"
#include "menuwindow/look/pictures.h"
#include "menus/win/launcher.h"
#include "win/text_convert.h"

#include <windowsx.h>

using namespace DesktopBars;

namespace {

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT_PTR kAutoHideTimer = 1;
constexpr const char* kDateTimeApplet = "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl";
constexpr const char* kButtonIcon = "Systray.ico";

// The time in the user's format without seconds, and the long date.
std::pair<std::string, std::string> ClockTexts() {
    wchar_t time[80] = {};
    wchar_t date[160] = {};
    ::GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time, 80);
    ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, nullptr, nullptr, date, 160);
    return {Win::Narrow(time), Win::Narrow(date)};
}

} // namespace

// --- frmSystray ---

frmSystray::~frmSystray() {
    GiveNotifyAreaBack();
}

bool frmSystray::Create() {
    if (window_)
        return true;
    return DesktopBarsWin::RegisterBarClass(kClassName, Win::FormWindowProc<frmSystray>, CS_DBLCLKS) &&
           DesktopBarsWin::CreateBarWindow(kClassName, this, program_.settings.SystrayAlwaysOnTop) != nullptr;
}

void frmSystray::Show() {
    if (!Create())
        return;
    const SettingsRec& settings = program_.settings;
    surface_.Prepare(settings, program_.values.ProgramFolder);
    TakeNotifyArea();
    DesktopBarsWin::SetOnTop(window_.get(), settings.SystrayAlwaysOnTop);
    Repaint(true);
    ::ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
    collapsed = 0;
    if (settings.SystrayAutoHide && button_.Create(program_)) {
        SystrayPlaces places = PlaceSystray(settings, DesktopBarsWin::PlacementRoom(), layout_.window, true,
                                            surface_.dpi());
        button_.ShowAt(places.button);
        button_.ArmAutoHide(settings);
    } else {
        button_.Hide();
    }
    ::SetTimer(window_.get(), kClockTimer, kClockInterval, nullptr);
}

void frmSystray::Hide() {
    GiveNotifyAreaBack();
    button_.Hide();
    if (!window_)
        return;
    ::KillTimer(window_.get(), kClockTimer);
    ::ShowWindow(window_.get(), SW_HIDE);
}

void frmSystray::ShowAgain() {
    if (!Create())
        return;
    ::ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
}

void frmSystray::HideForCollapse() {
    if (window_)
        ::ShowWindow(window_.get(), SW_HIDE);
}

// The notification area moves into this window, under the program's own parent; the
// shell's clock hides, since this window shows one.
void frmSystray::TakeNotifyArea() {
    if (notifyArea_)
        return;
    HWND taskbar = DesktopWindows::Taskbar();
    HWND notify = taskbar ? ::FindWindowExW(taskbar, nullptr, L"TrayNotifyWnd", nullptr) : nullptr;
    if (!notify)
        return;
    ::GetWindowRect(notify, &notifyPlace_);
    ::MapWindowPoints(nullptr, taskbar, reinterpret_cast<POINT*>(&notifyPlace_), 2);
    shellClock_ = ::FindWindowExW(notify, nullptr, L"TrayClockWClass", nullptr);
    if (shellClock_)
        ::ShowWindow(shellClock_, SW_HIDE);
    ::SetParent(notify, window_.get());
    notifyArea_ = notify;
    program_.desktopChanges.TaskbarTakenOver = true;
    DesktopWindows::RecordChanges(program_);
}

void frmSystray::GiveNotifyAreaBack() {
    if (!notifyArea_)
        return;
    HWND taskbar = DesktopWindows::Taskbar();
    if (taskbar && ::IsWindow(notifyArea_)) {
        ::SetParent(notifyArea_, taskbar);
        ::SetWindowPos(notifyArea_, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        ::MoveWindow(notifyArea_, notifyPlace_.left, notifyPlace_.top, notifyPlace_.right - notifyPlace_.left,
                     notifyPlace_.bottom - notifyPlace_.top, TRUE);
        if (shellClock_ && ::IsWindow(shellClock_))
            ::ShowWindow(shellClock_, SW_SHOW);
    }
    notifyArea_ = nullptr;
    shellClock_ = nullptr;
    program_.desktopChanges.TaskbarTakenOver = false;
    DesktopWindows::RecordChanges(program_);
}

void frmSystray::tmrUpdateSystray_Timer() {
    Repaint(false);
}

// Lays the window out and paints it; a clock tick that changed neither text paints nothing.
void frmSystray::Repaint(bool force) {
    auto [time, date] = ClockTexts();
    if (!force && time == time_ && date == date_)
        return;
    time_ = std::move(time);
    date_ = std::move(date);
    const SettingsRec& settings = program_.settings;
    const MenuWindow::MenuFonts& fonts = surface_.fonts();
    using MenuWindow::FontRole;
    Size notify{};
    if (notifyArea_) {
        RECT rect{};
        ::GetWindowRect(notifyArea_, &rect);
        notify = {rect.right - rect.left, rect.bottom - rect.top};
    }
    int textHeight = fonts.Height(FontRole::Button);
    layout_ = LayOutSystray(settings, notify, fonts.Width(FontRole::Button, time_), fonts.Width(FontRole::Button, date_),
                            textHeight, surface_.dpi());
    place_ = PlaceSystray(settings, DesktopBarsWin::PlacementRoom(), layout_.window, settings.SystrayAutoHide,
                          surface_.dpi())
                 .systray;
    DesktopBarsWin::Place(window_.get(), place_);
    if (notifyArea_)
        ::MoveWindow(notifyArea_, layout_.notifyArea.left, layout_.notifyArea.top, notify.width, notify.height, TRUE);
    surface_.Paint(window_.get(), layout_.window,
                   SystrayOps(settings, surface_.pictures(), layout_, time_, date_, textHeight, surface_.dpi()));
}

LRESULT frmSystray::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (std::optional<LRESULT> common = DesktopBarsWin::CommonMessage(hwnd, message, surface_))
        return *common;
    switch (message) {
    case WM_LBUTTONDBLCLK:
        if (layout_.clock.Contains({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}))
            Launcher::StartCommandLine(kDateTimeApplet, SW_SHOWNORMAL);
        return 0;
    case WM_TIMER:
        if (wParam == kClockTimer)
            tmrUpdateSystray_Timer();
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

// --- frmSystrayButton ---

bool frmSystrayButton::Create(const Program& program) {
    if (window_)
        return true;
    if (!DesktopBarsWin::RegisterBarClass(kClassName, Win::FormWindowProc<frmSystrayButton>, 0) ||
        !DesktopBarsWin::CreateBarWindow(kClassName, this, program.settings.SystrayAlwaysOnTop))
        return false;
    surface_.Prepare(program.settings, program.values.ProgramFolder);
    if (!MenuWindow::FindListedFile(surface_.pictures(), kButtonIcon))
        icon_.reset(::CopyIcon(Win::LoadProgramIcon(program.instance, program.iconResource,
                                                    Dpi::Scale(16, surface_.dpi()))));
    return true;
}

void frmSystrayButton::ShowAt(const MenuWindow::Rect& place) {
    DesktopBarsWin::Place(window_.get(), place);
    Size size{place.Width(), place.Height()};
    const SettingsRec& settings = systray_.program().settings;
    MenuWindow::DrawList ops = BackgroundOps(settings, surface_.pictures(), size, surface_.dpi());
    int side = Dpi::Scale(16, surface_.dpi());
    MenuWindow::Rect iconArea = MenuWindow::RectAt({(size.width - side) / 2, (size.height - side) / 2}, {side, side});
    if (MenuWindow::FindListedFile(surface_.pictures(), kButtonIcon))
        ops.push_back(MenuWindow::PictureOp{iconArea, iconArea, kButtonIcon, MenuWindow::PictureFit::Icon});
    else
        ops.push_back(MenuWindow::IconOp{iconArea, 1});
    surface_.Paint(window_.get(), size, ops, [this](int) { return icon_.get(); });
    ::ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
}

void frmSystrayButton::Hide() {
    if (!window_)
        return;
    timer_.enabled = false;
    ApplyTimer();
    ::ShowWindow(window_.get(), SW_HIDE);
}

void frmSystrayButton::ArmAutoHide(const SettingsRec& settings) {
    timer_ = SystrayCollapse::Arm(timer_, settings.SystrayAutoHide, settings.SystrayHideDelay);
    ApplyTimer();
}

void frmSystrayButton::ApplyTimer() {
    if (timer_.enabled)
        ::SetTimer(window_.get(), kAutoHideTimer, static_cast<UINT>(timer_.interval), nullptr);
    else
        ::KillTimer(window_.get(), kAutoHideTimer);
}

void frmSystrayButton::tmrSystrayAutoHide_Timer() {
    SystrayCollapse::Step step = SystrayCollapse::Elapse(systray_.collapsed, timer_);
    if (step.hideSystray)
        systray_.HideForCollapse();
    systray_.collapsed = step.collapsed;
    timer_ = step.timer;
    ApplyTimer();
}

void frmSystrayButton::Form_MouseUp() {
    const SettingsRec& settings = systray_.program().settings;
    SystrayCollapse::Step step =
        SystrayCollapse::Toggle(systray_.collapsed, timer_, settings.SystrayAutoHide, settings.SystrayHideDelay);
    if (step.showSystray)
        systray_.ShowAgain();
    if (step.hideSystray)
        systray_.HideForCollapse();
    systray_.collapsed = step.collapsed;
    timer_ = step.timer;
    ApplyTimer();
}

LRESULT frmSystrayButton::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (std::optional<LRESULT> common = DesktopBarsWin::CommonMessage(hwnd, message, surface_))
        return *common;
    switch (message) {
    case WM_LBUTTONUP:
        Form_MouseUp();
        return 0;
    case WM_TIMER:
        if (wParam == kAutoHideTimer)
            tmrSystrayAutoHide_Timer();
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}
