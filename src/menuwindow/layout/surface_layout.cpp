#include "menuwindow/layout/surface_layout.h"

namespace MenuWindow {

namespace {

// The sum of the widths of the horizontal buttons before a position.
int WidthsBefore(const SurfaceLayout& surface, int position) {
    int sum = 0;
    for (int p = 1; p < position && p <= static_cast<int>(surface.widths.size()); ++p)
        sum += surface.widths[static_cast<std::size_t>(p - 1)];
    return sum;
}

int WidthAt(const SurfaceLayout& surface, int position) {
    if (position < 1 || position > static_cast<int>(surface.widths.size()))
        return 0;
    return surface.widths[static_cast<std::size_t>(position - 1)];
}

} // namespace

Size SurfaceSize(const SurfaceLayout& surface) {
    if (surface.horizontal) {
        int buttons = WidthsBefore(surface, static_cast<int>(surface.widths.size()) + 1);
        return {surface.widths.empty() ? 0 : buttons + 1, surface.buttonHeight};
    }
    return {surface.buttonWidth, surface.view.slots * surface.buttonHeight};
}

Rect ButtonRect(const SurfaceLayout& surface, int position) {
    if (surface.horizontal) {
        int before = WidthsBefore(surface, position);
        return {before + 1, 0, before + WidthAt(surface, position) + 1, surface.buttonHeight};
    }
    return {0, (position - 1) * surface.buttonHeight, surface.buttonWidth, position * surface.buttonHeight};
}

int PositionAt(const SurfaceLayout& surface, Point point) {
    Size size = SurfaceSize(surface);
    if (point.x < 0 || point.y < 0 || point.x >= size.width || point.y >= size.height)
        return 0;
    if (!surface.horizontal)
        return point.y / surface.buttonHeight + 1;
    int start = 0;
    int position = 1;
    for (int width : surface.widths) {
        if (point.x < start + width)
            return position;
        start += width;
        ++position;
    }
    return position;
}

Hit HitTest(const SurfaceLayout& surface, Point point) {
    int position = PositionAt(surface, point);
    if (position == 0)
        return {};
    for (const ScrollButton& button : ScrollButtons(surface)) {
        if (button.rect.Contains(point))
            return {button.towardsEnd ? Hit::Kind::ScrollTowardsEnd : Hit::Kind::ScrollTowardsStart, 0};
    }
    int item = surface.view.first + position;
    if (item < 1 || item > surface.view.count)
        return {};
    return {Hit::Kind::Item, item};
}

std::vector<ScrollButton> ScrollButtons(const SurfaceLayout& surface) {
    std::vector<ScrollButton> buttons;
    for (int position = 1; position <= surface.view.slots; ++position) {
        Rect slot = ButtonRect(surface, position);
        switch (ScrollSlotAt(surface.view, position)) {
        case ScrollSlot::None:
            break;
        case ScrollSlot::TowardsStart:
            buttons.push_back({slot, false});
            break;
        case ScrollSlot::TowardsEnd:
            buttons.push_back({slot, true});
            break;
        case ScrollSlot::Twin: {
            int middle = slot.left + slot.Width() / 2;
            buttons.push_back({{slot.left, slot.top, middle, slot.bottom}, false});
            buttons.push_back({{middle, slot.top, slot.right, slot.bottom}, true});
            break;
        }
        }
    }
    return buttons;
}

int ButtonScreenStart(const SurfaceLayout& surface, int surfaceScreenStart, int position) {
    if (surface.horizontal)
        return surfaceScreenStart + WidthsBefore(surface, position);
    return surfaceScreenStart + (position - 1) * surface.buttonHeight;
}

} // namespace MenuWindow
