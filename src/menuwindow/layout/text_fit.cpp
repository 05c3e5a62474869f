#include "menuwindow/layout/text_fit.h"

#include <vector>

namespace MenuWindow {

namespace {

bool IsContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The lengths of the beginnings of a text that end between whole characters, shortest first.
std::vector<std::size_t> CharacterBoundaries(std::string_view text) {
    std::vector<std::size_t> ends;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (!IsContinuationByte(text[i]))
            ends.push_back(i);
    }
    return ends;
}

std::string WithEllipsis(std::string_view text, std::size_t length) {
    std::string_view kept = text.substr(0, length);
    while (!kept.empty() && kept.back() == ' ')
        kept.remove_suffix(1);
    std::string out(kept);
    out += kEllipsis;
    return out;
}

} // namespace

std::string FitText(std::string_view text, int room, const MeasureText& measure) {
    if (measure(text) <= room)
        return std::string(text);
    if (measure(kEllipsis) > room)
        return {};
    std::vector<std::size_t> ends = CharacterBoundaries(text);
    // Find the longest beginning that still fits with "..." after it.
    std::size_t fitting = 0;
    std::size_t low = 0;
    std::size_t high = ends.size();
    while (low < high) {
        std::size_t middle = (low + high) / 2;
        if (measure(WithEllipsis(text, ends[middle])) <= room) {
            fitting = ends[middle];
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return WithEllipsis(text, fitting);
}

int AlignedStart(int boxStart, int boxLength, int textLength, int alignment) {
    int spare = boxLength - textLength;
    if (spare <= 0)
        return boxStart;
    switch (alignment) {
    case kAlignCentre:
        return boxStart + spare / 2;
    case kAlignRight:
        return boxStart + spare;
    default:
        return boxStart;
    }
}

} // namespace MenuWindow
