#include "menuwindow/paint/repaint.h"

#include <algorithm>

namespace MenuWindow {

ButtonState StateOf(int item, const SelectionState& selection, bool selectionBar) {
    if (item < 1 || item != selection.selected)
        return ButtonState::Normal;
    if (selection.pressed)
        return ButtonState::Pressed;
    return selectionBar ? ButtonState::Selected : ButtonState::Normal;
}

std::vector<int> ButtonsToRepaint(const SelectionState& before, const SelectionState& after, bool selectionBar,
                                  const ScrollView& view) {
    std::vector<int> items;
    for (int item : {std::min(before.selected, after.selected), std::max(before.selected, after.selected)}) {
        if (item < 1 || (!items.empty() && items.back() == item))
            continue;
        if (StateOf(item, before, selectionBar) == StateOf(item, after, selectionBar))
            continue;
        if (IsDrawn(view, item - view.first))
            items.push_back(item);
    }
    return items;
}

} // namespace MenuWindow
