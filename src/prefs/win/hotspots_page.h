// The hotspots page's own part: the list of hotspots ("Default", "Hotspot 1" ...) with Add
// and Delete, and under it every field of the selected hotspot. Fields that the hotspot's
// action or mouse event does not use are greyed; the area can be dragged on a frozen
// copy of the screen, and the application taken from a window by dragging a picker onto it;
// the zones of all hotspots can be shown on the screen.
#pragma once

#include "core/settings.h"
#include "desktop/command_table.h"
#include "prefs/application_picker.h"
#include "prefs/hotspot_fields.h"
#include "prefs/win/dialog_font.h"
#include "prefs/win/window_picker.h"
#include "prefs/win/zone_overlay.h"

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace PrefsWin {

class HotspotsPage {
public:
    // Another page is shown: the zones go with this page. The press on the page list
    // that switched is handled before the zones' timer could see the button down.
    void HideZones() { zones_.Hide(); }
    // The room it takes on the page, in dialog units.
    static constexpr int kRoomHeight = 420;
    static constexpr int kFirstId = 700;

    // menuNames: the names a Show Menu hotspot can open; commands: what Run Command offers.
    HotspotsPage(HWND panel, RECT room, const DialogFont& font, SettingsRec& working,
                 std::vector<std::string> menuNames, std::vector<CommandTable::CommandRow> commands,
                 std::function<void()> changed);

    // Shows the working copy's hotspots again.
    void Refresh();
    // The menus a Show Menu hotspot can open now (the menu editor changed them).
    void SetMenuNames(std::vector<std::string> menuNames);
    // A command of one of its controls; false when it is none of them.
    bool Command(int id, int code);

private:
    struct Row {
        Preferences::HotspotField field;
        HWND label = nullptr;
        HWND control = nullptr;
        HWND button = nullptr; // a Browse button of its own
    };

    HotspotRec& Selected();
    void FillList();
    void ShowHotspot();
    void FillTargetChoices();
    void Field_Changed(Row& row, int code);
    void cmdAdd_Click();
    void cmdDelete_Click();
    void cmdBrowse_Click();
    void cmdSelectArea_Click();
    void cmdBrowseLook_Click(Preferences::HotspotField field);
    Preferences::PickedApplication PickAt(HWND under) const;
    void Picker_Dropped(HWND under);
    void SetApplication(const std::string& app);
    void SetNote(const std::string& note);
    void Changed();

    HWND panel_;
    SettingsRec& working_;
    std::vector<std::string> menuNames_;
    std::vector<CommandTable::CommandRow> commands_;
    std::function<void()> changed_;
    int selected_ = 0;
    bool showing_ = false; // the page is setting its controls itself
    HWND list_ = nullptr;
    HWND note_ = nullptr;
    HWND browse_ = nullptr;
    HWND selectArea_ = nullptr;
    HWND desktop_ = nullptr;
    std::unique_ptr<WindowPicker> picker_;
    ZoneOverlay zones_;
    std::vector<Row> rows_;
};

} // namespace PrefsWin
