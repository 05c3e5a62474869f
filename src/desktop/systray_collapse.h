// The systray copy collapsing to its button. A 16-bit flag says which of the two shows
// (-1 collapsed). tmrSystrayAutoHide is one-shot: when it elapses with the flag clear the
// systray window hides; in any case the timer stops. Releasing the mouse on the button
// toggles: collapsed, the systray window shows again and the timer is armed anew;
// otherwise the window hides; then the flag is inverted.
//
// Arming keeps the old arithmetic on purpose: the timer is on exactly when SystrayAutoHide
// is, and its interval is the larger of SystrayHideDelay x 1000 and 32767 ms, the product
// taken in 16 bits. So a delay of 33 or more overflows and the timer is left as it was, and
// every smaller delay collapses after about 33 seconds whatever it says.
#pragma once

#include <cstdint>
#include <optional>

namespace SystrayCollapse {

inline constexpr std::int16_t kCollapsed = -1;
inline constexpr int kInitialInterval = 5000; // the timer's interval until it is first armed

// The interval the timer is armed with; none when the 16-bit product overflows.
std::optional<int> ArmedInterval(std::int16_t hideDelay);

struct Timer {
    bool enabled = false;
    int interval = kInitialInterval;
    bool operator==(const Timer&) const = default;
};

// The timer after arming: unchanged when the interval overflows.
Timer Arm(Timer timer, bool autoHide, std::int16_t hideDelay);

struct Step {
    bool showSystray = false;
    bool hideSystray = false;
    std::int16_t collapsed = 0;
    Timer timer;
};

// The timer elapsed.
Step Elapse(std::int16_t collapsed, Timer timer);
// The mouse was released on the button.
Step Toggle(std::int16_t collapsed, Timer timer, bool autoHide, std::int16_t hideDelay);

} // namespace SystrayCollapse
