#include "menuwindow/layout/text_fit.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

// 7 pixels per character (per UTF-8 sequence).
int PerCharacter(std::string_view text) {
    int characters = 0;
    for (char c : text) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
            ++characters;
    }
    return 7 * characters;
}

int PerByte(std::string_view text) {
    return 7 * static_cast<int>(text.size());
}

std::string Fit(std::string_view text, int room) {
    return FitText(text, room, PerCharacter);
}

} // namespace

TEST(FitText, KeepsWhatFitsElseCutsBeforeAnEllipsis) {
    const struct {
        const char* text;
        int room;
        const char* shown;
    } cases[] = {
        {"Programs", 56, "Programs"},  {"Programs", 55, "Prog..."}, // one pixel short: "Progr..." would be 56
        {"My Documents", 42, "My..."},                              // "My " fits, but the blank before the dots goes
        {"Hello world", 21, "..."},                                 // no character fits beside the dots
        {"Hello world", 20, ""},                                    // not even the dots fit
        {"Hello world", -5, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Fit(c.text, c.room), c.shown) << c.text << " in " << c.room;
}

TEST(FitText, TakesTheLongestBeginningThatFits) {
    std::string text = "Accessories and system tools";
    for (int room = 21; room < 7 * 28; ++room) {
        std::string fitted = Fit(text, room);
        ASSERT_TRUE(fitted.ends_with("...")) << room;
        EXPECT_LE(7 * static_cast<int>(fitted.size()), room);
        std::string kept = fitted.substr(0, fitted.size() - 3);
        EXPECT_TRUE(text.starts_with(kept)) << fitted;
        // One character more would not fit (unless it was a blank that was dropped).
        std::size_t next = kept.size() + 1;
        while (next < text.size() && text[next - 1] == ' ')
            ++next;
        EXPECT_GT(7 * static_cast<int>(next + 3), room) << fitted;
    }
}

TEST(FitText, NeverCutsInsideAUtf8Character) {
    // Measured per byte, the first byte of "Ä" and "..." would just fit; half a character may not be shown.
    EXPECT_EQ(FitText("\xC3\x84pfel", 28, PerByte), "...");
    EXPECT_EQ(FitText("\xC3\x84pfel", 35, PerByte), "\xC3\x84...");
    EXPECT_EQ(FitText("\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E", 7 * 8, PerByte), "\xE6\x97\xA5...");
}

TEST(AlignedStart, PlacesTheTextInTheBoxAndAtItsStartWhenLonger) {
    EXPECT_EQ(AlignedStart(10, 100, 40, kAlignLeft), 10);
    EXPECT_EQ(AlignedStart(10, 100, 40, kAlignCentre), 40);
    EXPECT_EQ(AlignedStart(10, 100, 40, kAlignRight), 70);
    EXPECT_EQ(AlignedStart(10, 100, 41, kAlignCentre), 39);
    EXPECT_EQ(AlignedStart(10, 100, 40, 3), 10) << "other values align left";
    EXPECT_EQ(AlignedStart(10, 100, 120, kAlignRight), 10);
}
