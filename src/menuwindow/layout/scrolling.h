// Which run of a long menu's items is shown, and where its scroll buttons stand.
//
// The surface has a number of button slots. When all items fit, there is one slot per
// item. When they do not (more items than fit on the screen, or than MenuMaxNoItems),
// a scroll button takes the place of a button at each cut end: in slot 1 while items
// are hidden before the run, in the last slot while items are hidden after it, and the
// button whose slot it takes is not drawn. With TwinScrollButtons both scroll buttons
// share the last slot, side by side, whenever the menu is cut; that slot then never
// shows an item, so the run is one slot shorter.
//
// Positions are 1-based slots; items are 1-based; the first visible offset is the
// number of items before position 1 (item = first + position).
#pragma once

namespace MenuWindow {

struct ScrollView {
    int count = 0; // items in the menu
    int slots = 0; // button slots on the surface
    int first = 0; // first visible offset, 0-based
    bool twin = false;
    bool operator==(const ScrollView&) const = default;
};

// The fewest slots a cut menu gets, so that at least one item shows between its scroll
// buttons even on a screen too small for them: the menu then runs off the screen.
inline constexpr int kFewestSlotsCut = 3;
inline constexpr int kFewestSlotsCutTwin = 2;

// fittingSlots is how many buttons fit on the screen; maxItems is MenuMaxNoItems (below 1
// counts as 1). The offset is kept within the range the view allows.
ScrollView PlanScroll(int count, int fittingSlots, int maxItems, bool twin, int first);

// The same view with another first visible offset, kept within range.
ScrollView WithFirst(const ScrollView& view, int first);

bool IsCut(const ScrollView& view);
// The number of positions that map to items (the visible count that scrolling compares
// against the item count): the slots, less the twin scroll slot.
int VisibleCount(const ScrollView& view);
int LargestFirst(const ScrollView& view);
bool HiddenBefore(const ScrollView& view);
bool HiddenAfter(const ScrollView& view);

enum class ScrollSlot { None, TowardsStart, TowardsEnd, Twin };

// What scroll button, if any, stands in a slot.
ScrollSlot ScrollSlotAt(const ScrollView& view, int position);

// Whether the item at a position is drawn: the position is in the run and no scroll
// button stands there.
bool IsDrawn(const ScrollView& view, int position);

// The first visible offset that brings an item into view with the least scrolling; the
// current one when it is drawn already or the item does not exist.
int FirstToShow(const ScrollView& view, int item);

} // namespace MenuWindow
