#include "menuwindow/paint/paint_menu.h"

#include "menuwindow/look/frame.h"
#include "menuwindow/paint/paint_button.h"
#include "menuwindow/paint/paint_parts.h"
#include "menuwindow/paint/paint_title.h"
#include "menuwindow/look/pictures.h"

namespace MenuWindow {

namespace {

void Append(DrawList& list, DrawList more) {
    list.insert(list.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

DrawList FrameOps(const MenuScene& scene) {
    DrawList list;
    for (const FrameLine& line :
         FrameLines(scene.look, scene.options.shape, scene.layout.window, scene.metrics().frameLine))
        AddEdgeLines(list, line.outer, line.thickness, line.light, line.dark);
    return list;
}

DrawList SurfaceOps(const MenuScene& scene, const SelectionState& selection, const TextMeasure& measure) {
    DrawList list;
    PartLook body = LookIn(scene, Part::Button);
    // The body shows the button picture only when it spans the body; each button brings
    // its own otherwise.
    std::optional<std::string> picture;
    if (body.overMenu)
        picture = PartPicture(scene.pictures, scene.look, Part::Button, scene.inactive);
    AddBackground(list, body, scene.layout.surface, scene.layout.surface, picture);
    const ScrollView& view = scene.view();
    for (int position = 1; position <= view.slots; ++position) {
        int item = view.first + position;
        if (IsDrawn(view, position))
            Append(list, ButtonOps(scene, item, StateOf(item, selection, scene.look.SelBar), measure, true));
    }
    Append(list, ScrollButtonOps(scene));
    return list;
}

DrawList MenuOps(const MenuScene& scene, const SelectionState& selection, const TextMeasure& measure) {
    DrawList list = FrameOps(scene);
    Append(list, TitleOps(scene, measure));
    Append(list, SurfaceOps(scene, selection, measure));
    return list;
}

} // namespace MenuWindow
