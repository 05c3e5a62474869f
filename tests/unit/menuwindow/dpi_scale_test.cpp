#include "menuwindow/dpi_scale.h"

#include <gtest/gtest.h>

TEST(DpiScale, ScalesByTheDpiRatioRoundingHalvesAwayFromZero) {
    const struct {
        int size, dpi, scaled;
    } cases[] = {
        {20, 96, 20},         {0, 96, 0},    {-6, 96, -6},               // 96 DPI leaves sizes alone
        {20, 144, 30},        {22, 192, 44}, {16, 120, 20},              // the ratio
        {15, 120, 19},        {3, 120, 4},   {1, 120, 1},   {1, 144, 2}, // 18.75, 3.75, 1.25, 1.5
        {2, 120, 3},          {-1, 144, -2}, {-3, 120, -4},              // 2.5, -1.5, -3.75
        {22, 0, 22},          {22, -96, 22},                             // an unknown DPI
        {32767, 480, 163835},                                            // no overflow
    };
    for (const auto& c : cases)
        EXPECT_EQ(Dpi::Scale(c.size, c.dpi), c.scaled) << c.size << " at " << c.dpi;
}
