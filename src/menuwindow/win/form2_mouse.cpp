// Form2 and the mouse: presses, moves and releases go to the title-bar buttons, to the
// drag by the title bar, or to the interaction of the button surface; what the
// interaction answers is carried out here.
#include "menuwindow/win/form2.h"

#include "menuwindow/interaction/title_bar.h"
#include "menuwindow/win/menu_choices.h"

using namespace MenuWindow;

void Form2::Form_MouseDown(MouseButton button, WPARAM keys, Point point) {
    if (button == MouseButton::Left) {
        if (std::optional<TitleButton> titleButton = TitleButtonAt(scene_, point)) {
            picbutton_MouseDown(*titleButton);
            return;
        }
        if (DragsMenu(scene_, point)) {
            DragByTitle(); // this object may be gone afterwards
            return;
        }
    }
    if (!scene_.layout.surface.Contains(point))
        return;
    // The surface holds the mouse until the release, so that a release outside is seen.
    ::SetCapture(window_.get());
    Apply(interaction_.Press(scene_, button, HeldModifiers(keys), point));
}

void Form2::Form_MouseMove(Point point) {
    if (pressedTitleButton_)
        return;
    Apply(interaction_.Move(scene_, point));
}

void Form2::Form_MouseUp(MouseButton button, WPARAM keys, Point point) {
    if (pressedTitleButton_) {
        picbutton_MouseUp(point);
        return;
    }
    Apply(interaction_.Release(scene_, button, HeldModifiers(keys), point));
}

void Form2::Apply(const Effects& effects) {
    HWND hwnd = window_.get();
    if (effects.first) {
        ScrollTo(scene_, *effects.first);
        Record().firstVisible = scene_.view().first;
        PaintSurface();
    }
    if (effects.bar)
        SetSelection(*effects.bar);
    if (effects.flash)
        DrawButton(effects.flash->first, effects.flash->second);
    for (const TimerOrder& order : effects.timers) {
        if (order.interval > 0)
            ::SetTimer(hwnd, TimerId(order.timer), static_cast<UINT>(order.interval), nullptr);
        else
            ::KillTimer(hwnd, TimerId(order.timer));
    }
    if (effects.capture == Capture::Take && ::GetCapture() != hwnd)
        ::SetCapture(hwnd);
    else if (effects.capture == Capture::Release && ::GetCapture() == hwnd)
        ::ReleaseCapture();

    switch (effects.action) {
    case MenuAction::None:
        break;
    case MenuAction::ShowProperties:
        if (openMenus_.choices)
            openMenus_.choices->ShowProperties(scene_.list.Item(effects.item).PATH);
        break;
    case MenuAction::OpenSubMenu:
        OpenNewMenu(effects.item);
        break;
    case MenuAction::CloseSubMenu:
        CloseSubMenu();
        break;
    case MenuAction::Choose:
        if (effects.closeSubMenuFirst)
            CloseSubMenu();
        Choose(effects.item, effects.ctrlHeld);
        break;
    case MenuAction::CloseMenu:
        CloseByKeyboard();
        break;
    }
}

// The launcher may serve the queue (a message box, the exit's question), in which this
// window can be closed: nothing of it is touched once it is gone.
void Form2::Choose(int item, bool ctrlHeld) {
    MenuChoices* choices = openMenus_.choices;
    if (!choices)
        return;
    DisplayEntry entry = scene_.list.Item(item);
    std::weak_ptr<bool> alive = lifetime_;
    std::optional<std::int16_t> commandResult;
    switch (ChoiceOf(entry.TYPE, Record().kind == kItemTaskList)) {
    case Choice::ActivateTask:
        choices->ActivateTaskWindow(reinterpret_cast<HWND>(static_cast<std::uintptr_t>(entry.taskWindow)));
        break;
    case Choice::RunCommand:
        commandResult = choices->RunCommand(entry.PATH);
        break;
    case Choice::RunProgram:
        choices->RunProgram(entry);
        break;
    case Choice::None:
        return;
    }
    if (alive.expired())
        return;
    AfterChoice after = AfterChoosing(commandResult, ctrlHeld);
    if (after.bringForward)
        ::SetTimer(window_.get(), TimerId(MenuTimer::SetForeground), kSetForegroundInterval, nullptr);
    if (after.clearSelection)
        Apply(interaction_.ClearBar());
    if (after.closeCascade)
        CloseCascade();
}
