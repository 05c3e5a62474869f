// A text measure with round numbers: every byte of a text is 6 pixels wide in the
// button font and 8 in the title fonts; lines are 12 and 14 pixels high.
#pragma once

#include "menuwindow/paint/draw_list.h"

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace MenuWindow {

inline constexpr int kButtonCharWidth = 6;
inline constexpr int kTitleCharWidth = 8;
inline constexpr int kButtonLineHeight = 12;
inline constexpr int kTitleLineHeight = 14;

struct FakeMeasure : TextMeasure {
    int Width(FontRole font, std::string_view text) const override {
        int each = font == FontRole::Button ? kButtonCharWidth : kTitleCharWidth;
        return each * static_cast<int>(text.size());
    }
    int Height(FontRole font) const override { return font == FontRole::Button ? kButtonLineHeight : kTitleLineHeight; }
};

// The operations of one kind in a draw list, in order.
template <typename Op>
std::vector<Op> OpsOf(const DrawList& list) {
    std::vector<Op> ops;
    for (const DrawOp& op : list)
        if (const Op* found = std::get_if<Op>(&op))
            ops.push_back(*found);
    return ops;
}

// The colour a draw list leaves at a point: the last fill that covers it.
inline std::optional<Colour> FilledAt(const DrawList& list, Point p) {
    std::optional<Colour> colour;
    for (const FillOp& fill : OpsOf<FillOp>(list))
        if (fill.rect.Contains(p))
            colour = fill.colour;
    return colour;
}

} // namespace MenuWindow
