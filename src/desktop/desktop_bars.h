// The task list window and the systray copy as the core lays them out: where each stands
// on the screen, how big it is, and what painting it comes down to (the menu windows'
// draw operations). The shell measures texts, draws the list and moves windows.
#pragma once

#include "core/settings.h"
#include "menuwindow/layout/geometry.h"
#include "menuwindow/paint/draw_list.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace DesktopBars {

using MenuWindow::Point;
using MenuWindow::Rect;
using MenuWindow::Size;

// TaskbarPos and SystrayPos name the corner of the screen a window stands in: 0 top left,
// 1 top right, 2 bottom left, 3 bottom right. The offsets move it in from that corner
// (a negative one moves it out). Any other value stands for the window's default corner:
// the task list at the bottom left, the systray at the bottom right, as on a taskbar.
enum class Corner { TopLeft = 0, TopRight = 1, BottomLeft = 2, BottomRight = 3 };
Corner CornerOf(std::int16_t position, Corner fallback);
Rect PlaceInCorner(const Rect& area, Size size, Corner corner, int xOffset, int yOffset);

// The room the windows stand in: the work area, or the whole screen while the shell's
// taskbar is hidden (the work area still leaves its room free then).
Rect PlacementArea(const Rect& screen, const Rect& workArea, bool taskbarVisible);

// The look both windows share, from the settings: the background picture "Tasks.bmp" or
// "Tasks.jpg" of the theme's bitmaps folder, else TaskbarColor1 (with TaskbarBackgroundType
// 1 a gradient to TaskbarColor2 of TaskbarGradientType), and a frame TaskbarFrame pixels
// wide, light (TaskbarFrameColor1) at the top and left, dark (TaskbarFrameColor2) under.
MenuWindow::DrawList BackgroundOps(const SettingsRec& settings, std::span<const std::string> pictures, Size window,
                                   int dpi);
int FrameWidth(const SettingsRec& settings, int dpi);

// --- the task list window ---

// TaskbarStyle 0 shows tasks as icons over the background, 1 as buttons with the icon and
// the title; TaskbarOrientation 0 is a vertical list, any other a horizontal one;
// TaskbarIconSize 0 is 16 pixels, 2 and above 48, else 32.
struct TaskListShape {
    bool buttons = false;
    bool vertical = false;
    int iconSize = 32;
    int frame = 1;
    int padding = 4;      // around an icon
    int buttonWidth = 160; // a button's width, before the list is fitted to the screen
    int textHeight = 0;   // of the button font
};
TaskListShape ShapeOf(const SettingsRec& settings, int textHeight, int dpi);

// The slots of count entries (the tasks, then the user tasks), fitted into the room:
// buttons of a horizontal list narrow to share the room's width (never below an icon's);
// an icon list, or a vertical list, shows as many as fit. An empty list keeps one empty
// slot, so that the window stays where it can be seen.
struct TaskListLayout {
    Size window;
    std::vector<Rect> slots; // in window coordinates, entry i at slots[i]; may be fewer than asked
};
TaskListLayout LayOutTaskList(const TaskListShape& shape, int count, Size room);

// The entry (0-based) whose slot holds the point, if any.
std::optional<int> SlotAt(const TaskListLayout& layout, Point point);

struct TaskListEntry {
    std::string title;
    bool foreground = false; // drawn pressed: the window the user works in
};
// The slots' drawing over the background: icons are IconOps numbered from 1 by entry.
MenuWindow::DrawList TaskListOps(const SettingsRec& settings, const TaskListShape& shape, const TaskListLayout& layout,
                                 const std::vector<TaskListEntry>& entries);

// --- the systray copy ---

// The clock's two lines and the room the shell's notification area takes at its left,
// or above it with SystrayStyle 1, for a copy that stands in a column of bars (none
// where the shell has none to give).
inline constexpr int kSystrayColumn = 1;
struct SystrayLayout {
    Size window;
    Rect notifyArea;
    Rect clock;
};
SystrayLayout LayOutSystray(const SettingsRec& settings, Size notifyArea, int timeWidth, int dateWidth,
                            int textHeight, int dpi);
MenuWindow::DrawList SystrayOps(const SettingsRec& settings, std::span<const std::string> pictures,
                                const SystrayLayout& layout, const std::string& time, const std::string& date,
                                int textHeight, int dpi);

// The collapsed button stands in the systray's corner; the systray window beside it, on
// the side towards the middle of the screen.
inline constexpr int kButtonSide = 24;
struct SystrayPlaces {
    Rect systray;
    Rect button;
};
SystrayPlaces PlaceSystray(const SettingsRec& settings, const Rect& area, Size systray, bool withButton, int dpi);

} // namespace DesktopBars
