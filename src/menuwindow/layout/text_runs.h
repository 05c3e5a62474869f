// A text cut into runs by font: the runs that the menu's own font has glyphs for, and
// the runs that need another installed font, so that a label in any script shows
// wherever some font of the system can draw it.
#pragma once

#include <cstddef>
#include <vector>

namespace MenuWindow {

struct TextRun {
    std::size_t start = 0;  // in UTF-16 units
    std::size_t length = 0;
    bool fallback = false; // the menu's font lacks these characters
    bool operator==(const TextRun&) const = default;
};

// missing[i] tells whether the menu's font lacks the glyph of unit i. Neighbouring units
// alike make one run; no unit is left out.
std::vector<TextRun> SplitTextRuns(const std::vector<bool>& missing);

} // namespace MenuWindow
