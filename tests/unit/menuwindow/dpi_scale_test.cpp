#include "menuwindow/look/dpi_scale.h"

#include <gtest/gtest.h>

TEST(DpiScale, ScalesByTheDpiRatioRoundingHalvesAwayFromZero) {
    const struct {
        int size, dpi, scaled;
    } cases[] = {
        {20, 96, 20}, {20, 144, 30},        {15, 120, 19}, // 18.75
        {2, 120, 3},  {-1, 144, -2},                       // 2.5, -1.5
        {22, 0, 22},  {32767, 480, 163835},                // an unknown DPI; no overflow
    };
    for (const auto& c : cases)
        EXPECT_EQ(Dpi::Scale(c.size, c.dpi), c.scaled) << c.size << " at " << c.dpi;
}
