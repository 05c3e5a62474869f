// Choosing an item in a menu window with the mouse: what a release on the surface
// does after a press, what a chosen entry hands to the launcher, and whether the menus
// stay open afterwards.
#pragma once

#include <cstdint>
#include <optional>

namespace MenuWindow {

enum class MouseButton { Left, Right };

struct Release {
    MouseButton button = MouseButton::Left;
    int pressedItem = 0;  // the item the press was on; 0 for none
    int releasedItem = 0; // the item under the release; 0 outside the surface or past the items
    std::uint8_t type = 0;          // the released item's TYPE
    bool subMenuJustOpened = false; // a first click on a folder opened its sub-menu a moment ago
    bool subMenuOpen = false;       // the released item's sub-menu is the one open
    bool toggleSubMenus = false;    // MenuToggleSubMenus
    bool emptyList = false;         // the one entry is the "(Empty)" of an empty folder
};

enum class ReleaseAction {
    Nothing,        // released elsewhere than it was pressed: the selection bar goes
    ShowProperties, // the right button on a file or folder: the shell's properties
    OpenSubMenu,    // a folder's first click, a menu or the task list
    CloseSubMenu,   // the item's open sub-menu, clicked again with MenuToggleSubMenus
    KeepSubMenu,    // the item's open sub-menu, clicked again without it
    Choose,         // start what the item names
};

// A folder's first click lists it as a sub-menu; a second click on it while
// subMenuJustOpened is set falls through to Choose, which opens the folder itself. The
// right button shows a file's or folder's properties and acts like the left on the rest.
// The "(Empty)" entry of an empty folder names nothing and is never chosen.
ReleaseAction DecideRelease(const Release& release);

enum class Choice { ActivateTask, RunCommand, RunProgram, None };

// What a chosen entry does: in a menu that lists the tasks, bring its window forward;
// an internal command or command line is run; menus and the task list open sub-menus
// instead and are never chosen; everything else (files, programs, documents, a
// folder's second click) is started.
Choice ChoiceOf(std::uint8_t type, bool taskListMenu);

struct AfterChoice {
    bool closeCascade = true;
    bool bringForward = false;  // the menu window's set-foreground timer
    bool clearSelection = true; // the chosen item is drawn without the selection bar
    bool operator==(const AfterChoice&) const = default;
};

// After the choice: the exit and preferences commands (results 9 and 14) leave the
// menus exactly as they are; "Restore All Windows" (27) brings the menu forward again
// later; holding Ctrl at the click keeps the menus open to choose more.
AfterChoice AfterChoosing(std::optional<std::int16_t> commandResult, bool ctrlHeld);

} // namespace MenuWindow
