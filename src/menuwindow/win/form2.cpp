// Form2's window: its class, its procedure, and its life from creation to unloading.
#include "menuwindow/win/form2.h"

#include "menuwindow/look/menu_look.h"
#include "menuwindow/win/menu_choices.h"
#include "menuwindow/win/play_sound.h"
#include "menuwindow/win/ripple_menu.h"
#include "win/text_convert.h"

#include <windowsx.h>

namespace {

// Posted to a menu window to close the whole cascade once the message that chose an
// item is over: the windows go with their objects, which must not be in use then.
constexpr UINT kCloseCascadeMessage = WM_APP + 1;

MenuWindow::Point PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

constexpr MenuWindow::MenuTimer kTimers[] = {
    MenuWindow::MenuTimer::Scroll,      MenuWindow::MenuTimer::DropDown,      MenuWindow::MenuTimer::DoubleClick,
    MenuWindow::MenuTimer::FlashSelBar, MenuWindow::MenuTimer::SetForeground, MenuWindow::MenuTimer::UpdateTaskList,
    MenuWindow::MenuTimer::AimRest};

} // namespace

Form2::Form2(const SettingsRec& settings, const MenuTable& menus, std::string programFolder, OpenMenus& openMenus,
             int id)
    : settings_(settings), menus_(menus), programFolder_(std::move(programFolder)), openMenus_(openMenus), id_(id) {}

Form2::~Form2() {
    Form_Unload();
}

bool Form2::Create() {
    HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSEXW wc = Win::FormClass<Form2>(instance, kClassName);
    wc.style = CS_DROPSHADOW; // the system's soft shadow, where the system draws one
    if (!Win::RegisterFormClass(wc))
        return false;
    // A tool window never gets a taskbar button; the menu has no border or caption of
    // the system's, it paints all of itself.
    DWORD exStyle = host_ ? 0 : WS_EX_TOOLWINDOW | (openMenus_.forceOnTop ? WS_EX_TOPMOST : 0);
    DWORD style = host_ ? WS_CHILD | WS_CLIPSIBLINGS : WS_POPUP;
    HWND hwnd = ::CreateWindowExW(exStyle, kClassName, L"", style, 0, 0, 0, 0, host_, nullptr, instance, this);
    if (!hwnd)
        return false;
    SetLocalVariables();
    PaintMenu();
    if (Record().kind == kItemTaskList)
        ::SetTimer(hwnd, TimerId(MenuWindow::MenuTimer::UpdateTaskList), MenuWindow::kUpdateTaskListInterval, nullptr);
    return true;
}

void Form2::Show() {
    HWND hwnd = window_.get();
    MenuWindow::AnimationPlan plan = MenuWindow::PlanMenuAnimation(MenuWindow::AnimationSettingsFrom(settings_),
                                                                   Record().horizontal, scene_.layout.window);
    MenuWindow::CoverForRipple(hwnd, plan);
    ::ShowWindow(hwnd, SW_SHOW);
    RaiseAccessEvent(EVENT_SYSTEM_MENUPOPUPSTART, CHILDID_SELF);
    ::SetForegroundWindow(hwnd);
    ::UpdateWindow(hwnd);
    PlayOpenMenuSound();
    Animate(plan); // last: this object may be gone afterwards
}

// The animation clips the window; once it is over the window takes its own outline back.
void Form2::Animate(const MenuWindow::AnimationPlan& plan) {
    std::weak_ptr<bool> alive = lifetime_;
    int shown = MenuWindow::RippleMenu(window_.get(), picture_, plan);
    if (alive.expired())
        return;
    animationFramesShown_ = shown;
    ApplyOutline();
}

// A hotspot's menu plays the hotspot's sound; the hotspot index is -1 for a sub-menu.
void Form2::PlayEventSound(MenuWindow::SoundEvent event) {
    MenuWindow::SoundConditions conditions{MenuWindow::WaveDeviceAvailable(), settings_.GenSoundsOn, programFolder_};
    MenuWindow::PlaySoundFile(MenuWindow::EventSoundFile(settings_.SoundFx, event), conditions);
}

void Form2::PlayOpenMenuSound() {
    const MenuWindow::CascadeRec& record = Record();
    std::string_view hotspotSound;
    if (record.openedByHotspot && record.hotspot >= 0 &&
        static_cast<std::size_t>(record.hotspot) < settings_.HotSpots.size())
        hotspotSound = settings_.HotSpots[static_cast<std::size_t>(record.hotspot)].SoundPath;
    std::string_view menuSound;
    if (record.kind == kItemMenuName && record.menuNumber >= 1 && record.menuNumber <= menus_.MenuCount())
        menuSound = menus_.menus[static_cast<std::size_t>(record.menuNumber)].SOUNDPATH;
    MenuWindow::SoundConditions conditions{MenuWindow::WaveDeviceAvailable(), settings_.GenSoundsOn, programFolder_};
    MenuWindow::PlaySoundFile(MenuWindow::OpenMenuSoundFile(settings_.SoundFx, hotspotSound, menuSound), conditions);
}

void Form2::SetLocalVariables() {
    look_ = settings_;
}

MenuWindow::CascadeRec& Form2::Record() {
    return *openMenus_.records().Find(id_);
}

UINT_PTR Form2::TimerId(MenuWindow::MenuTimer timer) {
    return static_cast<UINT_PTR>(timer) + 1;
}

// A sub-menu tells its parent it went, unless the whole cascade is going.
void Form2::Form_Unload() {
    unloading_ = true;
    if (accessible_) {
        accessible_->Disconnect();
        accessible_.reset();
    }
    if (window_) {
        if (::IsWindowVisible(window_.get()))
            RaiseAccessEvent(EVENT_SYSTEM_MENUPOPUPEND, CHILDID_SELF);
        for (MenuWindow::MenuTimer timer : kTimers)
            ::KillTimer(window_.get(), TimerId(timer));
        if (::GetCapture() == window_.get())
            ::ReleaseCapture();
    }
    DestroyIconHandles();
    if (Form2* parent = Parent(); parent && !openMenus_.Closing())
        parent->NotifySubMenuClosed();
}

Form2* Form2::Parent() const {
    const MenuWindow::CascadeRec* record = openMenus_.records().Find(id_);
    return record && record->level > 1 ? openMenus_.WindowOf(record->parentId) : nullptr;
}

MenuWindow::Rect Form2::ScreenBounds() const {
    RECT rect{};
    ::GetWindowRect(window_.get(), &rect);
    return {rect.left, rect.top, rect.right, rect.bottom};
}

std::optional<MenuWindow::Point> Form2::CursorInWindow() const {
    POINT cursor{};
    if (!::GetCursorPos(&cursor) || ::WindowFromPoint(cursor) != window_.get())
        return std::nullopt;
    ::ScreenToClient(window_.get(), &cursor);
    return MenuWindow::Point{cursor.x, cursor.y};
}

void Form2::Form_Timer(UINT_PTR timer) {
    using MenuWindow::MenuTimer;
    if (timer == TimerId(MenuTimer::Scroll))
        Apply(interaction_.ScrollTick(scene_, CursorInWindow()));
    else if (timer == TimerId(MenuTimer::DropDown))
        Apply(interaction_.DropDownTick(scene_, CursorInWindow()));
    else if (timer == TimerId(MenuTimer::AimRest))
        Apply(interaction_.AimRestTick(scene_, CursorInWindow()));
    else if (timer == TimerId(MenuTimer::DoubleClick))
        Apply(interaction_.DoubleClickTick());
    else if (timer == TimerId(MenuTimer::FlashSelBar))
        Apply(interaction_.FlashTick());
    else if (timer == TimerId(MenuTimer::SetForeground))
        tmrSetForeground_Timer();
    else if (timer == TimerId(MenuTimer::UpdateTaskList))
        tmrUpdateTaskList_Timer();
}

void Form2::CloseCascade() {
    ::PostMessageW(window_.get(), kCloseCascadeMessage, 0, 0);
}

void Form2::tmrSetForeground_Timer() {
    ::KillTimer(window_.get(), TimerId(MenuWindow::MenuTimer::SetForeground));
    BringForward();
}

void Form2::BringForward() {
    if (openMenus_.choices)
        openMenus_.choices->ActivateTaskWindow(window_.get());
}

void Form2::DestroyIconHandles() {
    icons_.Clear();
}

LRESULT Form2::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        Picture2_Paint();
        return 0;
    case WM_PRINTCLIENT:
        Form_PrintClient(reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_LBUTTONDOWN:
        Form_MouseDown(MenuWindow::MouseButton::Left, wParam, PointOf(lParam));
        return 0;
    case WM_RBUTTONDOWN:
        Form_MouseDown(MenuWindow::MouseButton::Right, wParam, PointOf(lParam));
        return 0;
    case WM_MOUSEMOVE:
        Form_MouseMove(PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        Form_MouseUp(MenuWindow::MouseButton::Left, wParam, PointOf(lParam));
        return 0;
    case WM_RBUTTONUP:
        Form_MouseUp(MenuWindow::MouseButton::Right, wParam, PointOf(lParam));
        return 0;
    case WM_KEYDOWN:
        Form_KeyDown(wParam);
        return 0;
    case WM_KEYUP:
        Form_KeyUp(wParam);
        return 0;
    case WM_TIMER:
        Form_Timer(wParam);
        return 0;
    case WM_DPICHANGED:
        Form_DpiChanged(HIWORD(wParam));
        return 0;
    case WM_GETOBJECT:
        return Form_GetObject(wParam, lParam);
    case kAccessActionMessage:
        Form_AccessAction(static_cast<int>(wParam), lParam != 0);
        return 0;
    case kCloseCascadeMessage:
        openMenus_.CloseAll(); // this object is gone afterwards
        return 0;
    case WM_ERASEBKGND:
        return 1; // the picture covers every pixel; erasing first would only flicker
    case WM_CLOSE:
        // A menu window closes through the open menus (OpenMenus::Close), which removes
        // its record with it; going by itself would leave the record behind.
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}
