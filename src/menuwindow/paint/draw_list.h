// What painting a menu window comes down to: a list of simple drawing operations in
// window coordinates, worked out by the core and carried out in order by the shell.
#pragma once

#include "menuwindow/layout/geometry.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace MenuWindow {

// The fonts a menu window draws with. TitleVertical is the title font turned by 90
// degrees, for a title bar at the left side; its text reads upwards.
enum class FontRole { Title, TitleVertical, Button };

struct FillOp {
    Rect rect;
    Colour colour = 0;
    bool operator==(const FillOp&) const = default;
};

// A filled triangle, its outline in the same colour (so that a one-pixel-wide tip shows).
struct TriangleOp {
    std::array<Point, 3> points{};
    Colour colour = 0;
    bool operator==(const TriangleOp&) const = default;
};

// An ellipse inside a rectangle: its outline, and its inside unless fill is empty.
struct EllipseOp {
    Rect rect;
    Colour outline = 0;
    std::optional<Colour> fill;
    bool operator==(const EllipseOp&) const = default;
};

// A line of text drawn from origin, clipped to clip. For a horizontal font the origin
// is the top-left corner of the text; for TitleVertical it is the bottom-left corner
// of the turned text, which runs upwards from there and extends to the right of it.
struct TextOp {
    Point origin;
    std::string text; // UTF-8
    FontRole font = FontRole::Button;
    Colour colour = 0;
    Rect clip;
    bool operator==(const TextOp&) const = default;
};

// The icon of an item (1-based) at the icon size, in rect.
struct IconOp {
    Rect rect;
    int item = 0;
    bool operator==(const IconOp&) const = default;
};

// How a picture of the theme covers its area: stretched over it, repeated from its
// top-left corner, or an icon drawn at the area's size.
enum class PictureFit { Stretch, Tile, Icon };

// A picture file of the theme folder (its name as the folder spells it) laid over area;
// only its part inside clip is drawn. A transparent picture leaves what lies under it
// wherever it has the colour of its top-left pixel.
struct PictureOp {
    Rect area;
    Rect clip;
    std::string file;
    PictureFit fit = PictureFit::Stretch;
    bool transparent = false;
    bool operator==(const PictureOp&) const = default;
};

using DrawOp = std::variant<FillOp, TriangleOp, EllipseOp, TextOp, IconOp, PictureOp>;
using DrawList = std::vector<DrawOp>;

// The measures of texts that the layout and the painting need, taken by the shell in
// the fonts the text will be drawn in.
struct TextMeasure {
    virtual ~TextMeasure() = default;
    virtual int Width(FontRole font, std::string_view text) const = 0;
    virtual int Height(FontRole font) const = 0;
};

} // namespace MenuWindow
