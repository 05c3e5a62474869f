#include "menuwindow/look/frame.h"

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

PartLook FrameOverBody(PartLook button, const MenuLook& look, const MenuShape& shape, bool horizontal) {
    if (!look.MenuFrameToBody || button.background != Background::Solid)
        return button;
    std::vector<FrameLine> lines = FrameLines(look, shape, {}, 0);
    if (lines.empty())
        return button;
    const FrameLine& inner = lines.back();
    button.background = Background::Gradient;
    button.gradient = {inner.light, inner.dark, horizontal ? kGradientLeftToRight : kGradientTopToBottom, false};
    button.overMenu = true;
    return button;
}

} // namespace MenuWindow
