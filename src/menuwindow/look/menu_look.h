// The menu window's own copy of the settings that painting reads, and the effective
// look of each painted part for the active and the inactive window.
#pragma once

#include "core/settings.h"
#include "menuwindow/layout/geometry.h"
#include "menuwindow/look/gradient.h"

#include <cstdint>
#include <string>

namespace MenuWindow {

// The window's own copy of the settings: taken whole when the window takes its settings
// (SetLocalVariables), and painted from until it takes them again.
using MenuLook = SettingsRec;

// The painted parts that have a look of their own.
enum class Part { Title, Button, SelectionBar };

enum class Background { Solid, Gradient, Bitmap };

// How a part's text is drawn, by TitleTextType / ButtonTextType: 0 sunken (engraved
// into the background), 1 raised (embossed), any other value plain.
enum class TextEffect { Sunken, Raised, Plain };

// How a part's 3D edge is drawn, by Button3DStyle (the title's edge is always raised):
// 0 raised, 1 sunken, any other value a bump (a raised line outside a sunken one).
enum class EdgeStyle { Raised, Sunken, Bump };

struct PartLook {
    Background background = Background::Solid;
    Colour colour = 0;        // the solid colour, also used where a wanted bitmap is missing
    GradientSpec gradient;    // from colour to the second colour
    std::string bitmapStem;   // picture file name without extension: "TitleA", "VTitleI", "ButtonAS" ...
    bool tileBitmap = false;  // tiled rather than stretched
    bool overMenu = false;    // buttons: the gradient or bitmap spans the whole menu body
    bool transparent = false; // buttons: drawn over the menu background
    Colour textColour = 0;
    TextEffect textEffect = TextEffect::Plain;
    bool flat = true; // no 3D edge
    EdgeStyle edgeStyle = EdgeStyle::Raised;
    Colour edgeLight = 0;
    Colour edgeDark = 0;
    bool operator==(const PartLook&) const = default;
};

// Whether an inactive window paints the part with the inactive settings: only when its
// ...ShowInactive switch is on (the selection bar follows the buttons' switch).
bool UsesInactiveLook(const MenuLook& look, Part part, bool inactiveWindow);

// The look of a part in an active or an inactive window. Background precedence: the
// bitmap switch, then the gradient switch, else the solid colour; the selection bar's
// SelBarGradient is a kind number instead: 0 solid, 1 gradient, anything else bitmap.
// ButtonFlat is a style number: 0 edged, 2 flat except under the selection bar, any other
// value flat.
PartLook LookOf(const MenuLook& look, Part part, bool inactiveWindow);

} // namespace MenuWindow
