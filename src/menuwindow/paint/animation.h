// The opening animation of a menu window (RippleMenu): which one, how long, and the
// frames the shell shows. Every frame is worked out from the painted image of the menu,
// so the shell copies, clips and fades and decides nothing; the last frame is always the
// whole unchanged image, and the whole animation is short enough that serving the
// message queue between frames keeps the menu responsive.
#pragma once

#include "core/settings.h"
#include "menuwindow/layout/geometry.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace MenuWindow {

// AnimationType (vertical menus) and AnimationHType (horizontal ones):
// 0 none; 1 unroll: the menu is uncovered from its top (its left end when horizontal)
// outwards; 2 slide: it slides out of its top (left) edge; 3 ripple: it appears at once
// and a wave runs through it, dying away; 4 fade: it fades in. Other values: none.
enum class AnimationKind { None, Unroll, Slide, Ripple, Fade };
AnimationKind AnimationKindOf(std::int16_t animationType);

// What chooses and times the animation, as the window copies it from the settings.
struct AnimationSettings {
    std::int16_t GenAnimationOn = 0; // 0 switches every animation off
    std::int16_t AnimationType = 0;
    std::int16_t AnimationHType = 0;
    std::int16_t AnimationSpeed = 0;
};
AnimationSettings AnimationSettingsFrom(const SettingsRec& settings);

// AnimationSpeed 1 (the slowest) to 10: the animation lasts kLongestAnimationMs divided
// by the speed. Other speeds cannot be timed and switch the animation off.
inline constexpr int kSlowestAnimationSpeed = 1;
inline constexpr int kFastestAnimationSpeed = 10;
inline constexpr int kLongestAnimationMs = 240;
// The time between frames, about one screen refresh.
inline constexpr int kAnimationFrameMs = 15;
std::optional<int> AnimationDurationMs(std::int16_t animationSpeed);

// One copy from the painted image onto the window, stretched when the sizes differ.
struct AnimationBlit {
    Rect source;
    Rect target;
    bool operator==(const AnimationBlit&) const = default;
};

// One frame: at atMs after the start, show only the visible part of the window (its
// region; the rest is see-through), at the given opacity, after making the copies in
// order. The copies cover the visible part.
struct AnimationFrame {
    int atMs = 0;
    Rect visible;
    std::uint8_t alpha = 255;
    std::vector<AnimationBlit> blits;
    bool operator==(const AnimationFrame&) const = default;
};

struct AnimationPlan {
    AnimationKind kind = AnimationKind::None;
    std::vector<AnimationFrame> frames; // none: show the window as it is
};

// The plan for a window of the given size: none when animation is off, the type is 0 or
// unknown, the speed unusable, or the window empty. Otherwise at least two frames at
// rising times, the last at the duration and showing the whole image, opaque.
AnimationPlan PlanMenuAnimation(const AnimationSettings& settings, bool horizontalMenu, Size window);

} // namespace MenuWindow
