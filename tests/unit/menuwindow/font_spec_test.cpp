// The fonts themselves, their faces and the fallback to Arial are the Wine font tests'.
#include "menuwindow/look/font_spec.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

TEST(CharacterHeight, PointsAtTheDpiAsANegativePixelHeight) {
    EXPECT_EQ(CharacterHeight(9, 96), -12);
    EXPECT_EQ(CharacterHeight(9, 120), -15);
    EXPECT_EQ(CharacterHeight(10, 144), -20);
}
