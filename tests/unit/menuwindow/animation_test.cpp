#include "menuwindow/animation.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

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

TEST(AnimationChoice, KindNumbersAndVerticalMenusUseTypeAndHorizontalOnesHType) {
    const AnimationKind kinds[] = {AnimationKind::None,   AnimationKind::Unroll, AnimationKind::Slide,
                                   AnimationKind::Ripple, AnimationKind::Fade,   AnimationKind::None};
    for (std::int16_t type = 0; type <= 5; ++type)
        EXPECT_EQ(AnimationKindOf(type), kinds[type]) << type;
    EXPECT_EQ(AnimationKindOf(-1), AnimationKind::None);

    AnimationSettings settings = Settings(1, 4);
    EXPECT_EQ(PlanMenuAnimation(settings, false, kVertical).kind, AnimationKind::Unroll);
    EXPECT_EQ(PlanMenuAnimation(settings, true, kHorizontal).kind, AnimationKind::Fade);
    settings = Settings(0, 3);
    EXPECT_TRUE(PlanMenuAnimation(settings, false, kVertical).frames.empty());
    EXPECT_EQ(PlanMenuAnimation(settings, true, kHorizontal).kind, AnimationKind::Ripple);
}

TEST(AnimationChoice, OffOrEmptyMeansNoFrames) {
    // The defaults animate nothing: type 0.
    EXPECT_TRUE(PlanMenuAnimation(AnimationSettingsFrom(SettingsRec{}), false, kVertical).frames.empty());

    AnimationSettings settings = Settings(3, 3);
    settings.GenAnimationOn = 0;
    AnimationPlan plan = PlanMenuAnimation(settings, false, kVertical);
    EXPECT_EQ(plan.kind, AnimationKind::None);
    EXPECT_TRUE(plan.frames.empty());
    settings.GenAnimationOn = 1;
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
    EXPECT_EQ(AnimationDurationMs(-1), std::nullopt);
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1, 0), false, kVertical).frames.empty());
    EXPECT_TRUE(PlanMenuAnimation(Settings(1, 1, 200), false, kVertical).frames.empty());
}

TEST(AnimationTiming, FramesAreSpacedAboutARefreshApartAndEndAtTheDuration) {
    AnimationPlan slow = PlanMenuAnimation(Settings(1, 1, 1), false, kVertical);
    EXPECT_EQ(slow.frames.size(), 16u);
    EXPECT_EQ(slow.frames.front().atMs, 15);
    EXPECT_EQ(slow.frames.back().atMs, 240);
    AnimationPlan fastest = PlanMenuAnimation(Settings(1, 1, 10), false, kVertical);
    ASSERT_EQ(fastest.frames.size(), 2u);
    EXPECT_EQ(fastest.frames[0].atMs, 12);
    EXPECT_EQ(fastest.frames[1].atMs, 24);
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

TEST(AnimationFrames, UnrollUncoversFromTheTopWithTheImageInPlace) {
    AnimationPlan plan = PlanMenuAnimation(Settings(1, 0), false, kVertical);
    int previous = 0;
    for (const AnimationFrame& frame : plan.frames) {
        EXPECT_EQ(frame.visible.top, 0);
        EXPECT_EQ(frame.visible.left, 0);
        EXPECT_EQ(frame.visible.right, kVertical.width);
        EXPECT_GT(frame.visible.bottom, previous);
        previous = frame.visible.bottom;
        ASSERT_EQ(frame.blits.size(), 1u);
        EXPECT_EQ(frame.blits[0].source, frame.visible);
        EXPECT_EQ(frame.blits[0].target, frame.visible);
        EXPECT_EQ(frame.alpha, 255);
    }
    EXPECT_LT(plan.frames[plan.frames.size() - 2].visible.bottom, kVertical.height);
    // Eased: more than the even share is uncovered after the first frame.
    EXPECT_GT(plan.frames.front().visible.bottom, kVertical.height / static_cast<int>(plan.frames.size()));
    // A horizontal menu unrolls to the right.
    const Rect across = PlanMenuAnimation(Settings(0, 1), true, kHorizontal).frames.front().visible;
    EXPECT_EQ(across, (Rect{0, 0, across.right, kHorizontal.height}));
    EXPECT_LT(across.right, kHorizontal.width);
}

TEST(AnimationFrames, SlideShowsTheImagesFarEndFirst) {
    AnimationPlan plan = PlanMenuAnimation(Settings(2, 0), false, kVertical);
    const AnimationFrame& first = plan.frames.front();
    ASSERT_EQ(first.blits.size(), 1u);
    int shown = first.visible.Height();
    EXPECT_LT(shown, kVertical.height);
    EXPECT_EQ(first.blits[0].source, (Rect{0, kVertical.height - shown, kVertical.width, kVertical.height}));
    EXPECT_EQ(first.blits[0].target, (Rect{0, 0, kVertical.width, shown}));
}

TEST(AnimationFrames, FadeRaisesTheOpacityOverTheWholeWindow) {
    AnimationPlan plan = PlanMenuAnimation(Settings(4, 0), false, kVertical);
    int previous = 0;
    for (const AnimationFrame& frame : plan.frames) {
        EXPECT_EQ(frame.visible, RectAt({}, kVertical));
        EXPECT_GT(frame.alpha, previous);
        previous = frame.alpha;
    }
    EXPECT_LT(plan.frames.front().alpha, 32);
}

TEST(AnimationFrames, RippleStripsCoverTheWindowAndSqueezeTheImage) {
    AnimationPlan plan = PlanMenuAnimation(Settings(3, 0), false, kVertical);
    const AnimationFrame& first = plan.frames.front();
    EXPECT_EQ(first.visible, RectAt({}, kVertical));
    ASSERT_EQ(first.blits.size(), static_cast<std::size_t>(kVertical.height / 4));
    int row = 0;
    bool squeezed = false;
    for (const AnimationBlit& blit : first.blits) {
        // Each strip fills its full row and takes its picture from the same row.
        EXPECT_EQ(blit.target, (Rect{0, row, kVertical.width, row + 4}));
        EXPECT_EQ(blit.source.top, row);
        EXPECT_EQ(blit.source.bottom, row + 4);
        squeezed = squeezed || blit.source.Width() < kVertical.width;
        row += 4;
    }
    EXPECT_TRUE(squeezed);
    // The wave dies away: the first frame cuts more than a later one.
    auto cut = [](const AnimationFrame& frame) {
        int most = 0;
        for (const AnimationBlit& blit : frame.blits)
            most = std::max(most, frame.visible.Width() - blit.source.Width());
        return most;
    };
    EXPECT_GT(cut(first), cut(plan.frames[plan.frames.size() - 3]));
    // A horizontal menu ripples in columns.
    const AnimationFrame columns = PlanMenuAnimation(Settings(0, 3), true, {400, 80}).frames.front();
    ASSERT_EQ(columns.blits.size(), 100u);
    EXPECT_EQ(columns.blits[1].target, (Rect{4, 0, 8, 80}));
    EXPECT_EQ(columns.blits[1].source.left, 4);
    EXPECT_EQ(columns.blits[1].source.right, 8);
}
