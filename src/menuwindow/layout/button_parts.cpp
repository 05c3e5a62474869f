#include "menuwindow/layout/button_parts.h"

#include <algorithm>

namespace MenuWindow {

Columns ItemColumns(const ItemMeasure& item, const MenuMetrics& metrics) {
    Columns columns;
    if (item.hasHotkey)
        columns.hotkey =
            metrics.hotkeySymbolWidth + metrics.hotkeyGap + std::max(0, item.hotkeyTextWidth) + metrics.hotkeyGap;
    if (item.hasArrow)
        columns.arrow = metrics.arrowColumn;
    return columns;
}

Columns MenuColumns(const std::vector<ItemMeasure>& items, const MenuMetrics& metrics) {
    Columns widest;
    for (const ItemMeasure& item : items) {
        Columns own = ItemColumns(item, metrics);
        widest.hotkey = std::max(widest.hotkey, own.hotkey);
        widest.arrow = std::max(widest.arrow, own.arrow);
    }
    return widest;
}

int TextStart(const MenuMetrics& metrics) {
    int iconEnd = metrics.icons ? metrics.iconMargin + metrics.iconSize : 0;
    return iconEnd + metrics.textOffset;
}

int NeededWidth(const ItemMeasure& item, const Columns& columns, const MenuMetrics& metrics) {
    return TextStart(metrics) + std::max(0, item.textWidth) + metrics.textRightMargin + columns.hotkey + columns.arrow;
}

ButtonParts PartsOf(Rect button, const ItemMeasure& item, const Columns& columns, const MenuMetrics& metrics) {
    ButtonParts parts;
    if (metrics.icons) {
        int top = button.top + (button.Height() - metrics.iconSize) / 2;
        int left = button.left + metrics.iconMargin;
        parts.icon = {left, top, left + metrics.iconSize, top + metrics.iconSize};
    }
    int arrowLeft = button.right - columns.arrow;
    int hotkeyLeft = arrowLeft - columns.hotkey;
    int textLeft = button.left + TextStart(metrics);
    int textRight = std::max(textLeft, hotkeyLeft - metrics.textRightMargin);
    parts.text = {textLeft, button.top, textRight, button.bottom};
    if (item.hasHotkey) {
        int symbolRight = hotkeyLeft + metrics.hotkeySymbolWidth;
        parts.hotkeySymbol = {hotkeyLeft, button.top, symbolRight, button.bottom};
        parts.hotkeyText = {symbolRight + metrics.hotkeyGap, button.top, arrowLeft - metrics.hotkeyGap, button.bottom};
    }
    if (item.hasArrow)
        parts.arrow = {arrowLeft, button.top, button.right, button.bottom};
    return parts;
}

} // namespace MenuWindow
