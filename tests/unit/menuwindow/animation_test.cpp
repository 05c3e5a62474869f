#include "menuwindow/paint/animation.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace MenuWindow;

namespace {

constexpr Size kVertical{180, 300};
constexpr Size kHorizontal{420, 22};

AnimationSettings Settings(std::int16_t type, std::int16_t hType, std::int16_t speed = 1) {
    return {-1, type, hType, speed};
}

bool Inside(Rect inner, Rect outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

// What every plan promises, whatever its kind.
void ExpectWellFormed(const AnimationPlan& plan, Size window) {
    const Rect whole = RectAt({}, window);
    ASSERT_GE(plan.frames.size(), 2u);
    int previous = 0;
    for (const AnimationFrame& frame : plan.frames) {
        EXPECT_GT(frame.atMs, previous);
        previous = frame.atMs;
        EXPECT_FALSE(frame.visible.Empty());
        EXPECT_TRUE(Inside(frame.visible, whole)) << ::testing::PrintToString(frame.visible);
        ASSERT_FALSE(frame.blits.empty());
        for (const AnimationBlit& blit : frame.blits) {
            EXPECT_FALSE(blit.source.Empty());
            EXPECT_TRUE(Inside(blit.source, whole)) << ::testing::PrintToString(blit.source);
            EXPECT_TRUE(Inside(blit.target, frame.visible)) << ::testing::PrintToString(blit.target);
        }
    }
    EXPECT_LE(previous, kLongestAnimationMs);
    const AnimationFrame& last = plan.frames.back();
    EXPECT_EQ(last.visible, whole);
    EXPECT_EQ(last.alpha, 255);
    EXPECT_EQ(last.blits, (std::vector<AnimationBlit>{{whole, whole}}));
}

} // namespace

TEST(AnimationChoice, VerticalMenusUseTypeAndHorizontalOnesHType) {
    AnimationSettings settings = Settings(1, 4);
    EXPECT_EQ(PlanMenuAnimation(settings, false, kVertical).kind, AnimationKind::Unroll);
    EXPECT_EQ(PlanMenuAnimation(settings, true, kHorizontal).kind, AnimationKind::Fade);
    settings = Settings(0, 3);
    EXPECT_TRUE(PlanMenuAnimation(settings, false, kVertical).frames.empty());
    EXPECT_EQ(PlanMenuAnimation(settings, true, kHorizontal).kind, AnimationKind::Ripple);
    EXPECT_TRUE(PlanMenuAnimation(Settings(5, 5), false, kVertical).frames.empty()) << "no such kind";
}

TEST(AnimationChoice, OffOrEmptyMeansNoFrames) {
    // The defaults animate nothing: type 0.
    EXPECT_TRUE(PlanMenuAnimation(AnimationSettingsFrom(SettingsRec{}), false, kVertical).frames.empty());

    AnimationSettings settings = Settings(3, 3);
    settings.GenAnimationOn = 0;
    AnimationPlan plan = PlanMenuAnimation(settings, false, kVertical);
    EXPECT_EQ(plan.kind, AnimationKind::None);
    EXPECT_TRUE(plan.frames.empty());
    settings.GenAnimationOn = 1; // any value but 0 switches it on
    EXPECT_FALSE(PlanMenuAnimation(settings, false, kVertical).frames.empty());
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1), false, {0, 300}).frames.empty());
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1), true, {420, 0}).frames.empty());
}

TEST(AnimationTiming, SpeedDividesTheLongestDurationAndOthersSwitchOff) {
    EXPECT_EQ(AnimationDurationMs(1), 240);
    EXPECT_EQ(AnimationDurationMs(2), 120);
    EXPECT_EQ(AnimationDurationMs(10), 24);
    EXPECT_EQ(AnimationDurationMs(0), std::nullopt);
    EXPECT_EQ(AnimationDurationMs(11), std::nullopt);
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1, 0), false, kVertical).frames.empty());
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1, 200), false, kVertical).frames.empty());
}

TEST(AnimationFrames, EveryKindAndSpeedIsBoundedAndEndsWithTheWholeImage) {
    for (std::int16_t type = 1; type <= 4; ++type) {
        for (std::int16_t speed = kSlowestAnimationSpeed; speed <= kFastestAnimationSpeed; ++speed) {
            SCOPED_TRACE(::testing::Message() << "type " << type << " speed " << speed);
            ExpectWellFormed(PlanMenuAnimation(Settings(type, type, speed), false, kVertical), kVertical);
            ExpectWellFormed(PlanMenuAnimation(Settings(type, type, speed), true, kHorizontal), kHorizontal);
            ExpectWellFormed(PlanMenuAnimation(Settings(type, type, speed), false, {1, 1}), Size{1, 1});
        }
    }
}

// The first frame tells the kinds apart: unroll uncovers the top of the image in place,
// slide shows its far end, fade shows it all faintly, ripple squeezes strips of it.
TEST(AnimationFrames, EachKindStartsInItsOwnWay) {
    const AnimationFrame unroll = PlanMenuAnimation(Settings(1, 0), false, kVertical).frames.front();
    EXPECT_EQ(unroll.visible, (Rect{0, 0, kVertical.width, unroll.visible.bottom}));
    EXPECT_LT(unroll.visible.bottom, kVertical.height);
    EXPECT_EQ(unroll.blits, (std::vector<AnimationBlit>{{unroll.visible, unroll.visible}}));
    const Rect across = PlanMenuAnimation(Settings(0, 1), true, kHorizontal).frames.front().visible;
    EXPECT_EQ(across, (Rect{0, 0, across.right, kHorizontal.height})) << "a horizontal menu unrolls to the right";

    const AnimationFrame slide = PlanMenuAnimation(Settings(2, 0), false, kVertical).frames.front();
    int shown = slide.visible.Height();
    ASSERT_EQ(slide.blits.size(), 1u);
    EXPECT_EQ(slide.blits[0].source, (Rect{0, kVertical.height - shown, kVertical.width, kVertical.height}));
    EXPECT_EQ(slide.blits[0].target, (Rect{0, 0, kVertical.width, shown}));

    const AnimationFrame fade = PlanMenuAnimation(Settings(4, 0), false, kVertical).frames.front();
    EXPECT_EQ(fade.visible, RectAt({}, kVertical));
    EXPECT_LT(fade.alpha, 32);

    const AnimationFrame ripple = PlanMenuAnimation(Settings(3, 0), false, kVertical).frames.front();
    EXPECT_EQ(ripple.visible, RectAt({}, kVertical));
    EXPECT_GT(ripple.blits.size(), 10u);
    EXPECT_TRUE(std::any_of(ripple.blits.begin(), ripple.blits.end(),
                            [](const AnimationBlit& blit) { return blit.source.Width() < kVertical.width; }));
}
