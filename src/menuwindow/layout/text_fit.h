// Fitting a text into the room it has: shortening with "..." and aligning.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace MenuWindow {

// Gives the width of a text in the font it will be drawn in; the shell measures with
// GDI, tests with a fake.
using MeasureText = std::function<int(std::string_view text)>;

inline constexpr std::string_view kEllipsis = "...";

// The text itself when it fits the room; otherwise the longest beginning of it, cut
// between whole UTF-8 characters and without the blanks it would end in, followed by
// "..." that fits; "..." alone when no character fits with it, and nothing when not
// even "..." fits. The measure must grow with the text (a longer beginning is never
// narrower), which lets the search halve the candidates.
std::string FitText(std::string_view text, int room, const MeasureText& measure);

// Text alignment, as TitleAlignment and ButtonAlignment number them.
inline constexpr int kAlignLeft = 0;
inline constexpr int kAlignCentre = 1;
inline constexpr int kAlignRight = 2;

// Where a text of the given length starts in a box along one axis; any other alignment
// value counts as left. A text longer than the box starts at the box's start.
int AlignedStart(int boxStart, int boxLength, int textLength, int alignment);

} // namespace MenuWindow
