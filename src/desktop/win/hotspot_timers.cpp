#include "desktop/win/hotspot_timers.h"

#include "core/win/form1.h"
#include "desktop/hotspots.h"
#include "desktop/win/hotspot_opening.h"
#include "desktop/win/hotspot_windows.h"
#include "menus/win/launcher.h"
#include "menuwindow/win/form2.h"
#include "menuwindow/win/screen_area.h"

#include <windowsx.h>

#include <array>
#include <optional>

namespace {

constexpr UINT_PTR kTimer1 = HotspotTimers::kTimer1Id;
constexpr UINT_PTR kTimer3 = HotspotTimers::kTimer3Id;
constexpr UINT kTimer1Interval = 100;
constexpr UINT kTimer3Interval = 10;

// The keys as they are now, each asked once per look.
class KeysNow {
public:
    bool Down(int key) {
        if (key <= 0 || key >= static_cast<int>(seen_.size()))
            return false;
        std::optional<bool>& seen = seen_[static_cast<std::size_t>(key)];
        if (!seen)
            seen = (::GetAsyncKeyState(key) & 0x8000) != 0;
        return *seen;
    }

    Hotspots::KeyDown AsKeyDown() {
        return [this](int key) { return Down(key); };
    }

private:
    std::array<std::optional<bool>, 256> seen_{};
};

MenuWindow::Point CursorPoint() {
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return {cursor.x, cursor.y};
}

HWND AsWindow(std::uintptr_t window) {
    return reinterpret_cast<HWND>(window);
}

std::string TitleOf(std::uintptr_t window) {
    return HotspotWindows::TitleOf(AsWindow(window));
}

std::uintptr_t ParentOf(std::uintptr_t window) {
    return reinterpret_cast<std::uintptr_t>(::GetParent(AsWindow(window)));
}

Hotspots::MouseSample SampleMouse(KeysNow& keys, Hotspots::CursorLook& cursorLook) {
    Hotspots::MouseSample sample;
    sample.left = keys.Down(VK_LBUTTON);
    sample.right = keys.Down(VK_RBUTTON);
    sample.middle = keys.Down(VK_MBUTTON);
    const DWORD position = ::GetMessagePos();
    sample.cursor = cursorLook.Look({GET_X_LPARAM(position), GET_Y_LPARAM(position)}, CursorPoint);
    const POINT cursor{sample.cursor.x, sample.cursor.y};
    sample.windowAtCursor = [cursor] { return reinterpret_cast<std::uintptr_t>(::WindowFromPoint(cursor)); };
    sample.monitors = MenuWindow::CurrentMonitors();
    return sample;
}

Hotspots::ClickedWindow ClickedWindowOf(std::uintptr_t window) {
    Hotspots::WindowLookup lookup{TitleOf, ParentOf, reinterpret_cast<std::uintptr_t>(::GetDesktopWindow())};
    std::uintptr_t reference = Hotspots::ReferenceWindow(window, lookup);
    Hotspots::ClickedWindow clicked;
    clicked.title = Hotspots::HotspotTitle(reference, lookup);
    RECT rect{};
    ::GetWindowRect(AsWindow(reference), &rect);
    clicked.origin = {rect.left, rect.top};
    clicked.ours = HotspotWindows::IsOurs(AsWindow(reference));
    return clicked;
}

} // namespace

// Timer1 is off while it works, so that Timer3 does not call it again from a message
// loop that its work runs (a question, a menu's opening animation); back on at every exit.
class HotspotTimers::Timer1Pause {
public:
    explicit Timer1Pause(HotspotTimers& timers) : timers_(timers) { timers_.DisableTimer1(); }
    ~Timer1Pause() { timers_.EnableTimer1(); }
    Timer1Pause(const Timer1Pause&) = delete;
    Timer1Pause& operator=(const Timer1Pause&) = delete;

private:
    HotspotTimers& timers_;
};

void HotspotTimers::Start(HWND window) {
    window_ = window;
    ::SetTimer(window_, kTimer3, kTimer3Interval, nullptr);
}

// The keyboard hook is set as Timer1 first starts, at the end of start-up, rather than on
// Timer3's next tick: a hot key that works from then on keeps the keys typed after it.
void HotspotTimers::EnableTimer1() {
    if (stopped_ || !::IsWindow(window_))
        return;
    ::SetTimer(window_, kTimer1, kTimer1Interval, nullptr);
    timer1Enabled_ = true;
    earlyKeys_.Tick(form1_.program().settings, form1_.program().openMenus);
}

void HotspotTimers::DisableTimer1() {
    ::KillTimer(window_, kTimer1);
    timer1Enabled_ = false;
}

void HotspotTimers::Stop() {
    stopped_ = true;
    DisableTimer1();
    ::KillTimer(window_, kTimer3);
}

void HotspotTimers::Timer3_Timer() {
    const SettingsRec& settings = form1_.program().settings;
    Hotspots::TrackerDelays delays{settings.GenDblClickDelay, settings.GenBumpDelay};
    earlyKeys_.Tick(settings, form1_.program().openMenus);
    KeysNow keys;
    hotKeys_.Sample(settings, keys.AsKeyDown());
    if (Hotspots::TrackMouse(tracker_, event_, SampleMouse(keys, cursorLook_), delays) && timer1Enabled_)
        Timer1_Timer();
}

void HotspotTimers::Timer1_Timer() {
    Program& program = form1_.program();
    if (program.QuestionBusy || program.RebuildBusy) {
        hotKeys_.EndTick(); // keys pressed while busy fire nothing afterwards
        earlyKeys_.LetGo(program.openMenus, nullptr);
        return;
    }
    Timer1Pause pause(*this);
    if (Dispatch())
        hotKeys_.EndTick();
}

bool HotspotTimers::Dispatch() {
    Program& program = form1_.program();
    KeysNow keys;
    Hotspots::KeyDown down = keys.AsKeyDown();

    if (std::optional<int> requested = Hotspots::TakeRequestedHotspot(program.RequestedHotspot)) {
        Fire(*requested, {0, 0}, CursorPoint());
        return false;
    }
    if (std::optional<Hotspots::HotKey> general = Hotspots::GeneralHotKey(program.settings)) {
        Hotspots::HotKeyWatch::State state = hotKeys_.Check(*general, down);
        if (state == Hotspots::HotKeyWatch::State::Pressed)
            form1_.Show_Setup_Screen();
        if (state != Hotspots::HotKeyWatch::State::Up) {
            earlyKeys_.LetGo(program.openMenus, nullptr);
            return true;
        }
    }
    if (!event_.PendingClick) {
        Form2* opened = nullptr;
        if (std::optional<int> hotspot = Hotspots::HotspotByHotKey(program.settings.HotSpots, hotKeys_, down))
            opened = Fire(*hotspot, {0, 0}, CursorPoint());
        earlyKeys_.LetGo(program.openMenus, opened);
        return true;
    }
    event_.PendingClick = 0;
    if (Hotspots::QuietBump(program.settings, event_.PendingClickCode, HotspotWindows::ForegroundFillsMonitor))
        return false;
    std::optional<Hotspots::Choice> choice =
        Hotspots::ChooseHotspot(program.settings.HotSpots, event_.PendingClickCode, event_.ClickPoint, event_.ClickMonitor,
                                [this] { return ClickedWindowOf(event_.ClickWindow); });
    if (choice)
        Fire(choice->hotspot, choice->origin, event_.ClickPoint);
    return false;
}

Form2* HotspotTimers::Fire(int hotspot, MenuWindow::Point origin, MenuWindow::Point cursor) {
    Program& program = form1_.program();
    if (hotspot < 0 || static_cast<std::size_t>(hotspot) >= program.settings.HotSpots.size())
        return nullptr;
    // A copy: a command it runs may change the settings.
    const HotspotRec record = program.settings.HotSpots[static_cast<std::size_t>(hotspot)];
    Hotspots::Toggle toggle = Hotspots::DecideToggle(program.openMenus.records(), hotspot, record.GroupName);
    for (int id : toggle.bringForward) {
        if (Form2* menu = program.openMenus.WindowOf(id))
            menu->BringForward();
    }
    if (toggle.close != 0)
        program.openMenus.CloseHotspotMenu(toggle.close);
    if (!toggle.fire)
        return nullptr;
    switch (Hotspots::ActionOf(record.Type)) {
    case Hotspots::Action::RunProgram:
        Launcher::RunProgram(program, record.Menuname, record.StartPath, record.Menupath1, record.Menupath2, 0);
        break;
    case Hotspots::Action::RunCommand:
        Launcher::RunCommand(form1_, record.Menupath2);
        break;
    case Hotspots::Action::OpenMenu:
        return HotspotOpening::OpenHotspotMenu(program, hotspot, origin, cursor);
    }
    return nullptr;
}
