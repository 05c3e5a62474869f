#include "menuwindow/layout/menu_scene.h"

#include "menuwindow/look/frame.h"
#include "menuwindow/layout/title_buttons.h"

#include <utility>

namespace MenuWindow {

PartLook LookIn(const MenuScene& scene, Part part) {
    PartLook look = LookOf(scene.look, part, scene.inactive);
    return part == Part::Button ? FrameOverBody(look, scene.look, scene.options.shape, scene.horizontal) : look;
}

MenuScene BuildScene(SceneRequest request, const TextMeasure& measure) {
    MenuScene scene;
    scene.look = std::move(request.look);
    if (request.rotated) {
        scene.look.HorzNoTitlebar = false;
        scene.look.HorzButtonsOnly = false;
    }
    scene.list = std::move(request.list);
    scene.title = std::move(request.title);
    scene.horizontal = request.horizontal;
    scene.inactive = request.inactive;
    scene.dpi = request.dpi;
    scene.pictures = std::move(request.pictures);
    scene.options = LayoutOptionsOf(scene.look, scene.horizontal, scene.inactive, scene.dpi);
    scene.measures = MeasureItems(scene.list, measure);
    if (!scene.title.empty())
        scene.options.titleWidth =
            measure.Width(FontRole::Title, scene.title) + 2 * scene.options.metrics.titleTextPadding;
    // The title-bar buttons stand beside the text, so the bar is made long enough for both:
    // by as much as they take from the text's room on a bar of any length.
    const MenuMetrics& metrics = scene.options.metrics;
    Rect longBar{0, 0, 1 << 16, metrics.titleThickness};
    std::vector<PlacedTitleButton> buttons = PlaceTitleButtons(scene.look, scene.inactive, longBar, false,
                                                               metrics.titleButtonSize, metrics.titleButtonGap);
    scene.options.titleWidth += longBar.Width() - TitleTextRect(longBar, false, buttons, 0).Width();
    int available = scene.horizontal ? request.workArea.Width() : request.workArea.Height();
    scene.layout = LayOutMenu(scene.measures, scene.options, available, request.first);
    return scene;
}

void ScrollTo(MenuScene& scene, int first) {
    scene.layout.buttons.view = WithFirst(scene.layout.buttons.view, first);
}

Rect SlotInWindow(const MenuScene& scene, int position) {
    Rect slot = ButtonRect(scene.layout.buttons, position);
    const Rect& surface = scene.layout.surface;
    return {slot.left + surface.left, slot.top + surface.top, slot.right + surface.left, slot.bottom + surface.top};
}

Rect ItemInWindow(const MenuScene& scene, int item) {
    int position = item - scene.view().first;
    if (!IsDrawn(scene.view(), position))
        return {};
    return SlotInWindow(scene, position);
}

Hit HitInWindow(const MenuScene& scene, Point point) {
    const Rect& surface = scene.layout.surface;
    return HitTest(scene.layout.buttons, {point.x - surface.left, point.y - surface.top});
}

} // namespace MenuWindow
