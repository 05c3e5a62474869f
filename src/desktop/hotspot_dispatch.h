// Timer1's half of the hotspots: which hotspot a hot key, a click or a bump fires, and
// what firing it does to the menus already open (the toggle and group rule).
#pragma once

#include "core/settings.h"
#include "menuwindow/interaction/cascade.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Hotspots {

// Whether a key (a virtual-key code) is down, or went down since the last look.
using KeyDown = std::function<bool(int virtualKey)>;

inline constexpr int kShiftKey = 0x10;
inline constexpr int kControlKey = 0x11;

// The App of a desktop hotspot; it also matches the shell's desktop, "Program Manager".
inline constexpr std::string_view kDesktopApp = "Desktop";
inline constexpr std::string_view kShellDesktopTitle = "Program Manager";
// A window titled so (in any case) is taken for one of this program's, which fire nothing.
inline constexpr std::string_view kOwnTitle = "tarvex";

// A hot key: a key with Shift or with Ctrl.
struct HotKey {
    int key = 0;
    bool shift = false;
    bool operator==(const HotKey&) const = default;
};

// Hot keys fire when they are pressed: a combination held down fires once, not on every
// tick it stays down, so holding it does not open and close a menu over and over. Timer1
// looks every 100 ms, so Timer3 samples the hot keys in use every 10 ms in between: one
// tapped between two of Timer1's ticks still fires.
class HotKeyWatch {
public:
    enum class State { Up, Pressed, Held };

    // Timer3: notes which hot keys in use (the general one, the hotspots') are down, and
    // lets one that fired fire again once it is let go.
    void Sample(const SettingsRec& settings, const KeyDown& down);
    // Timer1: whether a hot key is down or was since Timer1's last tick.
    State Check(HotKey hotKey, const KeyDown& down);
    // A hot key seen going down as it was typed: noted as a sample would note it, so that
    // a tap too brief for the samples still fires.
    void Press(HotKey hotKey);
    // Timer1, at the end of its tick: what was sampled is used up.
    void EndTick() { pressed_.clear(); }

private:
    void Note(HotKey hotKey, const KeyDown& down);

    std::vector<HotKey> pressed_; // seen down since Timer1's last tick
    std::optional<HotKey> held_;  // fired and not let go since
};

// The general hot key, which opens the preferences; none when GenUseHotKey is off.
std::optional<HotKey> GeneralHotKey(const SettingsRec& settings);

// The first hotspot, in index order, whose hot key is pressed; none when no hot key is
// down or the first one down is still held from its last firing.
std::optional<int> HotspotByHotKey(const std::vector<HotspotRec>& hotSpots, HotKeyWatch& watch, const KeyDown& down);

// The window a click landed on, as the hotspots see it: the first window with a title
// found by climbing from the window under the click to its parents.
struct ClickedWindow {
    std::string title;
    MenuWindow::Point origin; // its top-left corner on the screen
    bool ours = false;        // a window of this program's
};

// Climbs from a window to the first one with a title; the desktop window without one is
// named "Desktop". Titles are read up to 255 characters.
struct WindowLookup {
    std::function<std::string(std::uintptr_t)> title;
    std::function<std::uintptr_t(std::uintptr_t)> parent;
    std::uintptr_t desktop = 0;
};
std::uintptr_t ReferenceWindow(std::uintptr_t window, const WindowLookup& lookup);
std::string HotspotTitle(std::uintptr_t window, const WindowLookup& lookup);

struct Choice {
    int hotspot = 0;
    MenuWindow::Point origin; // the top-left of the window the hotspot belongs to
};

// A hotspot's Monitor: its bumps and middle clicks anywhere count on every monitor, or
// only on the one of that number.
inline constexpr std::int16_t kAnyMonitor = 0;

// The hotspot a click or bump event fires. Bumps and a middle click (as code 11) take
// the first hotspot of their code anywhere on the screen whose Monitor is any or the
// event's monitor (its number; 0 when off every monitor); clicks take the first hotspot
// of the clicked window (or "Desktop" for "Program Manager") whose rectangle holds the
// point, relative to that window, bounds included. The window is looked at only when a
// rectangle has to be tested; one of this program's own, or one titled "tarvex", fires nothing.
std::optional<Choice> ChooseHotspot(const std::vector<HotspotRec>& hotSpots, std::int16_t code,
                                    MenuWindow::Point clickPoint, int monitor,
                                    const std::function<ClickedWindow()>& clickedWindow);

// Whether an event goes unanswered: a corner or edge bump, with GenQuietFullScreen on,
// while the foreground window fills its monitor (asked only then).
bool QuietBump(const SettingsRec& settings, std::int16_t code, const std::function<bool()>& foregroundFillsMonitor);

// What firing a hotspot does to the open menus, walked from the first: its own menu
// closes (firing it again is a toggle) or, when AlwaysOpen, comes forward and stays; a
// menu of its group that is not AlwaysOpen closes. Either close ends the firing.
struct Toggle {
    std::vector<int> bringForward; // menu identifiers
    int close = 0;                 // a menu identifier; 0 for none
    bool fire = true;              // open or run what the hotspot names
};
Toggle DecideToggle(const MenuWindow::CascadeList& openMenus, int hotspot, std::string_view groupName);

} // namespace Hotspots
