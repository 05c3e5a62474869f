// The Themes page's own part: the installed themes, the name and author to save under,
// whether the wallpaper and the fonts go along, and the buttons that load, save, delete,
// export and import themes. Choosing a theme in the list shows its look in the preview;
// Load gives its look to the settings being edited, which OK or Apply then keep.
#pragma once

#include "core/settings.h"
#include "core/win/program.h"
#include "prefs/win/dialog_font.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace PrefsWin {

class ThemesPage {
public:
    // The room it takes on the page, in dialog units.
    static constexpr int kRoomHeight = 170;
    static constexpr int kFirstId = 900;

    // Preview: the look to show in the preview instead of the edited one; nothing to show
    // the edited one again.
    using Preview = std::function<void(const SettingsRec* look)>;

    ThemesPage(HWND panel, RECT room, const DialogFont& font, Program& program, SettingsRec& working,
               std::function<void()> changed, Preview preview);

    // The themes folder's themes again, the edited look's name and author in the fields.
    void Refresh();
    bool Command(int id, int code);

private:
    std::optional<std::string> Chosen() const;
    void Select(const std::string& name);
    void ShowChosen();
    void SetNote(const std::string& text);
    void cmdLoad_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void cmdExport_Click();
    void cmdImport_Click();

    Program& program_;
    SettingsRec& working_;
    std::function<void()> changed_;
    Preview preview_;
    std::vector<std::string> themes_;
    std::optional<SettingsRec> chosenLook_; // the chosen theme's look, for the preview
    HWND list_ = nullptr;
    HWND name_ = nullptr;
    HWND author_ = nullptr;
    HWND wallpaper_ = nullptr;
    HWND fonts_ = nullptr;
    HWND note_ = nullptr;
};

} // namespace PrefsWin
