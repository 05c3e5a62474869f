#include "menuwindow/interaction/menu_access.h"

namespace MenuWindow {

namespace {

// A screen reader reads the label the button shows; an item that opens a sub-menu stays
// a menu item with the has-pop-up state, which readers announce as "submenu", as they do
// for the system's own menus. The "(Empty)" entry names nothing and cannot be chosen.
AccessObject DescribeItem(const MenuScene& scene, int item, bool rolledUp) {
    const DisplayEntry& entry = scene.list.Item(item);
    AccessObject object;
    object.name = entry.LABEL;
    object.role = AccessRole::MenuItem;
    object.states.hasPopup = OpensSubMenu(entry.TYPE);
    object.states.unavailable = scene.list.empty;
    object.states.focusable = !object.states.unavailable;
    if (!rolledUp)
        object.place = ItemInWindow(scene, item);
    object.states.offscreen = object.place.Empty();
    if (!object.states.unavailable)
        object.defaultAction = object.states.hasPopup ? "Open" : "Execute";
    // Hot keys choose their item as Ctrl with the key.
    if (scene.look.MenuHotKeys != 0 && HasHotkey(entry.HOTKEY)) {
        object.shortcut = "Ctrl+";
        object.shortcut += HotkeyLabel(entry.HOTKEY);
    }
    return object;
}

} // namespace

MenuAccess DescribeMenu(const MenuScene& scene, const SelectionState& selection, AccessRequest request) {
    MenuAccess access;
    access.menu.name = scene.title;
    access.menu.role = AccessRole::Menu;
    access.menu.states.focusable = true;
    access.menu.place = {0, 0, scene.layout.window.width, scene.layout.window.height};
    access.horizontal = scene.horizontal;
    const int count = scene.list.Count();
    for (int item = 1; item <= count; ++item)
        access.items.push_back(DescribeItem(scene, item, request.rolledUp));
    const int selected = selection.selected >= 1 && selection.selected <= count ? selection.selected : 0;
    if (selected != 0)
        access.items[static_cast<std::size_t>(selected - 1)].states.selected = true;
    if (request.hasKeyboard) {
        access.focus = selected;
        AccessObject& focused = selected != 0 ? access.items[static_cast<std::size_t>(selected - 1)] : access.menu;
        focused.states.focused = true;
    }
    return access;
}

int ChildAt(const MenuAccess& access, Point point) {
    for (std::size_t index = 0; index < access.items.size(); ++index)
        if (access.items[index].place.Contains(point))
            return static_cast<int>(index) + 1;
    return 0;
}

int Navigate(int count, bool horizontal, int from, AccessDirection direction) {
    if (from < 0 || from > count)
        return 0;
    const bool fromMenu = from == 0;
    const int next = !fromMenu && from < count ? from + 1 : 0;
    const int previous = !fromMenu && from > 1 ? from - 1 : 0;
    switch (direction) {
    case AccessDirection::First:
        return fromMenu && count > 0 ? 1 : 0;
    case AccessDirection::Last:
        return fromMenu ? count : 0;
    case AccessDirection::Next:
        return next;
    case AccessDirection::Previous:
        return previous;
    case AccessDirection::Down:
        return horizontal ? 0 : next;
    case AccessDirection::Up:
        return horizontal ? 0 : previous;
    case AccessDirection::Right:
        return horizontal ? next : 0;
    case AccessDirection::Left:
        return horizontal ? previous : 0;
    }
    return 0;
}

int FocusEventFor(const SelectionState& before, const SelectionState& after) {
    return after.selected != before.selected ? after.selected : 0;
}

} // namespace MenuWindow
