// How profile values are read as numbers and booleans; the settings load tests show the
// same rules through the keys.
#include "core/text.h"

#include <gtest/gtest.h>

#include <utility>

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

TEST(TextFirstCodePoint, ReadsOneWellFormedCharacterElseTheReplacement) {
    const std::pair<const char*, char32_t> cases[] = {
        {"", 0},           {"Ab", U'A'},       {"\xC3\xA9t\xC3\xA9", U'\u00E9'}, {"\xE6\x97\xA5", U'\u65E5'},
        {"\xF0\x9F\x98\x80", U'\U0001F600'},  {"\xC3", U'\uFFFD'},        {"\xC3(", U'\uFFFD'},
        {"\xC1\x81", U'\uFFFD'},               // 'A' in two bytes
        {"\xE0\x80\xAF", U'\uFFFD'},           // '/' in three bytes
        {"\xED\xA0\x80", U'\uFFFD'},           // a UTF-16 surrogate
        {"\xF4\x90\x80\x80", U'\uFFFD'},       // past U+10FFFF
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Text::FirstCodePoint(text), expected) << text;
}
