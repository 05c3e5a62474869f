#include "desktop/hotspot_dispatch.h"

#include "core/text.h"
#include "desktop/click_tracker.h"

#include <algorithm>

namespace Hotspots {

namespace {

constexpr int kLastClickCode = kRightClick;

bool IsDown(HotKey hotKey, const KeyDown& down) {
    return down(hotKey.shift ? kShiftKey : kControlKey) && down(hotKey.key);
}

bool InRectangle(const HotspotRec& hotspot, MenuWindow::Point point) {
    return hotspot.x1 <= point.x && point.x <= hotspot.x2 && hotspot.y1 <= point.y && point.y <= hotspot.y2;
}

bool BelongsTo(const HotspotRec& hotspot, std::string_view title) {
    return hotspot.App == title || (hotspot.App == kDesktopApp && title == kShellDesktopTitle);
}

std::optional<int> FirstOfCode(const std::vector<HotspotRec>& hotSpots, std::int16_t code, int monitor) {
    for (std::size_t i = 0; i < hotSpots.size(); ++i) {
        const HotspotRec& hotspot = hotSpots[i];
        if (hotspot.MouseButton == code && (hotspot.Monitor == kAnyMonitor || hotspot.Monitor == monitor))
            return static_cast<int>(i);
    }
    return std::nullopt;
}

} // namespace

void HotKeyWatch::Sample(const SettingsRec& settings, const KeyDown& down) {
    if (held_ && !IsDown(*held_, down))
        held_.reset();
    if (std::optional<HotKey> general = GeneralHotKey(settings))
        Note(*general, down);
    for (const HotspotRec& hotspot : settings.HotSpots) {
        if (hotspot.UseHotKey != 0)
            Note({hotspot.Hotkey, hotspot.ShiftHotKey}, down);
    }
}

void HotKeyWatch::Note(HotKey hotKey, const KeyDown& down) {
    if (IsDown(hotKey, down))
        Press(hotKey);
}

// One that fired and is still down is no new press: noted, it would fire again on the
// next look although it was let go in between.
void HotKeyWatch::Press(HotKey hotKey) {
    if (held_ != hotKey && std::find(pressed_.begin(), pressed_.end(), hotKey) == pressed_.end())
        pressed_.push_back(hotKey);
}

HotKeyWatch::State HotKeyWatch::Check(HotKey hotKey, const KeyDown& down) {
    bool pressed = IsDown(hotKey, down) || std::find(pressed_.begin(), pressed_.end(), hotKey) != pressed_.end();
    if (!pressed)
        return State::Up;
    if (held_ == hotKey)
        return State::Held;
    held_ = hotKey;
    return State::Pressed;
}

std::optional<HotKey> GeneralHotKey(const SettingsRec& settings) {
    if (!settings.GenUseHotKey)
        return std::nullopt;
    return HotKey{settings.GenHotKey, settings.GenShiftHotKey};
}

std::optional<int> HotspotByHotKey(const std::vector<HotspotRec>& hotSpots, HotKeyWatch& watch, const KeyDown& down) {
    for (std::size_t i = 0; i < hotSpots.size(); ++i) {
        const HotspotRec& hotspot = hotSpots[i];
        if (hotspot.UseHotKey == 0)
            continue;
        switch (watch.Check({hotspot.Hotkey, hotspot.ShiftHotKey}, down)) {
        case HotKeyWatch::State::Up:
            continue;
        case HotKeyWatch::State::Pressed:
            return static_cast<int>(i);
        case HotKeyWatch::State::Held:
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::uintptr_t ReferenceWindow(std::uintptr_t window, const WindowLookup& lookup) {
    while (window != 0 && lookup.title(window).empty()) {
        std::uintptr_t parent = lookup.parent(window);
        if (parent == 0)
            break;
        window = parent;
    }
    return window;
}

std::string HotspotTitle(std::uintptr_t window, const WindowLookup& lookup) {
    std::string title = lookup.title(window);
    if (title.empty() && window == lookup.desktop)
        return std::string(kDesktopApp);
    return title;
}

std::optional<Choice> ChooseHotspot(const std::vector<HotspotRec>& hotSpots, std::int16_t code,
                                    MenuWindow::Point clickPoint, int monitor,
                                    const std::function<ClickedWindow()>& clickedWindow) {
    if (code == kMiddleClick)
        code = kMiddleAnywhere;
    if (code > kLastClickCode) {
        if (std::optional<int> hotspot = FirstOfCode(hotSpots, code, monitor))
            return Choice{*hotspot, {0, 0}};
        if (code != kMiddleAnywhere)
            return std::nullopt;
        code = kMiddleClick;
    }
    ClickedWindow window = clickedWindow();
    if (window.ours || Text::ToLower(window.title) == kOwnTitle)
        return std::nullopt;
    MenuWindow::Point relative{clickPoint.x - window.origin.x, clickPoint.y - window.origin.y};
    for (std::size_t i = 0; i < hotSpots.size(); ++i) {
        const HotspotRec& hotspot = hotSpots[i];
        if (BelongsTo(hotspot, window.title) && hotspot.MouseButton == code && InRectangle(hotspot, relative))
            return Choice{static_cast<int>(i), window.origin};
    }
    return std::nullopt;
}

bool QuietBump(const SettingsRec& settings, std::int16_t code, const std::function<bool()>& foregroundFillsMonitor) {
    bool bump = code >= kTopLeftCorner && code <= kRightEdge;
    return bump && settings.GenQuietFullScreen && foregroundFillsMonitor();
}

Toggle DecideToggle(const MenuWindow::CascadeList& openMenus, int hotspot, std::string_view groupName) {
    Toggle toggle;
    for (int index = 1; index <= openMenus.Count(); ++index) {
        const MenuWindow::CascadeRec& menu = openMenus.At(index);
        if (!menu.openedByHotspot)
            continue;
        if (menu.hotspot == hotspot) {
            toggle.fire = false;
            if (!menu.alwaysOpen) {
                toggle.close = menu.id;
                return toggle;
            }
            toggle.bringForward.push_back(menu.id);
        } else if (!menu.alwaysOpen && menu.groupName == groupName) {
            toggle.close = menu.id;
            toggle.fire = false;
            return toggle;
        }
    }
    return toggle;
}

} // namespace Hotspots
