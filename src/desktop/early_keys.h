// Keys typed right after a hot key, before its menu can take them: kept in the order they
// came and handed to the menu once it stands painted with the keyboard, or sent on to
// where they were going when no menu comes. The shell watches every key as it is typed
// (before any window gets it) and asks here what to do with it.
#pragma once

#include "core/settings.h"
#include "desktop/hotspot_dispatch.h"
#include "menuwindow/interaction/menu_interaction.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace Hotspots {

// A key going down or up, as typed.
struct TypedKey {
    int key = 0; // virtual-key code
    unsigned scanCode = 0;
    bool extended = false; // an extended key: the arrows, Home and End of the grey block, ...
    bool up = false;
    MenuWindow::Modifiers modifiers; // the shift keys held as it came: EarlyKeys fills them in
    std::uint32_t time = 0;          // milliseconds, the clock of message times (it wraps)
    bool operator==(const TypedKey&) const = default;
};

// Kept keys wait no longer than this for a menu, and no more than kEarlyKeysAtMost are
// kept: beyond either the menu is not coming soon, and they go on where they were going.
inline constexpr std::uint32_t kEarlyKeysMilliseconds = 2000;
inline constexpr std::size_t kEarlyKeysAtMost = 32;

class EarlyKeys {
public:
    enum class Verdict { Pass, Keep };

    // A key as it is typed; the shift keys held are those seen going down and not yet up
    // (asking the system for them here may answer from before the last key). Keeping
    // starts with the hot key of a hotspot that opens a menu, which itself passes (the hot
    // keys are looked at by their state) and is told through pressedHotKey, so that even a
    // tap too brief to be seen down fires. While keeping, every other key going down is
    // kept with its going up; the shift keys, hot keys and the ups of keys that went down
    // before pass.
    Verdict See(TypedKey key, const std::vector<HotspotRec>& hotSpots, std::optional<HotKey>& pressedHotKey);

    bool Keeping() const { return keeping_; }
    // The kept keys have waited too long, or too many came: they should go on now.
    bool Overdue(std::uint32_t now) const;
    // The next kept key, in the order they came; none ends keeping. Keys typed while the
    // kept ones are handed on are kept behind them, so none overtakes another.
    std::optional<TypedKey> Next();

private:
    bool keeping_ = false;
    std::uint32_t since_ = 0;
    std::deque<TypedKey> kept_;
    std::vector<int> keptDown_; // keys kept going down, whose going up is kept too
    std::vector<int> shiftKeysDown_;
};

} // namespace Hotspots
