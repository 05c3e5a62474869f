#include "desktop/win/hotspot_opening.h"

#include "core/win/ini_handler.h"
#include "desktop/hotspots.h"
#include "menuwindow/win/form2.h"

#include <windows.h>

#include <memory>

namespace HotspotOpening {

namespace {

MenuWindow::Point CursorPoint() {
    POINT cursor{};
    ::GetCursorPos(&cursor);
    return {cursor.x, cursor.y};
}

bool HotspotExists(const Program& program, int hotspotIndex) {
    return hotspotIndex >= 0 && hotspotIndex < static_cast<int>(program.settings.HotSpots.size());
}

} // namespace

void LoadHotspot(Program& program, int hotspotIndex, int menuIndex) {
    OpenMenus& openMenus = program.openMenus;
    const HotspotRec& hotspot = program.settings.HotSpots[static_cast<std::size_t>(hotspotIndex)];
    MenuWindow::CascadeRec& record = openMenus.records().At(menuIndex);
    Hotspots::FillCascadeRecord(record, hotspot, hotspotIndex, program.menus);
    openMenus.forceOnTop = hotspot.ForceOnTop;
    openMenus.Attach(menuIndex, std::make_unique<Form2>(program.settings, program.menus, program.values.ProgramFolder, openMenus,
                                                         record.id));
}

Form2* OpenHotspotMenu(Program& program, int hotspotIndex, MenuWindow::Point origin, MenuWindow::Point cursor) {
    if (!HotspotExists(program, hotspotIndex))
        return nullptr;
    OpenMenus& openMenus = program.openMenus;
    int menuIndex = openMenus.Append();
    LoadHotspot(program, hotspotIndex, menuIndex);
    MenuWindow::CascadeRec& record = openMenus.records().At(menuIndex);
    Hotspots::SetOpeningPoint(record, program.settings.HotSpots[static_cast<std::size_t>(hotspotIndex)], origin,
                              cursor);
    int id = record.id;
    Form2* form = openMenus.WindowOf(id);
    if (!form || !form->Create()) {
        openMenus.Close(openMenus.records().IndexOf(id));
        return nullptr;
    }
    form->Show();
    // The menu may have been closed while its opening animation served the queue.
    return openMenus.WindowOf(id);
}

void OpenMenuOfHotspot(Program& program, int hotspotIndex) {
    if (!HotspotExists(program, hotspotIndex))
        return;
    const HotspotRec& hotspot = program.settings.HotSpots[static_cast<std::size_t>(hotspotIndex)];
    if (Hotspots::ActionOf(hotspot.Type) == Hotspots::Action::OpenMenu)
        OpenHotspotMenu(program, hotspotIndex, {0, 0}, CursorPoint());
}

void EnsureDefaultHotspot(Program& program, std::string_view settingsFile) {
    bool declared = Hotspots::DeclaresHotspots(IniHandler::ReadWholeSection(kSettingsSection, settingsFile));
    Hotspots::EnsureDefaultHotspot(program.settings.HotSpots, declared, ::GetSystemMetrics(SM_CXSCREEN),
                                   ::GetSystemMetrics(SM_CYSCREEN), program.menus);
}

} // namespace HotspotOpening
