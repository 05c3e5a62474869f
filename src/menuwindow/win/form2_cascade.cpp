// Form2 in its cascade: opening a sub-menu beside an item, closing it, and hearing from
// it when it goes.
#include "menuwindow/win/form2.h"

#include "menuwindow/interaction/sub_menu.h"

using namespace MenuWindow;

// The new window may serve the queue while it animates, and this one may close then.
void Form2::OpenNewMenu(int item) {
    CloseSubMenu();
    if (host_)
        Record().bounds = ScreenBounds();
    CascadeRec record = SubMenuRecord(Record(), scene_, item, menus_);
    int index = openMenus_.Append();
    record.id = openMenus_.records().At(index).id;
    int childId = record.id;
    openMenus_.records().At(index) = std::move(record);
    openMenus_.Attach(index, std::make_unique<Form2>(settings_, menus_, programFolder_, openMenus_, childId));
    Form2* child = openMenus_.WindowOf(childId);
    if (!child || !child->Create()) {
        openMenus_.Close(openMenus_.records().IndexOf(childId));
        return;
    }
    interaction_.SubMenuOpened(item, NearEdgeInWindow(child->Record()));
    SetInactive(true);
    child->Show();
}

// The side of a sub-menu that faces this window, in this window's coordinates.
Edge Form2::NearEdgeInWindow(const CascadeRec& subMenu) const {
    const Rect here = ScreenBounds();
    const Rect& there = subMenu.bounds;
    Rect inWindow{there.left - here.left, there.top - here.top, there.right - here.left, there.bottom - here.top};
    return NearEdge(inWindow, scene_.horizontal, subMenu.towardsStart);
}

// When the keyboard was down there, it comes back here rather than to no menu at all.
void Form2::CloseSubMenu() {
    int child = openMenus_.records().SubMenuOf(id_);
    if (child == 0)
        return;
    HWND foreground = ::GetForegroundWindow();
    bool hadKeyboard = false;
    for (int id : openMenus_.records().WithSubMenus(child))
        if (Form2* window = openMenus_.WindowOf(id); window && window->hwnd() == foreground)
            hadKeyboard = true;
    openMenus_.CloseWithSubMenus(child); // tells this window through NotifySubMenuClosed
    if (hadKeyboard)
        ::SetForegroundWindow(window_.get());
}

void Form2::NotifySubMenuClosed() {
    int item = interaction_.SubMenuClosed();
    SetInactive(false);
    if (item != 0)
        ForceRedrawButton(item);
}

void Form2::NotifyDiscardMouseMove() {
    interaction_.DiscardNextMove();
}

// The keyboard goes back to the parent, which keeps its selection.
void Form2::CloseByKeyboard() {
    PlayEventSound(SoundEvent::CloseMenu);
    Form2* parent = Parent();
    HWND parentWindow = parent ? parent->hwnd() : nullptr;
    if (parent)
        parent->NotifyDiscardMouseMove();
    openMenus_.CloseWithSubMenus(id_); // this object is gone afterwards
    if (parentWindow)
        ::SetForegroundWindow(parentWindow);
}
