// The colour gradient of title bars, buttons and the selection bar: 63 bands from a
// start colour to an end colour. The shell only fills the bands, in order.
#pragma once

#include "menuwindow/layout/geometry.h"

#include <vector>

namespace MenuWindow {

inline constexpr int kGradientBands = 63;

// Gradient types: 0 runs left to right (the bands are upright strips side by side),
// 1 runs top to bottom (lying strips stacked); any other value runs diagonally from
// the top-left corner to the bottom-right one.
inline constexpr int kGradientLeftToRight = 0;
inline constexpr int kGradientTopToBottom = 1;

struct GradientSpec {
    Colour from = 0;
    Colour to = 0;
    int type = kGradientLeftToRight;
    bool wrap = false; // run to the end colour and back
    bool operator==(const GradientSpec&) const = default;
};

struct ColourBand {
    Rect rect;
    Colour colour = 0;
    bool operator==(const ColourBand&) const = default;
};

// The 63 band colours, first to last.
std::vector<Colour> GradientColours(const GradientSpec& spec);

// The bands for a surface of the given size, relative to its top-left corner, to be
// filled in the order given. Band i of the straight types spans from i * extent / 63 to
// (i + 1) * extent / 63 (whole-number division), so the bands differ in size by at most
// one pixel and together cover the surface exactly; bands that come out empty on a
// surface narrower than 63 pixels are left out. Band i of the diagonal type is the box
// from (i * width / 63, i * height / 63) to the bottom-right corner: each band covers
// the corner of the one before, leaving it an L-shaped strip, so the colour runs along
// the diagonal while every band is still one filled box.
std::vector<ColourBand> GradientBands(Size surface, const GradientSpec& spec);

} // namespace MenuWindow
