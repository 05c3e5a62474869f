// Form2's painting: the whole window (PaintMenu), single buttons as the selection
// moves, the scroll buttons, and copying the off-screen picture to the screen.
#include "menuwindow/win/form2.h"

#include "desktop/win/task_windows.h"
#include "menuwindow/layout/menu_position.h"
#include "menuwindow/layout/outline.h"
#include "menuwindow/paint/paint_button.h"
#include "menuwindow/paint/paint_menu.h"
#include "menuwindow/look/pictures.h"
#include "menuwindow/win/draw_list_renderer.h"
#include "menuwindow/win/screen_area.h"
#include "win/text_convert.h"

using namespace MenuWindow;

void Form2::PaintMenu() {
    icons_.Clear();
    Rebuild(BuildItemList());
}

void Form2::Rebuild(DisplayList list) {
    int dpi = MonitorOfMenu(Record(), CurrentMonitors()).dpi;
    fonts_.Build(look_, dpi);
    pictures_.List(PictureFolderPath(look_.BitmapsFolder, programFolder_));
    scene_ = LayOut(std::move(list), dpi);
    Present();
}

// The window was moved onto a monitor of another scaling (or the monitor's scaling
// changed): it is laid out in sizes for the new DPI where it stands.
void Form2::Form_DpiChanged(int dpi) {
    if (host_ || dpi <= 0 || dpi == scene_.dpi)
        return;
    Rect now = ScreenBounds();
    fonts_.Build(look_, dpi);
    icons_.Clear();
    scene_ = LayOut(scene_.list, dpi);
    Present(Placement{{now.left, now.top}, Record().towardsStart});
}

MenuScene Form2::LayOut(DisplayList list, int dpi) {
    CascadeRec& record = Record();
    SceneRequest request;
    request.look = look_;
    request.list = std::move(list);
    request.title = MenuTitle(record, menus_);
    request.horizontal = record.horizontal;
    request.rotated = record.rotated;
    request.inactive = inactive_;
    request.dpi = dpi;
    request.workArea = MonitorOfMenu(record, CurrentMonitors()).work;
    request.first = record.firstVisible;
    request.pictures = pictures_.Names();
    return BuildScene(std::move(request), fonts_);
}

void Form2::Present() {
    Present(PlaceMenu(Record(), scene_, MonitorOfMenu(Record(), CurrentMonitors()).work));
}

void Form2::Present(const Placement& placement) {
    CascadeRec& record = Record();
    record.firstVisible = scene_.view().first;
    icons_.Reset(scene_.list.Count(), scene_.metrics().iconSize);

    ::SetWindowTextW(window_.get(), Win::Widen(scene_.title).c_str());
    record.bounds = RectAt(placement.topLeft, scene_.layout.window);
    record.towardsStart = placement.towardsStart;
    Place();

    picture_.Resize(scene_.layout.window);
    Render(MenuOps(scene_, selection_, fonts_));
    drawn_.assign(static_cast<std::size_t>(scene_.list.Count()) + 1, ButtonState::Normal);
    for (int item = 1; item <= scene_.list.Count(); ++item)
        drawn_[static_cast<std::size_t>(item)] = StateOf(item, selection_, look_.SelBar);
    ApplyOutline();
    Invalidate({0, 0, scene_.layout.window.width, scene_.layout.window.height});
}

// A task-list menu takes the running tasks again: a task that came or went lays the
// window out anew; a task that only changed (its title, mostly) repaints its own button,
// unless the new title changes the menu's size.
void Form2::tmrUpdateTaskList_Timer() {
    DisplayList now = TaskList(TaskWindows::ListTasks());
    ListChange change = ChangeBetween(scene_.list, now);
    if (change.None())
        return;
    if (change.length) {
        Apply(interaction_.ClearBar());
        icons_.Clear();
        Rebuild(std::move(now));
        RaiseAccessEvent(EVENT_OBJECT_REORDER, CHILDID_SELF);
        return;
    }
    MenuScene next = LayOut(std::move(now), scene_.dpi);
    bool sameSize = next.layout.window == scene_.layout.window;
    scene_ = std::move(next);
    for (int item : change.items)
        icons_.Forget(item);
    if (!sameSize)
        Present();
    for (int item : change.items) {
        if (sameSize)
            ForceRedrawButton(item);
        RaiseAccessEvent(EVENT_OBJECT_NAMECHANGE, item);
    }
}

void Form2::Place() {
    const Rect& bounds = Record().bounds;
    POINT topLeft{bounds.left, bounds.top};
    if (host_)
        ::ScreenToClient(host_, &topLeft);
    ::SetWindowPos(window_.get(), nullptr, topLeft.x, topLeft.y, bounds.Width(), bounds.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

void Form2::PaintSurface() {
    Render(SurfaceOps(scene_, selection_, fonts_));
    for (int item = 1; item <= scene_.list.Count(); ++item)
        drawn_[static_cast<std::size_t>(item)] = StateOf(item, selection_, look_.SelBar);
    Invalidate(scene_.layout.surface);
}

void Form2::DrawButton(int item, bool selected) {
    DrawButton(item, selected ? ButtonState::Selected : ButtonState::Normal);
}

void Form2::DrawButton(int item, ButtonState state) {
    Rect button = ItemInWindow(scene_, item);
    if (button.Empty())
        return;
    Render(ButtonOps(scene_, item, state, fonts_));
    drawn_[static_cast<std::size_t>(item)] = state;
    ++buttonsDrawn_;
    Invalidate(button);
}

void Form2::ForceRedrawButton(int item) {
    DrawButton(item, StateOf(item, selection_, look_.SelBar));
}

void Form2::RedrawButton(int item) {
    if (item < 1 || item > scene_.list.Count())
        return;
    ButtonState wanted = StateOf(item, selection_, look_.SelBar);
    if (drawn_[static_cast<std::size_t>(item)] != wanted)
        DrawButton(item, wanted);
}

void Form2::SetSelection(const SelectionState& selection) {
    std::vector<int> changed = ButtonsToRepaint(selection_, selection, look_.SelBar, scene_.view());
    int focused = FocusEventFor(selection_, selection);
    selection_ = selection;
    for (int item : changed)
        DrawButton(item, StateOf(item, selection_, look_.SelBar));
    if (focused != 0)
        RaiseAccessEvent(EVENT_OBJECT_FOCUS, focused);
}

void Form2::DrawScrollButton() {
    Render(ScrollButtonOps(scene_));
    Invalidate(scene_.layout.surface);
}

void Form2::MakeButtonVisible(int item) {
    Apply(interaction_.MakeButtonVisible(scene_, item));
}

// The same items in the other look: the list is not taken again.
void Form2::SetInactive(bool inactive) {
    if (inactive == inactive_)
        return;
    inactive_ = inactive;
    Rebuild(scene_.list);
}

void Form2::SetRolledUp(bool rolledUp) {
    rolledUp_ = rolledUp;
    ApplyOutline();
}

// The system takes the region over once it is set; a region that was not taken is ours
// to delete.
void Form2::ApplyOutline() {
    std::optional<Rect> outline = WindowOutline(scene_.layout, rolledUp_);
    if (!outline) {
        ::SetWindowRgn(window_.get(), nullptr, TRUE);
        return;
    }
    Win::UniqueRegion region(::CreateRectRgn(outline->left, outline->top, outline->right, outline->bottom));
    if (region && ::SetWindowRgn(window_.get(), region.get(), TRUE))
        region.release();
}

void Form2::Render(const DrawList& list) {
    const DisplayList& items = scene_.list;
    MenuWindow::Render(
        picture_.dc(), list, fonts_,
        [this, &items](int item) {
            return item >= 1 && item <= items.Count() ? icons_.Get(item, items.Item(item)) : nullptr;
        },
        [this](HDC dc, const PictureOp& op) { pictures_.Draw(dc, op); });
}

void Form2::Invalidate(const Rect& area) {
    RECT rect{area.left, area.top, area.right, area.bottom};
    ::InvalidateRect(window_.get(), &rect, FALSE);
}

void Form2::Picture2_Paint() {
    Win::PaintDc paint(window_.get());
    picture_.CopyTo(paint.get(), paint.area());
}

void Form2::Form_PrintClient(HDC dc) {
    Size size = picture_.size();
    picture_.CopyTo(dc, {0, 0, size.width, size.height});
}
