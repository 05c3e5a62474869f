#include "desktop/systray_collapse.h"

#include <algorithm>

namespace SystrayCollapse {

std::optional<int> ArmedInterval(std::int16_t hideDelay) {
    int product = hideDelay * 1000;
    if (product > INT16_MAX || product < INT16_MIN)
        return std::nullopt;
    return std::max(product, static_cast<int>(INT16_MAX));
}

Timer Arm(Timer timer, bool autoHide, std::int16_t hideDelay) {
    std::optional<int> interval = ArmedInterval(hideDelay);
    if (!interval)
        return timer;
    return {autoHide, *interval};
}

Step Elapse(std::int16_t collapsed, Timer timer) {
    Step step;
    step.collapsed = collapsed;
    if (collapsed != kCollapsed) {
        step.hideSystray = true;
        step.collapsed = kCollapsed;
    }
    step.timer = timer;
    step.timer.enabled = false;
    return step;
}

Step Toggle(std::int16_t collapsed, Timer timer, bool autoHide, std::int16_t hideDelay) {
    Step step;
    step.timer = timer;
    if (collapsed == kCollapsed) {
        step.showSystray = true;
        step.timer = Arm(timer, autoHide, hideDelay);
    } else {
        step.hideSystray = true;
    }
    step.collapsed = static_cast<std::int16_t>(~collapsed); // Not, as the 16-bit flag is inverted
    return step;
}

} // namespace SystrayCollapse
