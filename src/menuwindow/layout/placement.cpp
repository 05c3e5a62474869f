#include "menuwindow/layout/placement.h"

#include <algorithm>

namespace MenuWindow {

namespace {

int KeepWithin(int start, int length, int low, int high) {
    start = std::min(start, high - length);
    return std::max(start, low);
}

struct SideChoice {
    int start;
    bool towardsStart;
};

// The sub-menu's start across the parent: after the parent's far side or before its near one.
SideChoice ChooseSide(int parentLow, int parentHigh, int length, int overlap, bool preferBefore, int low, int high) {
    int after = parentHigh - overlap;
    int before = parentLow + overlap - length;
    bool fitsAfter = after + length <= high;
    bool fitsBefore = before >= low;
    if (preferBefore ? fitsBefore : fitsAfter)
        return {preferBefore ? before : after, preferBefore};
    if (preferBefore ? fitsAfter : fitsBefore)
        return {preferBefore ? after : before, !preferBefore};
    int roomAfter = high - after;
    int roomBefore = before + length - low;
    bool takeBefore = roomBefore == roomAfter ? preferBefore : roomBefore > roomAfter;
    int start = takeBefore ? before : after;
    return {KeepWithin(start, length, low, high), takeBefore};
}

int StartAlongButtons(const SubMenuAnchor& anchor, const SubMenuFrame& menu, int alignRule) {
    switch (alignRule) {
    case kAlignFirstButtonWithButton:
        return anchor.buttonStart - menu.firstButtonStart;
    case kAlignByTitlebar:
        return anchor.parentHorizontal ? anchor.parent.left : anchor.parent.top;
    default:
        return anchor.buttonStart - menu.titleStart;
    }
}

} // namespace

Point KeepOnScreen(Point topLeft, Size window, Rect workArea) {
    return {KeepWithin(topLeft.x, window.width, workArea.left, workArea.right),
            KeepWithin(topLeft.y, window.height, workArea.top, workArea.bottom)};
}

Point PlaceHotspotMenu(Point menuPosition, Point origin, bool onMouse, Point cursor, Size window, Rect workArea) {
    if (!onMouse)
        return KeepOnScreen({origin.x + menuPosition.x, origin.y + menuPosition.y}, window, workArea);
    Point at = cursor;
    if (at.x + window.width > workArea.right)
        at.x = cursor.x - window.width;
    if (at.y + window.height > workArea.bottom)
        at.y = cursor.y - window.height;
    return KeepOnScreen(at, window, workArea);
}

SubMenuFrame SubMenuFrameOf(const MenuLayout& layout, bool parentHorizontal) {
    SubMenuFrame menu;
    menu.window = layout.window;
    Rect first = ButtonRect(layout.buttons, 1);
    if (parentHorizontal) {
        menu.titleStart = layout.titlePlace == TitlePlace::None ? 0 : layout.title.left;
        menu.firstButtonStart = layout.surface.left + first.left;
    } else {
        menu.titleStart = layout.titlePlace == TitlePlace::None ? 0 : layout.title.top;
        menu.firstButtonStart = layout.surface.top + first.top;
    }
    return menu;
}

Placement PlaceSubMenu(const SubMenuAnchor& anchor, const SubMenuFrame& menu, int alignRule, int overlap,
                       Rect workArea) {
    int along = StartAlongButtons(anchor, menu, alignRule);
    Placement placement;
    if (anchor.parentHorizontal) {
        SideChoice side = ChooseSide(anchor.parent.top, anchor.parent.bottom, menu.window.height, overlap,
                                     anchor.towardsStart, workArea.top, workArea.bottom);
        placement.topLeft = {KeepWithin(along, menu.window.width, workArea.left, workArea.right), side.start};
        placement.towardsStart = side.towardsStart;
    } else {
        SideChoice side = ChooseSide(anchor.parent.left, anchor.parent.right, menu.window.width, overlap,
                                     anchor.towardsStart, workArea.left, workArea.right);
        placement.topLeft = {side.start, KeepWithin(along, menu.window.height, workArea.top, workArea.bottom)};
        placement.towardsStart = side.towardsStart;
    }
    return placement;
}

} // namespace MenuWindow
