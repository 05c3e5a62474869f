#include "menuwindow/paint/paint_title_buttons.h"

#include "menuwindow/paint/paint_parts.h"
#include "menuwindow/look/title_button_pictures.h"

#include <algorithm>

namespace MenuWindow {

namespace {

// The glyph's square inside a button: a quarter of the side is left round it.
Rect GlyphBox(Rect button) {
    int side = std::min(button.Width(), button.Height());
    int margin = std::max(2, side / 4);
    int inner = std::max(1, side - 2 * margin);
    int left = button.left + (button.Width() - inner) / 2;
    int top = button.top + (button.Height() - inner) / 2;
    return {left, top, left + inner, top + inner};
}

// A cross of two-pixel-wide diagonals.
void AddCross(DrawList& list, Rect g, Colour colour) {
    int n = g.Width() - 1;
    for (int i = 0; i < n; ++i) {
        list.push_back(FillOp{{g.left + i, g.top + i, g.left + i + 2, g.top + i + 2}, colour});
        list.push_back(FillOp{{g.right - i - 2, g.top + i, g.right - i, g.top + i + 2}, colour});
    }
}

// A ring with an arrow head on its upper right: turning the menu round.
void AddTurn(DrawList& list, Rect g, Colour colour) {
    list.push_back(EllipseOp{g, colour, std::nullopt});
    list.push_back(EllipseOp{{g.left + 1, g.top + 1, g.right - 1, g.bottom - 1}, colour, std::nullopt});
    int head = std::max(2, g.Width() / 3);
    Point tip{g.right, g.top + g.Height() / 2};
    list.push_back(TriangleOp{{{{tip.x - head, tip.y - head}, {tip.x + head - 1, tip.y - head}, tip}}, colour});
}

// A bar at the top with an arrow pointing up to it: the menu rolls up to its title.
void AddRollUp(DrawList& list, Rect g, Colour colour) {
    list.push_back(FillOp{{g.left, g.top, g.right, g.top + 2}, colour});
    int mid = g.left + g.Width() / 2;
    int reach = std::max(2, g.Width() / 2 - 1);
    list.push_back(TriangleOp{{{{mid - reach, g.bottom - 1}, {mid, g.top + 3}, {mid + reach, g.bottom - 1}}}, colour});
}

// Two stacked squares, the front one filled: this menu stays in front.
void AddOnTop(DrawList& list, Rect g, Colour colour) {
    int side = g.Width() * 2 / 3;
    Rect back{g.right - side, g.top, g.right, g.top + side};
    Rect front{g.left, g.bottom - side, g.left + side, g.bottom};
    AddEdgeLines(list, back, 1, colour, colour);
    list.push_back(FillOp{front, colour});
}

void AddGlyph(DrawList& list, TitleButton button, Rect g, Colour colour) {
    switch (button) {
    case TitleButton::Close:
        AddCross(list, g, colour);
        break;
    case TitleButton::Rotate:
        AddTurn(list, g, colour);
        break;
    case TitleButton::RollUp:
        AddRollUp(list, g, colour);
        break;
    case TitleButton::OnTop:
        AddOnTop(list, g, colour);
        break;
    }
}

Rect Moved(Rect r, int by) {
    return {r.left + by, r.top + by, r.right + by, r.bottom + by};
}

void AddSquareButton(DrawList& list, const PlacedTitleButton& placed, bool pressed) {
    const Rect& r = placed.rect;
    list.push_back(FillOp{r, kSquareButtonFace});
    Colour topLeft = pressed ? kSquareButtonDark : kSquareButtonLight;
    Colour bottomRight = pressed ? kSquareButtonLight : kSquareButtonDark;
    AddEdgeLines(list, r, 1, topLeft, bottomRight);
    AddGlyph(list, placed.button, Moved(GlyphBox(r), pressed ? 1 : 0), kSquareButtonGlyph);
}

void AddRoundButton(DrawList& list, const PlacedTitleButton& placed, bool pressed) {
    const Rect& r = placed.rect;
    int side = std::min(r.Width(), r.Height());
    int left = r.left + (r.Width() - side) / 2;
    int top = r.top + (r.Height() - side) / 2;
    Rect circle{left, top, left + side, top + side};
    Colour face = pressed ? RoundButtonRim(placed.button) : RoundButtonColour(placed.button);
    list.push_back(EllipseOp{circle, RoundButtonRim(placed.button), face});
    AddGlyph(list, placed.button, GlyphBox(circle), kRoundButtonGlyph);
}

} // namespace

Colour RoundButtonColour(TitleButton button) {
    switch (button) {
    case TitleButton::Close:
        return 0x004C4CE0;
    case TitleButton::Rotate:
        return 0x0030A8E8;
    case TitleButton::RollUp:
        return 0x0060B040;
    case TitleButton::OnTop:
        return 0x00D08840;
    }
    return 0;
}

// Each part at two thirds of its strength.
Colour RoundButtonRim(TitleButton button) {
    Colour c = RoundButtonColour(button);
    Colour rim = 0;
    for (int shift : {0, 8, 16})
        rim |= (((c >> shift) & 0xFF) * 2 / 3) << shift;
    return rim;
}

std::vector<PlacedTitleButton> PlacedTitleButtons(const MenuScene& scene) {
    const MenuLayout& layout = scene.layout;
    if (layout.titlePlace == TitlePlace::None || layout.title.Empty())
        return {};
    const MenuMetrics& metrics = scene.metrics();
    return PlaceTitleButtons(scene.look, scene.inactive, layout.title, layout.titlePlace == TitlePlace::Left,
                             metrics.titleButtonSize, metrics.titleButtonGap);
}

void AddTitleButton(DrawList& list, const MenuScene& scene, const PlacedTitleButton& button, bool pressed) {
    if (button.rect.Empty())
        return;
    switch (TitleButtonStyleOf(scene.look.ButtonStyle)) {
    case TitleButtonStyle::NeXT:
        AddSquareButton(list, button, pressed);
        break;
    case TitleButtonStyle::New:
        AddRoundButton(list, button, pressed);
        break;
    case TitleButtonStyle::Pictures:
        if (std::optional<std::string> file =
                FindTitleButtonPicture(scene.pictures, button.button, scene.inactive, pressed)) {
            bool icon = PictureFormatOf(*file) == PictureFormat::Ico;
            list.push_back(
                PictureOp{button.rect, button.rect, *file, icon ? PictureFit::Icon : PictureFit::Stretch, false});
        }
        break;
    }
}

} // namespace MenuWindow
