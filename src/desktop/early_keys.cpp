#include "desktop/early_keys.h"

#include "desktop/hotspots.h"

#include <algorithm>

namespace Hotspots {

namespace {

// Shift, Ctrl and Alt, each also as its left and right key, and the Windows keys: they
// only change other keys, and the system must see them go up and down as they do.
constexpr int kShifts[] = {0x10, 0xA0, 0xA1};
constexpr int kCtrls[] = {0x11, 0xA2, 0xA3};
constexpr int kAlts[] = {0x12, 0xA4, 0xA5};
constexpr int kWindowsKeys[] = {0x5B, 0x5C};

template <std::size_t N>
bool Among(const int (&keys)[N], int key) {
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

template <std::size_t N>
bool AnyHeld(const int (&keys)[N], const std::vector<int>& down) {
    return std::any_of(down.begin(), down.end(), [&](int key) { return Among(keys, key); });
}

bool IsShiftKey(int key) {
    return Among(kShifts, key) || Among(kCtrls, key) || Among(kAlts, key) || Among(kWindowsKeys, key);
}

// The hotspot whose hot key the key, going down, completes.
const HotspotRec* HotspotOf(const TypedKey& key, const std::vector<HotspotRec>& hotSpots) {
    for (const HotspotRec& hotspot : hotSpots) {
        bool modifier = hotspot.ShiftHotKey ? key.modifiers.shift : key.modifiers.ctrl;
        if (hotspot.UseHotKey != 0 && hotspot.Hotkey == key.key && modifier)
            return &hotspot;
    }
    return nullptr;
}

} // namespace

EarlyKeys::Verdict EarlyKeys::See(TypedKey key, const std::vector<HotspotRec>& hotSpots,
                                  std::optional<HotKey>& pressedHotKey) {
    if (IsShiftKey(key.key)) {
        std::erase(shiftKeysDown_, key.key);
        if (!key.up)
            shiftKeysDown_.push_back(key.key);
        return Verdict::Pass;
    }
    key.modifiers = {AnyHeld(kShifts, shiftKeysDown_), AnyHeld(kCtrls, shiftKeysDown_), AnyHeld(kAlts, shiftKeysDown_)};
    if (key.up) {
        auto down = std::find(keptDown_.begin(), keptDown_.end(), key.key);
        if (!keeping_ || down == keptDown_.end())
            return Verdict::Pass;
        keptDown_.erase(down);
        kept_.push_back(key);
        return Verdict::Keep;
    }
    if (const HotspotRec* hotspot = HotspotOf(key, hotSpots)) {
        pressedHotKey = HotKey{hotspot->Hotkey, hotspot->ShiftHotKey};
        if (!keeping_ && ActionOf(hotspot->Type) == Action::OpenMenu) {
            keeping_ = true;
            since_ = key.time;
        }
        return Verdict::Pass;
    }
    if (!keeping_)
        return Verdict::Pass;
    if (std::find(keptDown_.begin(), keptDown_.end(), key.key) == keptDown_.end())
        keptDown_.push_back(key.key);
    kept_.push_back(key);
    return Verdict::Keep;
}

bool EarlyKeys::Overdue(std::uint32_t now) const {
    return keeping_ && (kept_.size() >= kEarlyKeysAtMost || now - since_ > kEarlyKeysMilliseconds);
}

std::optional<TypedKey> EarlyKeys::Next() {
    if (kept_.empty()) {
        keeping_ = false;
        keptDown_.clear(); // their ups go where their downs went
        return std::nullopt;
    }
    TypedKey key = kept_.front();
    kept_.pop_front();
    return key;
}

} // namespace Hotspots
