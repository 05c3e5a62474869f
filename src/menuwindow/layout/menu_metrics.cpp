#include "menuwindow/layout/menu_metrics.h"

#include "menuwindow/look/dpi_scale.h"

#include <algorithm>

namespace MenuWindow {

MenuMetrics MetricsOf(const MenuLook& look, int dpi) {
    auto scaled = [dpi](int px) { return Dpi::Scale(px, dpi); };
    MenuMetrics m;
    m.titleThickness = std::max(0, scaled(look.TitleVSize));
    m.buttonHeight = std::max(1, scaled(look.ButtonVSize));
    m.minWidth = std::max(scaled(look.ButtonMinWidth), scaled(kSmallestMenuWidth));
    m.maxWidth = std::max(0, scaled(look.ButtonMaxWidth));
    m.textOffset = std::max(0, scaled(look.ButtonTextOfset));
    m.icons = look.ButtonIcons;
    m.iconSize = std::max(0, scaled(look.ButtonIconSize));
    m.iconMargin = scaled(kIconMargin);
    m.textRightMargin = scaled(kTextRightMargin);
    m.arrowColumn = scaled(kArrowColumn);
    m.hotkeySymbolWidth = scaled(kHotkeySymbolWidth);
    m.hotkeyGap = scaled(kHotkeyGap);
    m.frameLine = std::max(1, scaled(kFrameLine));
    m.titleButtonSize = scaled(kTitleButtonSize);
    m.titleButtonGap = scaled(kTitleButtonGap);
    m.titleTextPadding = scaled(kTitleTextPadding);
    m.subMenuOverlap = scaled(kSubMenuOverlap);
    return m;
}

} // namespace MenuWindow
