// The title-bar buttons (close, rotate, roll-up, on-top): which show, in what order, and
// where they stand on the bar; and the room left for the title text.
//
// A ...Status value is a pair of switches: 1 shows the button on the active menu, 2 on
// the inactive one (the default 3 shows it on both; -1, all bits, too).
// A ...Position value picks the bar's end and the order from it: 0 and above count from
// the far end of the bar (the right end, or the top of a vertical bar, where its turned
// text ends), the smallest nearest the end; negative values count from the near end (the
// left, or the bottom of a vertical bar), -1 nearest it. The buttons are packed from each end
// in that order with no gaps for missing numbers; buttons with the same number take the
// order of their index (close, rotate, roll-up, on-top), the first nearest the end.
#pragma once

#include "menuwindow/layout/geometry.h"
#include "menuwindow/look/menu_look.h"

#include <vector>

namespace MenuWindow {

// The indices of the picButton controls.
enum class TitleButton { Close = 0, Rotate = 1, RollUp = 2, OnTop = 3 };

inline constexpr int kStatusActive = 1;
inline constexpr int kStatusInactive = 2;

struct PlacedTitleButton {
    TitleButton button = TitleButton::Close;
    Rect rect;
    bool atFarEnd = false;
    bool operator==(const PlacedTitleButton&) const = default;
};

// The shown buttons on a title bar, those at the far end first, each group in its order
// from the end. Each button is a square of the given size, cut to the bar's thickness;
// it is centred across the bar, and the same distance from the bar's end; neighbours
// stand gap pixels apart.
std::vector<PlacedTitleButton> PlaceTitleButtons(const MenuLook& look, bool inactiveWindow, Rect bar, bool verticalBar,
                                                 int size, int gap);

// The room for the title text: the bar between the buttons at its two ends, less the
// padding on both sides; empty when nothing is left. A vertical bar's turned text reads
// upwards, so it starts at the room's bottom: align it along the height from there.
Rect TitleTextRect(Rect bar, bool verticalBar, const std::vector<PlacedTitleButton>& buttons, int padding);

} // namespace MenuWindow
