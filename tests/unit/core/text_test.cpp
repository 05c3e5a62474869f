// How profile values are read as numbers and booleans; the settings load tests show the
// same rules through the keys.
#include "core/text.h"

#include <gtest/gtest.h>

TEST(TextNumericValue, ReadsTheLeadingNumberLikeProfileValues) {
    EXPECT_EQ(Text::NumericValue("  -7"), -7.0);
    EXPECT_EQ(Text::NumericValue("1 2 3"), 123.0);
    EXPECT_EQ(Text::NumericValue("1e3x"), 1000.0);
    EXPECT_EQ(Text::NumericValue("--5"), 0.0);
    EXPECT_EQ(Text::NumericValue("&HFF"), 255.0);
    EXPECT_EQ(Text::NumericValue("&hffff"), -1.0) << "a 16-bit hex number";
    EXPECT_EQ(Text::NumericValue("&O17"), 15.0);
}

TEST(TextRounding, RoundsHalfToEvenAndRefusesOverflow) {
    EXPECT_EQ(Text::ToInt16(3.5), 4);
    EXPECT_EQ(Text::ToInt16(-2.5), -2);
    EXPECT_EQ(Text::ToInt16(32767.6), std::nullopt);
    EXPECT_EQ(Text::ToByte(255.4), 255);
    EXPECT_EQ(Text::ToByte(255.5), std::nullopt);
    EXPECT_EQ(Text::ToByte(-0.4), 0);
}
