// Form2's title bar: its buttons (close, rotate, roll-up, on-top) and dragging the menu
// by it, which moves a hotspot's menu for good and tears a sub-menu off its parent.
#include "menuwindow/win/form2.h"

#include "menuwindow/interaction/sub_menu.h"
#include "menuwindow/interaction/title_bar.h"
#include "menuwindow/paint/paint_title_buttons.h"
#include "menuwindow/win/menu_choices.h"

#include <random>

using namespace MenuWindow;

void Form2::picbutton_MouseDown(TitleButton button) {
    pressedTitleButton_ = button;
    ::SetCapture(window_.get());
    DrawTitleButton(button, true);
}

void Form2::DrawTitleButton(TitleButton button, bool pressed) {
    for (const PlacedTitleButton& placed : PlacedTitleButtons(scene_)) {
        if (placed.button != button)
            continue;
        DrawList list;
        AddTitleButton(list, scene_, placed, pressed);
        Render(list);
        Invalidate(placed.rect);
    }
}

// A release on the button it pressed acts; elsewhere it only lets the button go.
void Form2::picbutton_MouseUp(Point point) {
    TitleButton button = *pressedTitleButton_;
    pressedTitleButton_.reset();
    if (::GetCapture() == window_.get())
        ::ReleaseCapture();
    DrawTitleButton(button, false);
    if (TitleButtonAt(scene_, point) != button)
        return;
    PlayEventSound(TitleButtonSound(button, rolledUp_));
    switch (button) {
    case TitleButton::Close:
        openMenus_.CloseWithSubMenus(id_); // this object is gone afterwards
        return;
    case TitleButton::Rotate:
        CloseSubMenu();
        Apply(interaction_.StopAll());
        Record().horizontal = !Record().horizontal;
        Record().rotated = !Record().rotated;
        PaintMenu();
        return;
    case TitleButton::RollUp:
        if (!rolledUp_)
            CloseSubMenu();
        SetRolledUp(!rolledUp_);
        return;
    case TitleButton::OnTop: {
        bool onTop = (::GetWindowLongW(window_.get(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
        ::SetWindowPos(window_.get(), onTop ? HWND_NOTOPMOST : HWND_TOPMOST, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return;
    }
    }
}

namespace {

Point TopLeftOf(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return {rect.left, rect.top};
}

} // namespace

// The system's own move loop carries the window with the mouse until the button comes
// up, as it does a window's caption; the drop is decided once it is over.
void Form2::DragByTitle() {
    CloseSubMenu();
    HWND hwnd = window_.get();
    Point from = TopLeftOf(hwnd);
    ::ReleaseCapture(); // a menu's hover may still hold the mouse; the loop takes it
    std::weak_ptr<bool> alive = lifetime_;
    ::SendMessageW(hwnd, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0);
    if (alive.expired())
        return;
    Drop(from, TopLeftOf(hwnd));
}

void Form2::Drop(Point from, Point dropped) {
    CascadeRec& record = Record();
    DropAction action = DecideDrop(record, from, dropped);
    if (action == DropAction::Nothing)
        return;
    record.bounds = RectAt(dropped, scene_.layout.window);
    if (action == DropAction::TearOff) {
        TearOffFromParent();
        return;
    }
    PlaceAt(record, dropped);
    if (action == DropAction::StoreHotspotPlace && openMenus_.choices)
        openMenus_.choices->StoreHotspotPlace(record.hotspot, dropped.x, dropped.y);
}

// The sub-menu leaves its parent under a fresh identifier and is rebuilt as a menu of
// its own, which stays open.
void Form2::TearOffFromParent() {
    Form2* parent = Parent();
    static std::minstd_rand random(::GetTickCount());
    int freshId = FreshMenuId(openMenus_.records(), static_cast<unsigned>(random()));
    const Rect& bounds = Record().bounds;
    Point topLeft{bounds.left, bounds.top};
    openMenus_.Renumber(id_, freshId);
    id_ = freshId;
    TearOff(Record(), freshId, topLeft);
    if (parent)
        parent->NotifySubMenuClosed();
    PaintMenu();
}
