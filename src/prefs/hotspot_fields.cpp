#include "prefs/hotspot_fields.h"

#include "desktop/hotspots.h"
#include "prefs/control_values.h"
#include "prefs/startup_hotspots.h"

#include <algorithm>
#include <limits>

namespace Preferences {

namespace {

constexpr std::size_t kMostHotspots = 10; // one digit numbers a hotspot's keys
constexpr std::int16_t kLastEventWithArea = 2; // left, middle and right clicks test the rectangle

bool OpensAMenu(const HotspotRec& hotspot) {
    return Hotspots::ActionOf(hotspot.Type) == Hotspots::Action::OpenMenu;
}

// The record's number or text behind a field, for a const record or not.
template <class Record>
auto NumberField(Record& hotspot, HotspotField field) -> decltype(&hotspot.x1) {
    switch (field) {
    case HotspotField::X1: return &hotspot.x1;
    case HotspotField::Y1: return &hotspot.y1;
    case HotspotField::X2: return &hotspot.x2;
    case HotspotField::Y2: return &hotspot.y2;
    case HotspotField::MenuLeft: return &hotspot.Menuleft;
    case HotspotField::MenuTop: return &hotspot.Menutop;
    default: return nullptr;
    }
}

template <class Record>
auto TextField(Record& hotspot, HotspotField field) -> decltype(&hotspot.App) {
    switch (field) {
    case HotspotField::Target:
        return hotspot.Type == Hotspots::kRunCommand ? &hotspot.Menupath2 : &hotspot.Menupath1;
    case HotspotField::Arguments: return &hotspot.Menupath2;
    case HotspotField::StartFolder: return &hotspot.StartPath;
    case HotspotField::FileTypes: return &hotspot.FileTypeMask;
    case HotspotField::Caption: return &hotspot.Menuname;
    case HotspotField::Application: return &hotspot.App;
    case HotspotField::Group: return &hotspot.GroupName;
    case HotspotField::Theme: return &hotspot.Theme;
    case HotspotField::Sound: return &hotspot.SoundPath;
    default: return nullptr;
    }
}

std::string HotKeyText(const HotspotRec& hotspot) {
    const int key = hotspot.Hotkey;
    std::string name;
    if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z'))
        name.assign(1, static_cast<char>(key));
    else if (key >= 0x70 && key <= 0x87) // F1 to F24
        name.append("F").append(std::to_string(key - 0x6F));
    else
        name.append("key ").append(std::to_string(key));
    return std::string(hotspot.ShiftHotKey ? "Shift+" : "Ctrl+").append(name);
}

} // namespace

std::string_view TargetLabel(std::uint8_t type) {
    return type < kTargetLabels.size() ? kTargetLabels[type] : kTargetLabels[0];
}

std::string_view FieldLabel(HotspotField field) {
    return kHotspotFieldLabels[static_cast<std::size_t>(field)];
}

bool FieldApplies(const HotspotRec& hotspot, HotspotField field) {
    switch (field) {
    case HotspotField::Target: return hotspot.Type != Hotspots::kShowTasklist;
    case HotspotField::Arguments:
    case HotspotField::StartFolder: return hotspot.Type == Hotspots::kRunProgram;
    case HotspotField::FileTypes: return hotspot.Type == Hotspots::kShowFolder;
    case HotspotField::Caption:
    case HotspotField::OnMouse:
    case HotspotField::MenuLeft:
    case HotspotField::MenuTop:
    case HotspotField::Group:
    case HotspotField::AlwaysOpen:
    case HotspotField::Horizontal:
    case HotspotField::ForceOnTop:
    case HotspotField::Theme:
    case HotspotField::Sound: return OpensAMenu(hotspot);
    default: return true;
    }
}

bool FieldEnabled(const HotspotRec& hotspot, HotspotField field) {
    switch (field) {
    case HotspotField::MenuLeft:
    case HotspotField::MenuTop: return !hotspot.OnMouse;
    case HotspotField::HotKey: return hotspot.UseHotKey != 0;
    case HotspotField::Application:
    case HotspotField::X1:
    case HotspotField::Y1:
    case HotspotField::X2:
    case HotspotField::Y2: return hotspot.MouseButton >= 0 && hotspot.MouseButton <= kLastEventWithArea;
    case HotspotField::Monitor: return hotspot.MouseButton > kLastEventWithArea;
    default: return true;
    }
}

std::vector<std::string> MonitorChoices(int monitorCount, std::int16_t chosen) {
    std::vector<std::string> choices{"Any monitor"};
    for (int number = 1; number <= std::max<int>(monitorCount, chosen); ++number) {
        std::string name = "Monitor " + std::to_string(number);
        if (number > monitorCount)
            name.append(" (not connected)");
        choices.push_back(std::move(name));
    }
    return choices;
}

std::string FieldText(const HotspotRec& hotspot, HotspotField field) {
    if (const std::int16_t* number = NumberField(hotspot, field))
        return std::to_string(*number);
    if (const std::string* text = TextField(hotspot, field))
        return *text;
    return {};
}

std::optional<std::string> SetFieldText(HotspotRec& hotspot, HotspotField field, std::string_view text) {
    if (std::int16_t* number = NumberField(hotspot, field)) {
        PrefControl range{};
        range.kind = ControlKind::Number;
        range.min = std::numeric_limits<std::int16_t>::min();
        range.max = std::numeric_limits<std::int16_t>::max();
        NumberInput input = ReadNumberInput(text, range, *number);
        if (input.corrected)
            return "Allowed: " + input.note;
        *number = static_cast<std::int16_t>(input.value);
        return std::nullopt;
    }
    if (std::string* value = TextField(hotspot, field))
        *value = std::string(text);
    return std::nullopt;
}

bool IsSwitch(HotspotField field) {
    return field == HotspotField::OnMouse || field == HotspotField::UseHotKey || field == HotspotField::AlwaysOpen ||
           field == HotspotField::Horizontal || field == HotspotField::ForceOnTop;
}

bool IsChecked(const HotspotRec& hotspot, HotspotField field) {
    switch (field) {
    case HotspotField::OnMouse: return hotspot.OnMouse;
    case HotspotField::UseHotKey: return hotspot.UseHotKey != 0;
    case HotspotField::AlwaysOpen: return hotspot.AlwaysOpen != 0;
    case HotspotField::Horizontal: return hotspot.Horizontal;
    case HotspotField::ForceOnTop: return hotspot.ForceOnTop;
    default: return false;
    }
}

void SetChecked(HotspotRec& hotspot, HotspotField field, bool checked) {
    switch (field) {
    case HotspotField::OnMouse: hotspot.OnMouse = checked; break;
    case HotspotField::UseHotKey: hotspot.UseHotKey = checked ? -1 : 0; break;
    case HotspotField::AlwaysOpen: hotspot.AlwaysOpen = checked ? -1 : 0; break;
    case HotspotField::Horizontal: hotspot.Horizontal = checked; break;
    case HotspotField::ForceOnTop: hotspot.ForceOnTop = checked; break;
    default: break;
    }
}

std::optional<std::string> SetHotKey(HotspotRec& hotspot, std::uint8_t key, bool shift, bool ctrl, bool alt) {
    if (alt || (shift && ctrl))
        return "A hot key goes with Ctrl or with Shift";
    hotspot.Hotkey = key;
    hotspot.ShiftHotKey = shift;
    return std::nullopt;
}

std::optional<std::string> AddHotspot(SettingsRec& settings, int screenWidth, int screenHeight,
                                      std::string_view firstMenu) {
    if (settings.HotSpots.size() >= kMostHotspots)
        return "Ten hotspots are the most the settings keep: an eleventh would be saved over the Default one.";
    HotspotRec& added = settings.HotSpots.emplace_back();
    added.x2 = static_cast<std::int16_t>(std::min(screenWidth - 1, 32767));
    added.y2 = static_cast<std::int16_t>(std::min(screenHeight - 1, 32767));
    added.App = "Desktop";
    added.GroupName = HotspotListName(settings.NoOfHotSpots());
    added.Type = firstMenu.empty() ? Hotspots::kShowFolder : Hotspots::kShowMenu;
    added.Menupath1 = std::string(firstMenu);
    return std::nullopt;
}

bool DeleteHotspot(SettingsRec& settings, int index) {
    if (index <= 0 || index > settings.NoOfHotSpots())
        return false;
    SetOpensAtStart(settings, index, false);
    for (std::int16_t& entry : settings.GenStartupHotspot)
        if (entry > index)
            --entry;
    settings.HotSpots.erase(settings.HotSpots.begin() + index);
    return true;
}

std::string ZoneLabel(const Hotspots::Zone& zone) {
    std::string label = HotspotListName(zone.hotspot);
    if (zone.event >= 0 && static_cast<std::size_t>(zone.event) < kMouseEventNames.size())
        label.append(": ").append(kMouseEventNames[static_cast<std::size_t>(zone.event)]);
    if (zone.takenBy)
        label.append(" (").append(HotspotListName(*zone.takenBy)).append(" fires instead)");
    return label;
}

std::optional<std::string> HotKeyClash(const SettingsRec& settings, int index) {
    if (index < 0 || index > settings.NoOfHotSpots())
        return std::nullopt;
    const HotspotRec& mine = settings.HotSpots[static_cast<std::size_t>(index)];
    if (!mine.UseHotKey || mine.Hotkey == 0)
        return std::nullopt;
    if (settings.GenUseHotKey && settings.GenHotKey == mine.Hotkey && settings.GenShiftHotKey == mine.ShiftHotKey)
        return HotKeyText(mine) + " already opens the preferences";
    for (int other = 0; other <= settings.NoOfHotSpots(); ++other) {
        const HotspotRec& theirs = settings.HotSpots[static_cast<std::size_t>(other)];
        if (other != index && theirs.UseHotKey && theirs.Hotkey == mine.Hotkey &&
            theirs.ShiftHotKey == mine.ShiftHotKey)
            return HotKeyText(mine) + " is already the hot key of " + HotspotListName(other);
    }
    return std::nullopt;
}

} // namespace Preferences
