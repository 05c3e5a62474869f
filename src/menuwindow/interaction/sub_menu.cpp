#include "menuwindow/interaction/sub_menu.h"

#include "menus/data_manager.h"

namespace MenuWindow {

namespace {

SubMenuAnchor AnchorOf(const CascadeRec& parent, const MenuScene& scene, int item) {
    SubMenuAnchor anchor;
    anchor.parent = parent.bounds;
    anchor.parentHorizontal = scene.horizontal;
    anchor.towardsStart = parent.towardsStart;
    const Rect& surface = scene.layout.surface;
    int surfaceStart = scene.horizontal ? parent.bounds.left + surface.left : parent.bounds.top + surface.top;
    anchor.buttonStart = ButtonScreenStart(scene.layout.buttons, surfaceStart, item - scene.view().first);
    return anchor;
}

} // namespace

CascadeRec SubMenuRecord(const CascadeRec& parent, const MenuScene& scene, int item, const MenuTable& menus) {
    const DisplayEntry& entry = scene.list.Item(item);
    CascadeRec record;
    record.parentId = parent.id;
    record.level = parent.level + 1;
    record.hotspot = parent.hotspot;
    record.kind = entry.TYPE;
    record.path = entry.PATH;
    if (entry.TYPE == kItemMenuName)
        record.menuNumber = DataManager::MenuNumberByName(menus, entry.PATH);
    if (entry.TYPE == kItemTaskList)
        record.caption = entry.LABEL;
    if (entry.TYPE == kItemFolderPath) {
        record.path2 = entry.ARG;
        record.menuType = entry.RUNSTATE;
        record.fileTypeMask = entry.FILETYPEMASK;
        if (item == scene.list.moreItem) {
            record.skip = parent.skip + scene.list.Count() - 1;
            record.caption = MenuTitle(parent, menus);
        }
    }
    record.groupName = parent.groupName;
    record.theme = parent.theme;
    record.inherit = parent.inherit;
    record.parentItem = item;
    record.anchor = AnchorOf(parent, scene, item);
    return record;
}

int FreshMenuId(const CascadeList& list, unsigned random) {
    constexpr int kIds = 32767;
    int start = static_cast<int>(random % kIds);
    for (int step = 0; step < kIds; ++step) {
        int id = (start + step) % kIds + 1;
        if (list.IndexOf(id) == 0)
            return id;
    }
    return list.FreeId();
}

void PlaceAt(CascadeRec& record, Point topLeft) {
    record.anchor.reset();
    record.onMouse = false;
    record.origin = {};
    record.position = topLeft;
}

void TearOff(CascadeRec& record, int freshId, Point topLeft) {
    record.id = freshId;
    record.parentId = 0;
    record.level = 1;
    record.parentItem = 0;
    record.openedByHotspot = false;
    record.towardsStart = false;
    PlaceAt(record, topLeft);
}

DropAction DecideDrop(const CascadeRec& record, Point from, Point to) {
    if (from == to)
        return DropAction::Nothing;
    if (record.level > 1)
        return DropAction::TearOff;
    return record.openedByHotspot && record.hotspot >= 0 ? DropAction::StoreHotspotPlace : DropAction::KeepPlace;
}

} // namespace MenuWindow
