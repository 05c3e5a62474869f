#include "menuwindow/look/gradient.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace MenuWindow {

namespace {

// Red, green and blue as the colour value's remainders: mod 256, div 256 mod 256, div 65536.
std::array<double, 3> PartsOf(Colour colour) {
    auto value = static_cast<std::uint32_t>(colour);
    return {static_cast<double>(value % 256), static_cast<double>(value / 256 % 256),
            static_cast<double>(value / 65536)};
}

long ClampedPart(double value) {
    return std::clamp(std::lround(value), 0L, 255L);
}

Colour ColourOf(const std::array<double, 3>& parts) {
    return static_cast<Colour>(ClampedPart(parts[0]) + 256 * ClampedPart(parts[1]) + 65536 * ClampedPart(parts[2]));
}

// A wrapped part turns back once its running value, doubled and rounded, has come to its
// end value, doubled and rounded; "come to" is judged in the direction it is moving,
// since a step of several units steps over the exact value.
bool HasReachedEnd(double value, double end, bool rising) {
    long doubledValue = std::lround(value * 2);
    long doubledEnd = std::lround(end * 2);
    return rising ? doubledValue >= doubledEnd : doubledValue <= doubledEnd;
}

} // namespace

std::vector<Colour> GradientColours(const GradientSpec& spec) {
    std::array<double, 3> value = PartsOf(spec.from);
    std::array<double, 3> end = PartsOf(spec.to);
    std::array<double, 3> step{};
    std::array<bool, 3> rising{};
    std::array<bool, 3> turned{};
    for (std::size_t part = 0; part < 3; ++part) {
        // The added 1 belongs to the rule: equal colours still rise by 1/63 per band.
        step[part] = (end[part] - value[part] + 1) / kGradientBands;
        if (spec.wrap)
            step[part] *= 2;
        rising[part] = step[part] >= 0;
    }

    std::vector<Colour> colours;
    colours.reserve(kGradientBands);
    for (int band = 0; band < kGradientBands; ++band) {
        colours.push_back(ColourOf(value));
        for (std::size_t part = 0; part < 3; ++part) {
            value[part] += step[part];
            if (spec.wrap && !turned[part] && HasReachedEnd(value[part], end[part], rising[part])) {
                step[part] = -step[part];
                turned[part] = true;
            }
        }
    }
    return colours;
}

std::vector<ColourBand> GradientBands(Size surface, const GradientSpec& spec) {
    std::vector<ColourBand> bands;
    if (surface.width <= 0 || surface.height <= 0)
        return bands;
    std::vector<Colour> colours = GradientColours(spec);
    auto edge = [](int band, int extent) {
        return static_cast<int>(static_cast<std::int64_t>(band) * extent / kGradientBands);
    };
    for (int band = 0; band < kGradientBands; ++band) {
        Rect rect;
        switch (spec.type) {
        case kGradientLeftToRight:
            rect = {edge(band, surface.width), 0, edge(band + 1, surface.width), surface.height};
            break;
        case kGradientTopToBottom:
            rect = {0, edge(band, surface.height), surface.width, edge(band + 1, surface.height)};
            break;
        default:
            rect = {edge(band, surface.width), edge(band, surface.height), surface.width, surface.height};
            break;
        }
        if (!rect.Empty())
            bands.push_back({rect, colours[static_cast<std::size_t>(band)]});
    }
    return bands;
}

} // namespace MenuWindow
