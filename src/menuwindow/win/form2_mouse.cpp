// Form2 and the mouse: a press on an item selects and presses it, and a release on the
// same item chooses it.
#include "menuwindow/win/form2.h"

#include "menuwindow/win/menu_choices.h"

using namespace MenuWindow;

namespace {

int ItemAt(const MenuScene& scene, Point point) {
    Hit hit = HitInWindow(scene, point);
    return hit.kind == Hit::Kind::Item ? hit.item : 0;
}

} // namespace

// The mouse is held for the surface until the release, so that a release outside the
// menu is seen too.
void Form2::Picture2_MouseDown(MouseButton button, Point point) {
    int item = ItemAt(scene_, point);
    if (item == 0)
        return;
    lastButton_ = button;
    ::SetCapture(window_.get());
    SetSelection({item, true});
}

void Form2::Picture2_MouseUp(MouseButton button, WPARAM keys, Point point) {
    ::ReleaseCapture();
    int pressed = selection_.pressed ? selection_.selected : 0;
    if (pressed)
        SetSelection({pressed, false});
    Release release;
    release.button = button;
    release.pressedItem = button == lastButton_ ? pressed : 0;
    release.releasedItem = ItemAt(scene_, point);
    if (release.releasedItem)
        release.type = scene_.list.Item(release.releasedItem).TYPE;
    release.toggleSubMenus = look_.MenuToggleSubMenus;
    release.emptyList = scene_.list.empty;
    switch (DecideRelease(release)) {
    case ReleaseAction::Nothing:
        SetSelection({});
        break;
    case ReleaseAction::ShowProperties:
        if (openMenus_.choices)
            openMenus_.choices->ShowProperties(scene_.list.Item(release.releasedItem).PATH);
        break;
    case ReleaseAction::Choose:
        Choose(release.releasedItem, (keys & MK_CONTROL) != 0);
        break;
    // Sub-menus open with the interaction of menus; until then their items choose nothing.
    case ReleaseAction::OpenSubMenu:
    case ReleaseAction::CloseSubMenu:
    case ReleaseAction::KeepSubMenu:
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
        StartSetForegroundTimer();
    if (after.clearSelection)
        SetSelection({});
    if (after.closeCascade)
        CloseCascade();
}
