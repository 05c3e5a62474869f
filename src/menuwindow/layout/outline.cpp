#include "menuwindow/layout/outline.h"

namespace MenuWindow {

std::optional<Rect> WindowOutline(const MenuLayout& layout, bool rolledUp) {
    if (!rolledUp)
        return std::nullopt;
    const Rect& title = layout.title;
    Size window = layout.window;
    switch (layout.titlePlace) {
    case TitlePlace::Top:
        return Rect{0, 0, window.width, title.bottom};
    case TitlePlace::Bottom:
        return Rect{0, title.top, window.width, window.height};
    case TitlePlace::Left:
        return Rect{0, 0, title.right, window.height};
    case TitlePlace::None:
        break;
    }
    return std::nullopt;
}

} // namespace MenuWindow
