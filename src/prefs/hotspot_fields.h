// The hotspots page's decisions: the names of the action types and mouse events in the
// order of their numbers, the label over the target field, which fields a hotspot's
// action and event use, each field's text and what typing into it does, adding and
// deleting hotspots (ten at most survive a save), and hot keys used twice.
#pragma once

#include "core/settings.h"
#include "desktop/hotspot_zones.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Preferences {

inline constexpr std::array<std::string_view, 5> kActionNames = {"Show Folder", "Show Menu", "Run Program",
                                                                 "Run Command", "Show Tasklist"};
inline constexpr std::array<std::string_view, 5> kTargetLabels = {"Folder Path", "Menu Name", "Filename",
                                                                  "Command Name", "Tasklist"};
inline constexpr std::array<std::string_view, 12> kMouseEventNames = {
    "Left click",         "Middle click",        "Right click",        "Top-left corner",
    "Bottom-left corner", "Top-right corner",    "Bottom-right corner", "Top edge",
    "Bottom edge",        "Left edge",           "Right edge",          "Middle click anywhere"};

// The label over the target field for an action type; "Folder Path" for a number past the list.
std::string_view TargetLabel(std::uint8_t type);

enum class HotspotField {
    Action,
    Target,      // Menupath1, or Menupath2 for Run Command
    Arguments,   // Menupath2 of Run Program
    StartFolder, // StartPath
    FileTypes,   // FileTypeMask
    Caption,     // Menuname
    MouseEvent,
    Monitor,     // where bumps and middle clicks anywhere count
    Application, // App
    X1,
    Y1,
    X2,
    Y2,
    OnMouse,
    MenuLeft,
    MenuTop,
    UseHotKey,
    HotKey,
    Group,
    AlwaysOpen,
    Horizontal,
    ForceOnTop,
    Theme,
    Sound,
};

// The label of each field in the order of HotspotField (a check box's text; the target's
// label follows the action), and the page's buttons. Mnemonics are unique on the page,
// the window's own buttons included.
inline constexpr std::array<std::string_view, 24> kHotspotFieldLabels = {
    "A&ction:", "", "Ar&guments:", "Start &folder:", "File t&ypes:", "Menu capt&ion:", "Mouse e&vent:", "Monitor:",
    "A&pplication:", "Left (x1):", "Top (y1):", "Right (x2):", "Bottom (y2):", "Open the menu at the c&ursor",
    "Menu left:", "Menu top:", "Use a hot &key", "Hot key:", "Gr&oup:", "Menu stays open (al&ways open)",
    "Horizontal m&enu", "Menu always on &top", "The&me folder:", "Sou&nd file:"};
inline constexpr std::array<std::string_view, 7> kHotspotButtons = {
    "A&dd", "De&lete", "&Browse...", "&Select Area...", "Desktop", "Show &Zones", "Browse..."};
std::string_view FieldLabel(HotspotField field);

// Whether the field means anything for the hotspot's action (a program has no menu
// caption, a folder no arguments).
bool FieldApplies(const HotspotRec& hotspot, HotspotField field);
// Whether the field can be changed: the menu's place is the cursor's with OnMouse, the
// hot key needs its switch, and corner, edge and anywhere events test no rectangle.
bool FieldEnabled(const HotspotRec& hotspot, HotspotField field);

// The choices of the Monitor field, by its value: "Any monitor", then each monitor by
// its number; a number past the monitors there are now is listed too, as not connected.
std::vector<std::string> MonitorChoices(int monitorCount, std::int16_t chosen);

// A text or number field as the page shows it.
std::string FieldText(const HotspotRec& hotspot, HotspotField field);
// Takes typed text; a number that is not one, or out of the 16-bit range, is refused with
// the reason and the field keeps its value.
std::optional<std::string> SetFieldText(HotspotRec& hotspot, HotspotField field, std::string_view text);

// The switch fields (OnMouse, UseHotKey, AlwaysOpen, Horizontal, ForceOnTop), shown as
// check boxes; number switches are written -1 and 0, as the file holds them.
bool IsSwitch(HotspotField field);
bool IsChecked(const HotspotRec& hotspot, HotspotField field);
void SetChecked(HotspotRec& hotspot, HotspotField field, bool checked);

// Takes the hot key the hot-key control holds. Only Ctrl or Shift goes with the key:
// anything else is refused with the reason.
std::optional<std::string> SetHotKey(HotspotRec& hotspot, std::uint8_t key, bool shift, bool ctrl, bool alt);

// Adds a hotspot after the last one: the desktop's area, a left click, the first menu.
// Refused with the reason when ten exist already, since an eleventh would be saved over
// the default one.
std::optional<std::string> AddHotspot(SettingsRec& settings, int screenWidth, int screenHeight,
                                      std::string_view firstMenu);
// Deletes a hotspot other than the default one; the later ones move down a number, and
// the start-up list follows them.
bool DeleteHotspot(SettingsRec& settings, int index);

// The label of a hotspot's zone, "Hotspot 2: Top edge", naming the hotspot that fires instead.
std::string ZoneLabel(const Hotspots::Zone& zone);

// The other hotspot (or the preferences' own hot key) that a hotspot's hot key is already
// taken by, as a sentence; none when it is free or the hotspot has no hot key.
std::optional<std::string> HotKeyClash(const SettingsRec& settings, int index);

} // namespace Preferences
