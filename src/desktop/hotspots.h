// The hotspots' rules for opening menus: the default hotspot, the mapping of a hotspot's
// action type to the menu window's content kind, and what a hotspot puts into the
// cascade record of the menu it opens.
#pragma once

#include "core/profile.h"
#include "core/settings.h"
#include "menus/menu_records.h"
#include "menuwindow/interaction/cascade.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace Hotspots {

// Action types (HotspotRec::Type).
inline constexpr std::uint8_t kShowFolder = 0;
inline constexpr std::uint8_t kShowMenu = 1;
inline constexpr std::uint8_t kRunProgram = 2;
inline constexpr std::uint8_t kRunCommand = 3;
inline constexpr std::uint8_t kShowTasklist = 4;

// The hotspot there is when the settings hold none: the desktop from x = 48 to the
// screen's width and over its whole height, on a left click, in group "Default". The
// 48-pixel strip on the left keeps the column of desktop icons clickable. It shows the
// first menu of the menu file, so that a click on the desktop opens the menus from the
// first start; without menus it shows a folder, as a hotspot without a target does.
HotspotRec DefaultHotspot(int screenWidth, int screenHeight, const MenuTable& menus);

// Whether a settings section holds hotspots at all: a section without the NoOfHotSpots
// key holds none, even though loading leaves one blank record for index 0.
bool DeclaresHotspots(const ProfileSection& section);

// Puts the default hotspot in place of the loaded records when the section held none.
void EnsureDefaultHotspot(std::vector<HotspotRec>& hotSpots, bool declared, int screenWidth, int screenHeight,
                          const MenuTable& menus);

// The menu window's content kind for an action type: 0->2, 1->3, 2->0, 3->1, and 4 and
// above unchanged. The window interprets the converted value, so the mapping is fixed.
std::uint8_t MenuKindOf(std::uint8_t type);

enum class Action { OpenMenu, RunProgram, RunCommand };
Action ActionOf(std::uint8_t type);

// Fills the cascade record of a menu that a hotspot opens, keeping its identifier: the
// hotspot's index, the converted kind, for Show Menu the number of the menu it names,
// its position (pixels), caption, targets, filter, group and switches; marked as opened
// by a hotspot, at level 1, scrolled to the top.
void FillCascadeRecord(MenuWindow::CascadeRec& record, const HotspotRec& hotspot, int hotspotIndex,
                       const MenuTable& menus);

// Where the menu opens from: origin is the top-left of the window the hotspot belongs
// to ((0, 0) for the desktop, a hot key or a request); with OnMouse the menu's position
// becomes the cursor.
void SetOpeningPoint(MenuWindow::CascadeRec& record, const HotspotRec& hotspot, MenuWindow::Point origin,
                     MenuWindow::Point cursor);

// Takes a requested hotspot (RequestedHotspot, -1 for none) and resets the request.
std::optional<int> TakeRequestedHotspot(std::int16_t& requested);

} // namespace Hotspots
