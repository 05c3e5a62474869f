#include "core/text.h"

#include <gtest/gtest.h>

TEST(TextNumericValue, ReadsTheLeadingNumberLikeProfileValues) {
    EXPECT_EQ(Text::NumericValue("42"), 42.0);
    EXPECT_EQ(Text::NumericValue("  -7"), -7.0);
    EXPECT_EQ(Text::NumericValue("12abc"), 12.0);
    EXPECT_EQ(Text::NumericValue("abc"), 0.0);
    EXPECT_EQ(Text::NumericValue(""), 0.0);
    EXPECT_EQ(Text::NumericValue("1 2 3"), 123.0);
    EXPECT_EQ(Text::NumericValue("2.5"), 2.5);
    EXPECT_EQ(Text::NumericValue("1e3x"), 1000.0);
    EXPECT_EQ(Text::NumericValue("12e"), 12.0);
    EXPECT_EQ(Text::NumericValue("255,0,0"), 255.0);
    EXPECT_EQ(Text::NumericValue("--5"), 0.0);
}

TEST(TextNumericValue, ReadsHexAndOctalPrefixes) {
    EXPECT_EQ(Text::NumericValue("&HFF"), 255.0);
    EXPECT_EQ(Text::NumericValue("&hffff"), -1.0);
    EXPECT_EQ(Text::NumericValue("&O17"), 15.0);
    EXPECT_EQ(Text::NumericValue("&H"), 0.0);
}

TEST(TextRounding, RoundsHalfToEvenAndRefusesOverflow) {
    EXPECT_EQ(Text::ToInt16(2.5), 2);
    EXPECT_EQ(Text::ToInt16(3.5), 4);
    EXPECT_EQ(Text::ToInt16(-2.5), -2);
    EXPECT_EQ(Text::ToInt16(32767.0), 32767);
    EXPECT_EQ(Text::ToInt16(32767.6), std::nullopt);
    EXPECT_EQ(Text::ToInt16(-32768.0), -32768);
    EXPECT_EQ(Text::ToInt32(4294967295.0), std::nullopt);
    EXPECT_EQ(Text::ToInt32(-1.0), -1);
    EXPECT_EQ(Text::ToByte(255.4), 255);
    EXPECT_EQ(Text::ToByte(255.5), std::nullopt);
    EXPECT_EQ(Text::ToByte(-0.4), 0);
    EXPECT_EQ(Text::ToByte(-1.0), std::nullopt);
}

TEST(TextBool, AcceptsWordsAndNumbers) {
    EXPECT_EQ(Text::ToBool("True"), true);
    EXPECT_EQ(Text::ToBool("false"), false);
    EXPECT_EQ(Text::ToBool(" TRUE "), true);
    EXPECT_EQ(Text::ToBool("-1"), true);
    EXPECT_EQ(Text::ToBool("0"), false);
    EXPECT_EQ(Text::ToBool("5"), true);
    EXPECT_EQ(Text::ToBool(""), std::nullopt);
    EXPECT_EQ(Text::ToBool("yes"), std::nullopt);
    EXPECT_EQ(Text::ToBool("-"), std::nullopt);
}

TEST(TextCase, FoldsAsciiOnlyAndTrimsSpaces) {
    EXPECT_EQ(Text::ToUpper("TitleColor2 ä"), "TITLECOLOR2 ä");
    EXPECT_EQ(Text::ToLower("AUTOSTART"), "autostart");
    EXPECT_TRUE(Text::EqualsIgnoreCase("titlecolor", "TitleColor"));
    EXPECT_FALSE(Text::EqualsIgnoreCase("TitleColor", "TitleColor2"));
    EXPECT_TRUE(Text::StartsWithIgnoreCase("soundfx3", "SOUNDFX"));
    EXPECT_EQ(Text::Trim("  a b  "), "a b");
    EXPECT_EQ(Text::Trim("\ta\t"), "\ta\t");
}
