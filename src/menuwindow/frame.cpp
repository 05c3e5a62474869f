#include "menuwindow/frame.h"

namespace MenuWindow {

std::vector<FrameLine> FrameLines(const MenuLook& look, const MenuShape& shape, Size window, int lineThickness) {
    std::vector<FrameLine> lines;
    if (shape.frameLines >= 1) {
        Colour dark = look.Menu3DFrame ? look.MenuFrameColor2 : look.MenuFrameColor;
        lines.push_back({{0, 0, window.width, window.height}, lineThickness, look.MenuFrameColor, dark});
    }
    if (shape.frameLines >= 2) {
        Rect inner = {lineThickness, lineThickness, window.width - lineThickness, window.height - lineThickness};
        lines.push_back({inner, lineThickness, look.MenuFrameColor3, look.MenuFrameColor4});
    }
    return lines;
}

} // namespace MenuWindow
