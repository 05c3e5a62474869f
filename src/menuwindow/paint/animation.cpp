#include "menuwindow/paint/animation.h"

#include <algorithm>
#include <cmath>

namespace MenuWindow {

namespace {

constexpr int kAnimationOff = 0;

// The ripple: strips this thick, each squeezed across by a wave whose phase moves on by
// a fixed angle from strip to strip and from frame to frame, and whose height dies away.
constexpr int kRippleStrip = 4;
constexpr double kRippleStripDegrees = 30.0;
constexpr double kRippleFrameDegrees = 45.0;
constexpr int kRippleMaxAmplitude = 12;
constexpr double kDegreesToRadians = 3.141592653589793 / 180.0;

// The menu's two directions: "along" is the one it unrolls in (down a vertical menu,
// to the right along a horizontal one), "across" the other.
struct Axes {
    bool horizontal = false;
    int along = 0;
    int across = 0;

    Rect Make(int alongFrom, int acrossFrom, int alongTo, int acrossTo) const {
        if (horizontal)
            return {alongFrom, acrossFrom, alongTo, acrossTo};
        return {acrossFrom, alongFrom, acrossTo, alongTo};
    }
    Rect Whole() const { return Make(0, 0, along, across); }
};

// Slows down towards the end, so the motion settles rather than stops; gently enough
// that a menu of ordinary height is still moving in the frame before the last.
double EaseOut(double t) {
    double rest = 1.0 - t;
    return 1.0 - rest * rest;
}

int Uncovered(const Axes& axes, double t) {
    int extent = static_cast<int>(std::ceil(axes.along * EaseOut(t)));
    return std::clamp(extent, 1, axes.along);
}

void AddUnroll(AnimationFrame& frame, const Axes& axes, double t) {
    Rect shown = axes.Make(0, 0, Uncovered(axes, t), axes.across);
    frame.visible = shown;
    frame.blits.push_back({shown, shown});
}

// The image's far end comes first, so the menu seems to come out from under its edge.
void AddSlide(AnimationFrame& frame, const Axes& axes, double t) {
    int extent = Uncovered(axes, t);
    Rect shown = axes.Make(0, 0, extent, axes.across);
    frame.visible = shown;
    frame.blits.push_back({axes.Make(axes.along - extent, 0, axes.along, axes.across), shown});
}

void AddFade(AnimationFrame& frame, const Axes& axes, double t) {
    frame.visible = axes.Whole();
    frame.alpha = static_cast<std::uint8_t>(std::lround(255.0 * t));
    frame.blits.push_back({axes.Whole(), axes.Whole()});
}

// Each strip shows a narrower part of its own row of the image stretched to the full
// width, so every pixel of the window is drawn in every frame.
void AddRipple(AnimationFrame& frame, const Axes& axes, int index, double t) {
    frame.visible = axes.Whole();
    int maxAmplitude = std::min(kRippleMaxAmplitude, axes.across / 8);
    double amplitude = maxAmplitude * (1.0 - t);
    if (amplitude < 0.5) {
        frame.blits.push_back({axes.Whole(), axes.Whole()});
        return;
    }
    for (int from = 0, strip = 0; from < axes.along; from += kRippleStrip, ++strip) {
        int to = std::min(axes.along, from + kRippleStrip);
        double angle = (strip * kRippleStripDegrees + index * kRippleFrameDegrees) * kDegreesToRadians;
        int nearCut = static_cast<int>(std::lround(amplitude * (1.0 + std::sin(angle)) / 2.0));
        int farCut = static_cast<int>(std::lround(amplitude * (1.0 + std::cos(angle)) / 2.0));
        frame.blits.push_back(
            {axes.Make(from, nearCut, to, axes.across - farCut), axes.Make(from, 0, to, axes.across)});
    }
}

} // namespace

AnimationKind AnimationKindOf(std::int16_t animationType) {
    switch (animationType) {
    case 1:
        return AnimationKind::Unroll;
    case 2:
        return AnimationKind::Slide;
    case 3:
        return AnimationKind::Ripple;
    case 4:
        return AnimationKind::Fade;
    default:
        return AnimationKind::None;
    }
}

AnimationSettings AnimationSettingsFrom(const SettingsRec& settings) {
    return {settings.GenAnimationOn, settings.AnimationType, settings.AnimationHType, settings.AnimationSpeed};
}

std::optional<int> AnimationDurationMs(std::int16_t animationSpeed) {
    if (animationSpeed < kSlowestAnimationSpeed || animationSpeed > kFastestAnimationSpeed)
        return std::nullopt;
    return kLongestAnimationMs / animationSpeed;
}

AnimationPlan PlanMenuAnimation(const AnimationSettings& settings, bool horizontalMenu, Size window) {
    AnimationPlan plan;
    std::optional<int> duration = AnimationDurationMs(settings.AnimationSpeed);
    AnimationKind kind = AnimationKindOf(horizontalMenu ? settings.AnimationHType : settings.AnimationType);
    if (settings.GenAnimationOn == kAnimationOff || kind == AnimationKind::None || !duration || window.width <= 0 ||
        window.height <= 0)
        return plan;

    Axes axes{horizontalMenu, horizontalMenu ? window.width : window.height,
              horizontalMenu ? window.height : window.width};
    int count = std::max(2, *duration / kAnimationFrameMs);
    plan.kind = kind;
    plan.frames.resize(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        AnimationFrame& frame = plan.frames[static_cast<std::size_t>(index)];
        frame.atMs = *duration * (index + 1) / count;
        double t = static_cast<double>(index + 1) / count;
        switch (kind) {
        case AnimationKind::Unroll:
            AddUnroll(frame, axes, t);
            break;
        case AnimationKind::Slide:
            AddSlide(frame, axes, t);
            break;
        case AnimationKind::Ripple:
            AddRipple(frame, axes, index, t);
            break;
        case AnimationKind::Fade:
            AddFade(frame, axes, t);
            break;
        case AnimationKind::None:
            break;
        }
    }
    return plan;
}

} // namespace MenuWindow
