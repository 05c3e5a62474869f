#include "menuwindow/interaction/choosing.h"

#include "menus/menu_records.h"

namespace MenuWindow {

namespace {

constexpr std::int16_t kExitResult = 9;
constexpr std::int16_t kPreferencesResult = 14;
constexpr std::int16_t kRestoreAllWindowsResult = 27;

ReleaseAction SubMenuClick(const Release& release) {
    if (!release.subMenuOpen)
        return ReleaseAction::OpenSubMenu;
    return release.toggleSubMenus ? ReleaseAction::CloseSubMenu : ReleaseAction::KeepSubMenu;
}

} // namespace

ReleaseAction DecideRelease(const Release& release) {
    if (release.releasedItem == 0 || release.releasedItem != release.pressedItem || release.emptyList)
        return ReleaseAction::Nothing;
    bool file = release.type == kItemFilename || release.type == kItemFolderPath;
    if (release.button == MouseButton::Right && file)
        return ReleaseAction::ShowProperties;
    if (release.type == kItemFolderPath && !release.subMenuJustOpened)
        return SubMenuClick(release);
    if (release.type == kItemMenuName || release.type == kItemTaskList)
        return SubMenuClick(release);
    return ReleaseAction::Choose;
}

Choice ChoiceOf(std::uint8_t type, bool taskListMenu) {
    if (taskListMenu)
        return Choice::ActivateTask;
    switch (type) {
    case kItemCommandName:
        return Choice::RunCommand;
    case kItemMenuName:
    case kItemTaskList:
        return Choice::None;
    default:
        return Choice::RunProgram;
    }
}

AfterChoice AfterChoosing(std::optional<std::int16_t> commandResult, bool ctrlHeld) {
    if (commandResult == kExitResult || commandResult == kPreferencesResult)
        return {false, false, false};
    return {!ctrlHeld, commandResult == kRestoreAllWindowsResult, true};
}

} // namespace MenuWindow
