// The one scaling function for sizes: settings hold sizes in pixels at 96 dots per
// inch, and every size the menu window uses passes through Scale on its way to the
// screen, so that DPI awareness stays a change in one place.
#pragma once

namespace Dpi {

inline constexpr int kBaseDpi = 96;

// px * dpi / 96, rounded to the nearest whole pixel with halves away from zero, as
// MulDiv rounds. A dpi of zero or below (unknown) leaves the size unscaled.
int Scale(int px, int dpi);

} // namespace Dpi
