#include "menuwindow/layout/menu_position.h"

namespace MenuWindow {

Point OpeningPoint(const CascadeRec& record) {
    if (record.anchor) {
        const SubMenuAnchor& anchor = *record.anchor;
        return anchor.parentHorizontal ? Point{anchor.buttonStart, anchor.parent.bottom}
                                       : Point{anchor.parent.right, anchor.buttonStart};
    }
    if (record.onMouse)
        return record.position;
    return {record.origin.x + record.position.x, record.origin.y + record.position.y};
}

Monitor MonitorOfMenu(const CascadeRec& record, Monitors monitors) {
    if (record.anchor || record.onMouse)
        return NearestMonitor(monitors, OpeningPoint(record));
    return MonitorOfPlace(monitors, OpeningPoint(record));
}

Placement PlaceMenu(const CascadeRec& record, const MenuScene& scene, Rect workArea) {
    Size window = scene.layout.window;
    if (record.anchor) {
        const SubMenuAnchor& anchor = *record.anchor;
        int overlap = scene.look.MenuOverlapMenus ? scene.metrics().subMenuOverlap : 0;
        return PlaceSubMenu(anchor, SubMenuFrameOf(scene.layout, anchor.parentHorizontal),
                            scene.look.MenuAlignWithTitle, overlap, workArea);
    }
    Placement placement;
    placement.topLeft =
        PlaceHotspotMenu(record.position, record.origin, record.onMouse, record.position, window, workArea);
    return placement;
}

} // namespace MenuWindow
