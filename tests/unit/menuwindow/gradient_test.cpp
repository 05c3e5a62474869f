#include "menuwindow/look/gradient.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

// The colour a pixel ends up with when the bands are filled in order.
Colour ColourAt(const std::vector<ColourBand>& bands, Point pixel) {
    Colour colour = -1;
    for (const ColourBand& band : bands) {
        if (band.rect.Contains(pixel))
            colour = band.colour;
    }
    return colour;
}

int Red(Colour c) {
    return c & 0xFF;
}

} // namespace

// Each part steps by (to - from + 1) / 63 per band, rounded: a colour of 63 bands, of which
// one band (or its red part alone, mask 0xFF) is checked.
TEST(GradientColours, EachPartStepsByItsDifferencePlusOneOver63) {
    const struct {
        Colour from, to;
        bool wrap;
        int band;
        Colour mask, colour;
    } cases[] = {
        // Equal colours: 1/63 per band, still 64 at band 31 (31/63 < 0.5), 65 from band 32 on.
        {0x404040, 0x404040, false, 0, 0xFFFFFF, 0x404040},
        {0x404040, 0x404040, false, 31, 0xFFFFFF, 0x404040},
        {0x404040, 0x404040, false, 32, 0xFFFFFF, 0x414141},
        {0x404040, 0x404040, false, 62, 0xFFFFFF, 0x414141},
        // Red 0 -> 255: 256/63 per band (4.06, 125.97, 251.94); green and blue 0 -> 0 at 62/63.
        {0x000000, 0x0000FF, false, 0, 0xFFFFFF, 0x000000},
        {0x000000, 0x0000FF, false, 1, 0xFFFFFF, 0x000004},
        {0x000000, 0x0000FF, false, 31, 0xFFFFFF, 0x00007E},
        {0x000000, 0x0000FF, false, 62, 0xFFFFFF, 0x0101FC},
        // Red 255 -> 0 falls by 254/63: 250.97, 5.03.
        {0x0000FF, 0x000000, false, 0, 0xFF, 255},
        {0x0000FF, 0x000000, false, 1, 0xFF, 251},
        {0x0000FF, 0x000000, false, 62, 0xFF, 5},
        // The parts are split by their place: blue 0x10 -> 0x50 reaches 16 + 62 * 65/63 = 79.97.
        {0x100000, 0x500000, false, 0, 0xFFFFFF, 0x100000},
        {0x100000, 0x500000, false, 62, 0xFFFFFF, 0x500101},
        // Wrapped, red 0 -> 255 doubled: 512/63 per band; band 32 reaches 260, shown as 255, and turns.
        {0x000000, 0x0000FF, true, 1, 0xFF, 8},
        {0x000000, 0x0000FF, true, 32, 0xFF, 255},
        {0x000000, 0x0000FF, true, 33, 0xFF, 252},
        {0x000000, 0x0000FF, true, 62, 0xFF, 16},
        // Wrapped, red 0 -> 1: 4/63 per band. Doubled and rounded, 2v reaches 2 at v = 0.76
        // (band 12); the bands from 8 (v >= 0.5) to 16 show red 1.
        {0x000000, 0x000001, true, 7, 0xFF, 0},
        {0x000000, 0x000001, true, 8, 0xFF, 1},
        {0x000000, 0x000001, true, 16, 0xFF, 1},
        {0x000000, 0x000001, true, 17, 0xFF, 0},
    };
    for (const auto& c : cases) {
        std::vector<Colour> colours = GradientColours({c.from, c.to, 0, c.wrap});
        ASSERT_EQ(colours.size(), 63u);
        EXPECT_EQ(colours[static_cast<std::size_t>(c.band)] & c.mask, c.colour)
            << std::hex << c.from << " to " << c.to << (c.wrap ? " wrapped" : "") << std::dec << ", band " << c.band;
    }
}

TEST(GradientColours, PartsAreClampedTo0And255) {
    // White to white would reach 255 + 62/63; wrapped black to black turns at once and
    // runs below 0.
    for (Colour c : GradientColours({0xFFFFFF, 0xFFFFFF, 0, false}))
        EXPECT_EQ(c, 0xFFFFFF);
    for (Colour c : GradientColours({0x000000, 0x000000, 0, true}))
        EXPECT_EQ(c, 0);
}

TEST(GradientColours, WrappedColoursComeBackAfterTheirTurn) {
    std::vector<Colour> colours = GradientColours({0x000000, 0x0000FF, 0, true});
    for (int band = 33; band < 63; ++band)
        EXPECT_LT(Red(colours[band]), Red(colours[band - 1])) << band;
}

TEST(GradientBands, LeftToRightStripsAcrossTheWidthAndTopToBottomStripsDownTheHeight) {
    std::vector<ColourBand> bands = GradientBands({126, 10}, {0x000000, 0x0000FF, kGradientLeftToRight, false});
    ASSERT_EQ(bands.size(), 63u);
    EXPECT_EQ(bands[1].rect, (Rect{2, 0, 4, 10}));
    EXPECT_EQ(bands[1].colour, GradientColours({0x000000, 0x0000FF, kGradientLeftToRight, false})[1]);
    bands = GradientBands({40, 189}, {0x000000, 0xFFFFFF, kGradientTopToBottom, false});
    ASSERT_EQ(bands.size(), 63u);
    EXPECT_EQ(bands[0].rect, (Rect{0, 0, 40, 3}));
    EXPECT_EQ(bands[62].rect, (Rect{0, 186, 40, 189}));
}

TEST(GradientBands, StraightBandsCoverTheSurfaceExactlyWhenItIsNotAMultipleOf63) {
    std::vector<ColourBand> bands = GradientBands({100, 7}, {0x000000, 0xFFFFFF, 0, false});
    ASSERT_EQ(bands.size(), 63u);
    int x = 0;
    for (const ColourBand& band : bands) {
        EXPECT_EQ(band.rect.left, x);
        EXPECT_TRUE(band.rect.Width() == 1 || band.rect.Width() == 2) << band.rect.Width();
        EXPECT_EQ(band.rect.top, 0);
        EXPECT_EQ(band.rect.bottom, 7);
        x = band.rect.right;
    }
    EXPECT_EQ(x, 100);
}

TEST(GradientBands, SurfacesNarrowerThan63PixelsKeepOnePixelBands) {
    GradientSpec spec{0x000000, 0x0000FF, kGradientTopToBottom, false};
    std::vector<ColourBand> bands = GradientBands({150, 22}, spec);
    ASSERT_EQ(bands.size(), 22u);
    int y = 0;
    for (const ColourBand& band : bands) {
        EXPECT_EQ(band.rect.top, y);
        EXPECT_EQ(band.rect.Height(), 1);
        y = band.rect.bottom;
    }
    EXPECT_EQ(y, 22);
    // The last row always shows the last colour.
    EXPECT_EQ(bands.back().colour, GradientColours(spec)[62]);
}

TEST(GradientBands, DiagonalRunsFromTheTopLeftToTheBottomRightCorner) {
    GradientSpec spec{0x000000, 0x0000FF, 2, false};
    std::vector<Colour> colours = GradientColours(spec);
    std::vector<ColourBand> bands = GradientBands({126, 63}, spec);
    ASSERT_EQ(bands.size(), 63u);
    for (int i = 0; i < 63; ++i)
        EXPECT_EQ(bands[i].rect, (Rect{2 * i, i, 126, 63})) << i;
    EXPECT_EQ(ColourAt(bands, {0, 0}), colours[0]);
    EXPECT_EQ(ColourAt(bands, {125, 62}), colours[62]);
    // Each band shows as an L-shaped strip: a pixel takes the band of its nearer edge.
    EXPECT_EQ(ColourAt(bands, {64, 10}), colours[10]);
    EXPECT_EQ(ColourAt(bands, {10, 40}), colours[5]);
    EXPECT_EQ(ColourAt(bands, {125, 0}), colours[0]);
    // Every pixel of a surface that is not a multiple of the bands is covered.
    std::vector<ColourBand> small = GradientBands({30, 20}, spec);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x)
            EXPECT_NE(ColourAt(small, {x, y}), -1) << x << "," << y;
}

TEST(GradientBands, EmptySurfaceHasNoBands) {
    EXPECT_TRUE(GradientBands({0, 20}, {}).empty());
    EXPECT_TRUE(GradientBands({-5, 20}, {}).empty());
}
