#include "menuwindow/dpi_scale.h"

#include <gtest/gtest.h>

TEST(DpiScale, LeavesSizesAlone_At96Dpi) {
    EXPECT_EQ(Dpi::Scale(20, 96), 20);
    EXPECT_EQ(Dpi::Scale(0, 96), 0);
    EXPECT_EQ(Dpi::Scale(-6, 96), -6);
}

TEST(DpiScale, ScalesByTheDpiRatio) {
    EXPECT_EQ(Dpi::Scale(20, 144), 30);
    EXPECT_EQ(Dpi::Scale(22, 192), 44);
    EXPECT_EQ(Dpi::Scale(16, 120), 20);
}

TEST(DpiScale, RoundsToTheNearestPixelWithHalvesAwayFromZero) {
    EXPECT_EQ(Dpi::Scale(15, 120), 19); // 18.75
    EXPECT_EQ(Dpi::Scale(3, 120), 4);   // 3.75
    EXPECT_EQ(Dpi::Scale(1, 120), 1);   // 1.25
    EXPECT_EQ(Dpi::Scale(1, 144), 2);   // 1.5
    EXPECT_EQ(Dpi::Scale(2, 120), 3);   // 2.5
    EXPECT_EQ(Dpi::Scale(-1, 144), -2); // -1.5
    EXPECT_EQ(Dpi::Scale(-3, 120), -4); // -3.75
}

TEST(DpiScale, UnknownDpiLeavesTheSizeUnscaled) {
    EXPECT_EQ(Dpi::Scale(22, 0), 22);
    EXPECT_EQ(Dpi::Scale(22, -96), 22);
}

TEST(DpiScale, LargeSizesDoNotOverflow) {
    EXPECT_EQ(Dpi::Scale(32767, 480), 163835);
}
