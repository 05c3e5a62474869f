// What a menu window does with the mouse, the keyboard and its timers. The shell turns
// each message into one call here and carries out the Effects it gets back: the
// selection to draw, the timers to start or stop, the capture, a scroll, and at most
// one action (a sub-menu to open or close, an item to choose, this menu to close).
#pragma once

#include "menuwindow/interaction/choosing.h"
#include "menuwindow/interaction/sub_menu_aim.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/paint/repaint.h"

#include <optional>
#include <utility>
#include <vector>

namespace MenuWindow {

enum class MenuTimer { Scroll, DropDown, DoubleClick, FlashSelBar, SetForeground, UpdateTaskList, AimRest };

inline constexpr int kDoubleClickInterval = 500; // a folder's second click opens the folder itself
inline constexpr int kFlashInterval = 40;
inline constexpr int kFlashTicks = 5;
inline constexpr int kScrollPause = 250; // after the first step, as a held key pauses before repeating
inline constexpr int kSetForegroundInterval = 500;
inline constexpr int kUpdateTaskListInterval = 1000; // a task-list menu takes the running tasks again

struct TimerOrder {
    MenuTimer timer = MenuTimer::Scroll;
    int interval = 0; // milliseconds; 0 stops the timer
    bool operator==(const TimerOrder&) const = default;
};

enum class Capture { Keep, Take, Release };

enum class MenuAction {
    None,
    ShowProperties, // the shell's properties of the item's file or folder
    OpenSubMenu,    // the item's sub-menu, in place of any other open one
    CloseSubMenu,   // the sub-menu this window has open
    Choose,         // start what the item names
    CloseMenu,      // this menu (and those below it), by the keyboard
};

struct Effects {
    Capture capture = Capture::Keep;
    std::vector<TimerOrder> timers;
    std::optional<int> first;            // scroll to this first visible offset, then repaint the buttons
    std::optional<SelectionState> bar;   // the item now drawn with the selection bar, and its press
    std::optional<std::pair<int, ButtonState>> flash; // one button drawn so for a flash of the bar
    MenuAction action = MenuAction::None;
    int item = 0;          // the item of the action
    bool ctrlHeld = false; // Choose: the menus stay open
    bool closeSubMenuFirst = false; // Choose: the sub-menu of another item goes first
    bool operator==(const Effects&) const = default;
};

struct Modifiers {
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
    bool Any() const { return shift || ctrl || alt; }
    bool operator==(const Modifiers&) const = default;
};

enum class Key { Up, Down, Home, End, Enter, Right, Left, Escape, Other };

// The state a menu window keeps between events. Items are 1-based, 0 for none.
struct InteractionState {
    int selected = 0;          // the item the keyboard moves from
    SelectionState bar;        // the item drawn with the selection bar (or pressed)
    int openSubMenu = 0;       // the item whose sub-menu is open from this window
    int subMenuJustOpened = 0; // a first click opened this item's sub-menu a moment ago
    bool pressed = false;      // a press on an item, until its release
    MouseButton lastButton = MouseButton::Left;
    Modifiers lastModifiers;
    Point lastPoint;
    bool scrollingTowardsEnd = false;
    bool scrollingTowardsStart = false;
    int scrollTicks = 0;
    int hovered = 0;
    int timed = 0; // the item the drop-down delay runs for
    bool delayElapsed = false;
    bool discardMove = false; // a sub-menu closed by the keyboard: the next move keeps the selection
    int flashCount = 0;
    std::string typed;           // the letters of a type-ahead search, as typed (UTF-8)
    std::uint32_t typedAt = 0;   // the message time of the last of them, in milliseconds
    Point lastMove;                  // where the last move on the surface was
    std::optional<Point> aimFrom;    // where the cursor set out for the open sub-menu
    std::optional<Edge> subMenuEdge; // the open sub-menu's near side, in this window's coordinates
    bool aimResting = false;         // the rest timer runs for a move deferred by an aim
};

class MenuInteraction {
public:
    const InteractionState& state() const { return state_; }

    // A press of the left or the right button on the window at a point (window
    // coordinates): it selects and presses the item there; a press on a scroll button
    // starts scrolling unless MenuAutoScroll scrolls on hovering alone.
    Effects Press(const MenuScene& scene, MouseButton button, Modifiers modifiers, Point point);
    // The release after a press: chooses, opens or closes by the release rules.
    Effects Release(const MenuScene& scene, MouseButton button, Modifiers modifiers, Point point);
    // A move of the mouse over the window, or seen through the capture.
    Effects Move(const MenuScene& scene, Point point);

    // The drop-down delay ran out; cursor is where the cursor stands in this window's
    // coordinates, or nothing when it is over another window.
    Effects DropDownTick(const MenuScene& scene, std::optional<Point> cursor);
    // The cursor rested while aiming at the open sub-menu: the move it rests at counts.
    Effects AimRestTick(const MenuScene& scene, std::optional<Point> cursor);
    Effects DoubleClickTick();
    Effects FlashTick();
    // One step of automatic scrolling; cursor as for DropDownTick.
    Effects ScrollTick(const MenuScene& scene, std::optional<Point> cursor);

    // A key pressed in this window; character is what the key types (0 for none), used
    // by the first-letter search and type-ahead. level is the window's level in the
    // cascade; time is the key's message time in milliseconds (it wraps).
    Effects KeyDown(const MenuScene& scene, Key key, char32_t character, Modifiers modifiers, int level,
                    std::uint32_t time = 0);
    // A key let go: Ctrl with an item's hot key chooses that item.
    Effects KeyUp(const MenuScene& scene, char32_t character, Modifiers modifiers);
    // Selects an item, shows it and chooses it as a left press and release on it would:
    // a hot key, or a screen reader's default action. Nothing for an item out of range.
    Effects ChooseItem(const MenuScene& scene, int item);

    // This window's sub-menu for an item opened, its near side (nearEdge, in this window's
    // coordinates) facing this window; the sub-menu closed (unloaded, closed by the
    // keyboard or torn off), which gives the item it was open for, to be redrawn.
    void SubMenuOpened(int item, std::optional<Edge> nearEdge = std::nullopt);
    int SubMenuClosed();
    // A sub-menu closed by the keyboard hands the keyboard back: the next move is ignored,
    // so that the selection stays where the keyboard left it.
    void DiscardNextMove() { state_.discardMove = true; }
    // Everything that runs stops: the window is going, or is being rebuilt.
    Effects StopAll();
    // After a choice, the chosen item is drawn without the bar.
    Effects ClearBar();
    // Selects an item with the bar, scrolling a long menu to show it first. Every
    // selection the keyboard makes goes through here.
    Effects MakeButtonVisible(const MenuScene& scene, int item);

private:
    Effects PressItem(const MenuScene& scene, int item, MouseButton button, Modifiers modifiers);
    Effects ReleaseItem(const MenuScene& scene, int item, MouseButton button, Modifiers modifiers);
    Effects MoveOver(const MenuScene& scene, Point point, bool aiming);
    bool AimsAtSubMenu(const MenuScene& scene, Point point, int item) const;
    Effects StartScrolling(const MenuScene& scene, bool towardsEnd);
    void StopScrolling(Effects& effects);

    InteractionState state_;
};

// The next item up or down from an item, wrapping round; from none, Up gives the last
// and Down the first. 0 in an empty menu.
int StepUp(int item, int count);
int StepDown(int item, int count);

// First-letter search: from the item after the selected one to the last, then from the
// first, the first item whose label starts with the character (letters compared
// without regard to case); 0 when none does.
int SearchByLetter(const DisplayList& list, int selected, char32_t character);

// Letters typed no further apart than this extend one search, with MenuTypeAhead on.
inline constexpr std::uint32_t kTypeAheadMilliseconds = 700;

// Type-ahead: from the selected item to the last, then from the first, the first item
// whose label starts with the typed letters (compared as the first-letter search
// compares); 0 when none does. The selected item comes first, since the letters before
// the last one chose it.
int SearchByPrefix(const DisplayList& list, int selected, std::string_view typed);

// The first item whose hot key is the character, without regard to case; 0 for none.
int ItemByHotkey(const DisplayList& list, char32_t character);

} // namespace MenuWindow
