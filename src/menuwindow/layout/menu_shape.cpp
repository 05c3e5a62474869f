#include "menuwindow/layout/menu_shape.h"

namespace MenuWindow {

namespace {

TitlePlace PlaceOf(std::int16_t titlePosition) {
    switch (titlePosition) {
    case 1:
        return TitlePlace::Bottom;
    case 2:
        return TitlePlace::Left;
    default:
        return TitlePlace::Top;
    }
}

} // namespace

MenuShape ShapeOf(const MenuLook& look, bool horizontal, bool inactiveWindow) {
    MenuShape shape;
    shape.frameLines = look.MenuNoFrames != 0 ? 0 : (look.Menu3DFrame2 ? 2 : 1);
    shape.title = PlaceOf(look.TitlePosition);
    if (horizontal) {
        if (look.HorzButtonsOnly) {
            shape.title = TitlePlace::None;
            shape.frameLines = 0;
        } else if (look.HorzNoTitlebar) {
            shape.title = TitlePlace::None;
        } else if (look.MenuHorizontalStyle != 0) {
            shape.title = TitlePlace::Left;
        }
    }
    bool inactiveTitle = UsesInactiveLook(look, Part::Title, inactiveWindow);
    shape.titleOverFrame =
        shape.title != TitlePlace::None && (inactiveTitle ? look.TitleInactiveOverlap : look.TitleOverlap);
    return shape;
}

} // namespace MenuWindow
