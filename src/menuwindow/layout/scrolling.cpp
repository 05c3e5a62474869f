#include "menuwindow/layout/scrolling.h"

#include <algorithm>

namespace MenuWindow {

ScrollView PlanScroll(int count, int fittingSlots, int maxItems, bool twin, int first) {
    ScrollView view;
    view.count = std::max(0, count);
    view.twin = twin;
    int limit = std::min(fittingSlots, std::max(1, maxItems));
    if (view.count <= limit) {
        view.slots = view.count;
    } else {
        int fewest = twin ? kFewestSlotsCutTwin : kFewestSlotsCut;
        view.slots = std::min(view.count, std::max(limit, fewest));
    }
    return WithFirst(view, first);
}

ScrollView WithFirst(const ScrollView& view, int first) {
    ScrollView moved = view;
    moved.first = std::clamp(first, 0, LargestFirst(view));
    return moved;
}

bool IsCut(const ScrollView& view) {
    return view.count > view.slots;
}

int VisibleCount(const ScrollView& view) {
    return view.twin && IsCut(view) ? view.slots - 1 : view.slots;
}

int LargestFirst(const ScrollView& view) {
    return std::max(0, view.count - VisibleCount(view));
}

bool HiddenBefore(const ScrollView& view) {
    return view.first > 0;
}

bool HiddenAfter(const ScrollView& view) {
    return view.first + VisibleCount(view) < view.count;
}

ScrollSlot ScrollSlotAt(const ScrollView& view, int position) {
    if (!IsCut(view) || position < 1 || position > view.slots)
        return ScrollSlot::None;
    if (view.twin)
        return position == view.slots ? ScrollSlot::Twin : ScrollSlot::None;
    if (position == 1 && HiddenBefore(view))
        return ScrollSlot::TowardsStart;
    if (position == view.slots && HiddenAfter(view))
        return ScrollSlot::TowardsEnd;
    return ScrollSlot::None;
}

bool IsDrawn(const ScrollView& view, int position) {
    if (position < 1 || position > VisibleCount(view))
        return false;
    if (view.first + position > view.count)
        return false;
    return ScrollSlotAt(view, position) == ScrollSlot::None;
}

int FirstToShow(const ScrollView& view, int item) {
    if (item < 1 || item > view.count)
        return view.first;
    auto shows = [&](int first) { return IsDrawn(WithFirst(view, first), item - first); };
    int first = view.first;
    if (shows(first))
        return first;
    // A hidden item at position 1 or before lies behind the top scroll button or above it.
    if (item - first <= 1) {
        while (first > 0 && !shows(first))
            --first;
    } else {
        while (first < LargestFirst(view) && !shows(first))
            ++first;
    }
    return first;
}

} // namespace MenuWindow
