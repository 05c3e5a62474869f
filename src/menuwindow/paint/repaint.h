// Which buttons must be repainted when the selection or the press moves: only those
// whose drawn state changed, and only those that are drawn.
#pragma once

#include "menuwindow/layout/scrolling.h"

#include <vector>

namespace MenuWindow {

enum class ButtonState { Normal, Selected, Pressed };

struct SelectionState {
    int selected = 0;     // 1-based item, 0 for none
    bool pressed = false; // the selected item is held down
    bool operator==(const SelectionState&) const = default;
};

// How an item is drawn: pressed while it is the selected item and held down; with the
// selection bar (SelBar on) while it is selected; otherwise normal.
ButtonState StateOf(int item, const SelectionState& selection, bool selectionBar);

// The items whose drawn state differs between the two selections and which are drawn in
// the view, in increasing order.
std::vector<int> ButtonsToRepaint(const SelectionState& before, const SelectionState& after, bool selectionBar,
                                  const ScrollView& view);

} // namespace MenuWindow
