#include "menuwindow/paint/paint_button.h"

#include "menuwindow/look/dpi_scale.h"

#include "menuwindow/paint/paint_parts.h"
#include "menuwindow/paint/paint_symbols.h"
#include "menuwindow/look/pictures.h"

#include <optional>
#include "menuwindow/layout/text_fit.h"

namespace MenuWindow {

namespace {

Rect Moved(Rect r, int by) {
    return {r.left + by, r.top + by, r.right + by, r.bottom + by};
}

bool ShowsBody(const PartLook& look, Part part) {
    return part == Part::Button && (look.overMenu || look.transparent);
}

// The side of an arrow or command-key icon at 96 DPI, the size icons are drawn at.
constexpr int kSymbolIconSize = 16;

// A transparent button picture stands on each button over the body's colour; any other
// button background is laid over the button, or over the body when it spans the body.
void AddButtonBackground(DrawList& list, const MenuScene& scene, const PartLook& look, Part part, Rect button,
                         bool overFreshBody) {
    std::optional<std::string> picture = PartPicture(scene.pictures, scene.look, part, scene.inactive);
    if (picture && look.transparent && !look.overMenu) {
        if (!overFreshBody)
            list.push_back(FillOp{button, look.colour});
        list.push_back(
            PictureOp{button, button, *picture, look.tileBitmap ? PictureFit::Tile : PictureFit::Stretch, true});
        return;
    }
    if (overFreshBody && ShowsBody(look, part))
        return;
    AddBackground(list, look, button, ShowsBody(look, part) ? scene.layout.surface : button, picture);
}

// The theme's icon of a symbol where its style asks for pictures and the folder has one.
std::optional<std::string> SymbolIcon(const MenuScene& scene, SymbolPicture symbol, bool selected) {
    return SymbolPictureFor(scene.pictures, scene.look, symbol, scene.inactive, selected);
}

void AddArrowOrIcon(DrawList& list, const MenuScene& scene, Rect box, Direction direction, SymbolPicture symbol,
                    bool selected, const PartLook& look) {
    if (std::optional<std::string> icon = SymbolIcon(scene, symbol, selected))
        AddIconPicture(list, box, Dpi::Scale(kSymbolIconSize, scene.dpi), *icon);
    else
        AddArrow(list, box, direction, ArrowStyleOf(scene.look.Menu3DArrows), look, scene.dpi);
}

// A text in the button font, centred across box and aligned along it.
TextOp ButtonText(std::string text, Rect box, int textWidth, int textHeight, int alignment, Colour colour, Rect clip) {
    TextOp op;
    op.origin = {AlignedStart(box.left, box.Width(), textWidth, alignment), box.top + (box.Height() - textHeight) / 2};
    op.text = std::move(text);
    op.font = FontRole::Button;
    op.colour = colour;
    op.clip = clip;
    return op;
}

} // namespace

Part PartForState(const MenuLook& look, ButtonState state) {
    if (state == ButtonState::Selected || (state == ButtonState::Pressed && look.SelBar))
        return Part::SelectionBar;
    return Part::Button;
}

DrawList ButtonOps(const MenuScene& scene, int item, ButtonState state, const TextMeasure& measure,
                   bool overFreshBody) {
    DrawList list;
    Rect button = ItemInWindow(scene, item);
    if (button.Empty())
        return list;
    Part part = PartForState(scene.look, state);
    PartLook look = LookIn(scene, part);
    bool pressed = state == ButtonState::Pressed;
    bool selected = part == Part::SelectionBar;
    AddButtonBackground(list, scene, look, part, button, overFreshBody);
    int line = scene.metrics().frameLine;
    if (!look.flat || pressed)
        AddPartEdge(list, button, line, look, pressed);

    const MenuMetrics& metrics = scene.metrics();
    const ItemMeasure& itemMeasure = scene.measures[static_cast<std::size_t>(item - 1)];
    ButtonParts parts = PartsOf(button, itemMeasure, ColumnsFor(scene.layout, itemMeasure, metrics), metrics);
    int shift = pressed ? 1 : 0;
    Rect clip = {button.left + line, button.top + line, button.right - line, button.bottom - line};
    if (metrics.icons)
        list.push_back(IconOp{Moved(parts.icon, shift), item});

    const DisplayEntry& entry = scene.list.Item(item);
    auto width = [&](std::string_view text) { return measure.Width(FontRole::Button, text); };
    int textHeight = measure.Height(FontRole::Button);
    std::string label = FitText(entry.LABEL, parts.text.Width(), width);
    int labelWidth = width(label);
    AddText(list,
            ButtonText(std::move(label), Moved(parts.text, shift), labelWidth, textHeight, scene.look.ButtonAlignment,
                       look.textColour, clip),
            look);

    if (itemMeasure.hasHotkey) {
        Rect symbolBox = Moved(parts.hotkeySymbol, shift);
        if (std::optional<std::string> icon = SymbolIcon(scene, SymbolPicture::CommandKey, selected))
            AddIconPicture(list, symbolBox, Dpi::Scale(kSymbolIconSize, scene.dpi), *icon);
        else
            AddHotkeySymbol(list, symbolBox, HotkeySymbolStyleOf(scene.look.HotkeyStyle), look, scene.dpi);
        std::string key = HotkeyLabel(entry.HOTKEY);
        int keyWidth = width(key);
        AddText(list,
                ButtonText(std::move(key), Moved(parts.hotkeyText, shift), keyWidth, textHeight, kAlignLeft,
                           look.textColour, clip),
                look);
    }
    if (itemMeasure.hasArrow)
        AddArrowOrIcon(list, scene, Moved(parts.arrow, shift), scene.horizontal ? Direction::Down : Direction::Right,
                       scene.horizontal ? SymbolPicture::HorizontalSubMenuArrow : SymbolPicture::SubMenuArrow, selected,
                       look);
    return list;
}

DrawList ScrollButtonOps(const MenuScene& scene) {
    DrawList list;
    PartLook look = LookIn(scene, Part::Button);
    const Rect& surface = scene.layout.surface;
    int line = scene.metrics().frameLine;
    for (const ScrollButton& scroll : ScrollButtons(scene.layout.buttons)) {
        Rect rect{scroll.rect.left + surface.left, scroll.rect.top + surface.top, scroll.rect.right + surface.left,
                  scroll.rect.bottom + surface.top};
        AddButtonBackground(list, scene, look, Part::Button, rect, false);
        if (!look.flat)
            AddPartEdge(list, rect, line, look, false);
        Direction direction = scene.horizontal ? (scroll.towardsEnd ? Direction::Right : Direction::Left)
                                               : (scroll.towardsEnd ? Direction::Down : Direction::Up);
        SymbolPicture symbol = scene.horizontal
                                   ? (scroll.towardsEnd ? SymbolPicture::ScrollRight : SymbolPicture::ScrollLeft)
                                   : (scroll.towardsEnd ? SymbolPicture::ScrollDown : SymbolPicture::ScrollUp);
        AddArrowOrIcon(list, scene, rect, direction, symbol, false, look);
    }
    return list;
}

} // namespace MenuWindow
