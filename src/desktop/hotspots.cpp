#include "desktop/hotspots.h"

#include "core/text.h"
#include "menus/data_manager.h"

namespace Hotspots {

namespace {
constexpr std::int16_t kDefaultLeft = 48;
constexpr const char* kDesktopApp = "Desktop";
constexpr const char* kDefaultGroup = "Default";
} // namespace

HotspotRec DefaultHotspot(int screenWidth, int screenHeight, const MenuTable& menus) {
    HotspotRec hotspot;
    if (menus.MenuCount() >= 1) {
        hotspot.Type = kShowMenu;
        hotspot.Menupath1 = menus.menus[1].NAME;
    }
    hotspot.x1 = kDefaultLeft;
    hotspot.x2 = static_cast<std::int16_t>(screenWidth);
    hotspot.y1 = 0;
    hotspot.y2 = static_cast<std::int16_t>(screenHeight);
    hotspot.App = kDesktopApp;
    hotspot.GroupName = kDefaultGroup;
    return hotspot;
}

bool DeclaresHotspots(const ProfileSection& section) {
    for (const ProfileEntry& entry : section) {
        if (Text::EqualsIgnoreCase(entry.key, "NoOfHotSpots"))
            return true;
    }
    return false;
}

void EnsureDefaultHotspot(std::vector<HotspotRec>& hotSpots, bool declared, int screenWidth, int screenHeight,
                          const MenuTable& menus) {
    if (!declared || hotSpots.empty())
        hotSpots = {DefaultHotspot(screenWidth, screenHeight, menus)};
}

std::uint8_t MenuKindOf(std::uint8_t type) {
    switch (type) {
    case kShowFolder:
        return kItemFolderPath;
    case kShowMenu:
        return kItemMenuName;
    case kRunProgram:
        return kItemFilename;
    case kRunCommand:
        return kItemCommandName;
    default:
        return type;
    }
}

Action ActionOf(std::uint8_t type) {
    switch (type) {
    case kRunProgram:
        return Action::RunProgram;
    case kRunCommand:
        return Action::RunCommand;
    default:
        return Action::OpenMenu;
    }
}

void FillCascadeRecord(MenuWindow::CascadeRec& record, const HotspotRec& hotspot, int hotspotIndex,
                       const MenuTable& menus) {
    MenuWindow::CascadeRec filled;
    filled.id = record.id;
    filled.parentId = 0;
    filled.level = 1;
    filled.hotspot = hotspotIndex;
    filled.openedByHotspot = true;
    filled.kind = MenuKindOf(hotspot.Type);
    filled.menuNumber = hotspot.Type == kShowMenu ? DataManager::MenuNumberByName(menus, hotspot.Menupath1) : 0;
    filled.position = {hotspot.Menuleft, hotspot.Menutop};
    filled.caption = hotspot.Menuname;
    filled.path = hotspot.Menupath1;
    filled.path2 = hotspot.Menupath2;
    filled.menuType = hotspot.MenuType;
    filled.groupName = hotspot.GroupName;
    filled.fileTypeMask = hotspot.FileTypeMask;
    filled.alwaysOpen = hotspot.AlwaysOpen != 0;
    filled.theme = hotspot.Theme;
    filled.inherit = hotspot.Inherit;
    filled.horizontal = hotspot.Horizontal;
    filled.onMouse = hotspot.OnMouse;
    filled.firstVisible = 0;
    record = std::move(filled);
}

void SetOpeningPoint(MenuWindow::CascadeRec& record, const HotspotRec& hotspot, MenuWindow::Point origin,
                     MenuWindow::Point cursor) {
    record.origin = origin;
    record.onMouse = hotspot.OnMouse;
    if (hotspot.OnMouse)
        record.position = cursor;
}

std::optional<int> TakeRequestedHotspot(std::int16_t& requested) {
    if (requested < 0)
        return std::nullopt;
    int hotspot = requested;
    requested = -1;
    return hotspot;
}

} // namespace Hotspots
