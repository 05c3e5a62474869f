#include "menuwindow/paint/paint_title.h"

#include "menuwindow/paint/paint_parts.h"
#include "menuwindow/paint/paint_title_buttons.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/layout/text_fit.h"
#include "menuwindow/layout/title_buttons.h"

namespace MenuWindow {

DrawList TitleOps(const MenuScene& scene, const TextMeasure& measure) {
    DrawList list;
    const MenuLayout& layout = scene.layout;
    if (layout.titlePlace == TitlePlace::None || layout.title.Empty())
        return list;
    PartLook look = LookOf(scene.look, Part::Title, scene.inactive);
    const Rect& bar = layout.title;
    AddBackground(list, look, bar, bar, PartPicture(scene.pictures, scene.look, Part::Title, scene.inactive));
    int line = scene.metrics().frameLine;
    if (!look.flat)
        AddPartEdge(list, bar, line, look, false);

    bool vertical = layout.titlePlace == TitlePlace::Left;
    std::vector<PlacedTitleButton> buttons = PlacedTitleButtons(scene);
    for (const PlacedTitleButton& button : buttons)
        AddTitleButton(list, scene, button, false);
    Rect room = TitleTextRect(bar, vertical, buttons, scene.metrics().titleTextPadding);
    if (room.Empty())
        return list;
    int length = vertical ? room.Height() : room.Width();
    auto width = [&](std::string_view text) { return measure.Width(FontRole::Title, text); };
    std::string text = FitText(scene.title, length, width);
    if (text.empty())
        return list;
    int textWidth = width(text);
    int textHeight = measure.Height(FontRole::Title);
    int alignment = scene.look.TitleAlignment;

    TextOp op;
    op.text = std::move(text);
    op.colour = look.textColour;
    op.clip = {bar.left + line, bar.top + line, bar.right - line, bar.bottom - line};
    if (vertical) {
        int along = AlignedStart(0, length, textWidth, alignment);
        op.font = FontRole::TitleVertical;
        op.origin = {room.left + (room.Width() - textHeight) / 2, room.bottom - along};
    } else {
        op.font = FontRole::Title;
        op.origin = {AlignedStart(room.left, length, textWidth, alignment),
                     room.top + (room.Height() - textHeight) / 2};
    }
    AddText(list, op, look);
    return list;
}

} // namespace MenuWindow
