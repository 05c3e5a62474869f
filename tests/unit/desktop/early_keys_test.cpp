#include "desktop/early_keys.h"

#include <gtest/gtest.h>

using namespace Hotspots;

namespace {

constexpr int kCtrl = 0x11, kLeftCtrl = 0xA2, kShift = 0x10, kF5 = 0x74, kF6 = 0x75, kDown = 0x28, kReturn = 0x0D;

HotspotRec Spot(int key, bool shift, std::uint8_t type) {
    HotspotRec hotspot;
    hotspot.UseHotKey = 1;
    hotspot.Hotkey = static_cast<std::int16_t>(key);
    hotspot.ShiftHotKey = shift;
    hotspot.Type = type;
    return hotspot;
}

// F5 with Ctrl shows a menu (type 1), F6 with Shift runs a program (type 2).
const std::vector<HotspotRec> kSpots = {Spot(kF5, false, 1), Spot(kF6, true, 2)};

struct Typing {
    EarlyKeys keys;
    std::optional<HotKey> pressed;
    std::uint32_t time = 1000;

    EarlyKeys::Verdict Type(int key, bool up) {
        pressed.reset();
        return keys.See({key, 0, false, up, {}, time++}, kSpots, pressed);
    }
    // A key down and up; Keep only when both were kept.
    bool Tap(int key) {
        bool down = Type(key, false) == EarlyKeys::Verdict::Keep;
        return Type(key, true) == EarlyKeys::Verdict::Keep && down;
    }
    // A key with a shift key held around it.
    EarlyKeys::Verdict With(int shiftKey, int key) {
        Type(shiftKey, false);
        EarlyKeys::Verdict verdict = Type(key, false);
        std::optional<HotKey> seen = pressed;
        Type(shiftKey, true);
        pressed = seen;
        return verdict;
    }
    std::vector<int> Released() {
        std::vector<int> order;
        while (std::optional<TypedKey> key = keys.Next())
            order.push_back(key->up ? -key->key : key->key);
        return order;
    }
};

} // namespace

TEST(EarlyKeys, KeysAfterAMenusHotKeyAreKeptInOrderAndTheHotKeyItselfPasses) {
    Typing typing;
    EXPECT_FALSE(typing.Tap(kDown)) << "no hot key yet";
    EXPECT_EQ(typing.Type(kLeftCtrl, false), EarlyKeys::Verdict::Pass);
    EXPECT_EQ(typing.Type(kF5, false), EarlyKeys::Verdict::Pass);
    EXPECT_EQ(typing.pressed, (HotKey{kF5, false})) << "told, so that a brief tap fires";
    EXPECT_TRUE(typing.keys.Keeping());
    EXPECT_EQ(typing.Type(kDown, false), EarlyKeys::Verdict::Keep) << "Ctrl still held";
    EXPECT_EQ(typing.Type(kF5, true), EarlyKeys::Verdict::Pass);
    EXPECT_EQ(typing.Type(kLeftCtrl, true), EarlyKeys::Verdict::Pass) << "the shift keys always pass";
    EXPECT_TRUE(typing.Tap(kDown));
    EXPECT_EQ(typing.Type(kReturn, false), EarlyKeys::Verdict::Keep);

    std::optional<TypedKey> first = typing.keys.Next();
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->modifiers.ctrl) << "each key keeps the shift keys held as it came";
    EXPECT_FALSE(typing.keys.Next()->modifiers.ctrl);
    EXPECT_EQ(typing.Type(kReturn, true), EarlyKeys::Verdict::Keep) << "typed while handing on: kept behind";
    EXPECT_EQ(typing.Released(), (std::vector<int>{-kDown, kReturn, -kReturn}));
    EXPECT_FALSE(typing.keys.Keeping());
    EXPECT_FALSE(typing.Tap(kDown));
}

TEST(EarlyKeys, OnlyAHotKeyThatShowsAMenuKeepsAndOnlyWithItsShiftKey) {
    Typing typing;
    EXPECT_EQ(typing.Type(kF5, false), EarlyKeys::Verdict::Pass);
    EXPECT_FALSE(typing.pressed) << "F5 without Ctrl is no hot key";
    EXPECT_EQ(typing.With(kShift, kF6), EarlyKeys::Verdict::Pass);
    EXPECT_EQ(typing.pressed, (HotKey{kF6, true}));
    EXPECT_FALSE(typing.keys.Keeping()) << "a program opens no menu";
    EXPECT_FALSE(typing.Tap(kDown));

    typing.Type(kDown, false);
    typing.With(kCtrl, kF5);
    EXPECT_EQ(typing.Type(kDown, true), EarlyKeys::Verdict::Pass) << "it went down before the hot key";
    EXPECT_EQ(typing.Type(kShift, false), EarlyKeys::Verdict::Pass);
}

TEST(EarlyKeys, KeptKeysAreOverdueAfterTwoSecondsOrThirtyTwoKeys) {
    Typing typing;
    EXPECT_FALSE(typing.keys.Overdue(typing.time + 5000)) << "nothing kept";
    typing.With(kCtrl, kF5);
    const std::uint32_t start = typing.time;
    EXPECT_FALSE(typing.keys.Overdue(start + kEarlyKeysMilliseconds - 2));
    EXPECT_TRUE(typing.keys.Overdue(start + kEarlyKeysMilliseconds));
    for (std::size_t i = 1; i < kEarlyKeysAtMost; ++i)
        typing.Type(0x41 + static_cast<int>(i % 26), false);
    EXPECT_FALSE(typing.keys.Overdue(typing.time));
    typing.Type(kReturn, false);
    EXPECT_TRUE(typing.keys.Overdue(typing.time));
}
