#include "menuwindow/paint/paint_parts.h"

#include <algorithm>

namespace MenuWindow {

Rect Intersection(Rect a, Rect b) {
    Rect meet{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
              std::min(a.bottom, b.bottom)};
    return meet.Empty() ? Rect{} : meet;
}

void AddBackground(DrawList& list, const PartLook& look, Rect area, Rect gradientArea,
                   const std::optional<std::string>& picture) {
    if (area.Empty())
        return;
    if (look.background == Background::Bitmap && picture && !gradientArea.Empty()) {
        list.push_back(
            PictureOp{gradientArea, area, *picture, look.tileBitmap ? PictureFit::Tile : PictureFit::Stretch, false});
        return;
    }
    if (look.background != Background::Gradient || gradientArea.Empty()) {
        list.push_back(FillOp{area, look.colour});
        return;
    }
    Size size{gradientArea.Width(), gradientArea.Height()};
    for (const ColourBand& band : GradientBands(size, look.gradient)) {
        Rect placed{band.rect.left + gradientArea.left, band.rect.top + gradientArea.top,
                    band.rect.right + gradientArea.left, band.rect.bottom + gradientArea.top};
        Rect shown = Intersection(placed, area);
        if (!shown.Empty())
            list.push_back(FillOp{shown, band.colour});
    }
}

void AddIconPicture(DrawList& list, Rect box, int side, const std::string& file) {
    side = std::min({side, box.Width(), box.Height()});
    if (side <= 0)
        return;
    int left = box.left + (box.Width() - side) / 2;
    int top = box.top + (box.Height() - side) / 2;
    Rect square{left, top, left + side, top + side};
    list.push_back(PictureOp{square, square, file, PictureFit::Icon, false});
}

void AddEdgeLines(DrawList& list, Rect rect, int thickness, Colour topLeft, Colour bottomRight) {
    if (rect.Empty() || thickness <= 0)
        return;
    int t = std::min({thickness, rect.Width(), rect.Height()});
    list.push_back(FillOp{{rect.left, rect.top, rect.right, rect.top + t}, topLeft});
    list.push_back(FillOp{{rect.left, rect.top, rect.left + t, rect.bottom}, topLeft});
    list.push_back(FillOp{{rect.left, rect.bottom - t, rect.right, rect.bottom}, bottomRight});
    list.push_back(FillOp{{rect.right - t, rect.top, rect.right, rect.bottom}, bottomRight});
}

void AddPartEdge(DrawList& list, Rect rect, int thickness, const PartLook& look, bool pressed) {
    if (pressed) {
        AddEdgeLines(list, rect, thickness, look.edgeDark, look.edgeLight);
        return;
    }
    switch (look.edgeStyle) {
    case EdgeStyle::Raised:
        AddEdgeLines(list, rect, thickness, look.edgeLight, look.edgeDark);
        break;
    case EdgeStyle::Sunken:
        AddEdgeLines(list, rect, thickness, look.edgeDark, look.edgeLight);
        break;
    case EdgeStyle::Bump: {
        AddEdgeLines(list, rect, thickness, look.edgeLight, look.edgeDark);
        Rect inner{rect.left + thickness, rect.top + thickness, rect.right - thickness, rect.bottom - thickness};
        AddEdgeLines(list, inner, thickness, look.edgeDark, look.edgeLight);
        break;
    }
    }
}

void AddText(DrawList& list, const TextOp& text, const PartLook& look) {
    if (text.text.empty())
        return;
    if (look.textEffect != TextEffect::Plain) {
        TextOp copy = text;
        copy.origin = {text.origin.x + 1, text.origin.y + 1};
        copy.colour = look.textEffect == TextEffect::Sunken ? look.edgeLight : look.edgeDark;
        list.push_back(std::move(copy));
    }
    list.push_back(text);
}

} // namespace MenuWindow
