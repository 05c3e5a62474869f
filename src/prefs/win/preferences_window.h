// The preferences window, "Tarvex Preferences": the list of pages on the left, the page
// with its controls in the middle, the preview menu on the right, and OK, Cancel, Apply,
// Revert and Help below. It edits a working copy of the settings; the program's settings
// and the settings file change only on OK or Apply.
#pragma once

#include "core/settings.h"
#include "core/win/program.h"
#include "prefs/win/dialog_font.h"
#include "prefs/win/hotspots_page.h"
#include "prefs/win/menu_editor_page.h"
#include "prefs/win/themes_page.h"
#include "prefs/win/preference_page.h"
#include "prefs/win/preview_menu.h"
#include "prefs/win/sound_events.h"
#include "prefs/win/startup_hotspots.h"
#include "prefs/win/user_tasks_room.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <memory>
#include <vector>

namespace PrefsWin {

// What the program does around the window: it carries applied settings out to the rest
// of the program, and hears when the window is gone.
class PreferencesHost {
public:
    virtual ~PreferencesHost() = default;
    // program.settings holds the new settings; `before` the ones they replaced.
    virtual void SettingsApplied(const SettingsRec& before) = 0;
    // The window closed; the object may be destroyed now.
    virtual void PreferencesClosed() = 0;
};

class PreferencesWindow {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2Preferences";
    static constexpr const wchar_t* kTitle = L"Tarvex Preferences";

    PreferencesWindow(Program& program, PreferencesHost& host);
    ~PreferencesWindow();
    PreferencesWindow(const PreferencesWindow&) = delete;
    PreferencesWindow& operator=(const PreferencesWindow&) = delete;

    bool Create();
    void BringForward();
    // The dialog keys (Tab, mnemonics, Enter, Escape) for the window's controls; true when
    // the message was taken.
    bool TranslateDialogMessage(MSG& message);

    HWND hwnd() const { return window_.get(); }
    int PreviewPaints() const { return preview_.Paints(); }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<PreferencesWindow>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    HWND MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, int id);
    void Form_DpiChanged(int dpi, const RECT* suggested);
    void CreatePages();
    void MakeMenuEditor(PreferencePage& page);
    void Form_Size();
    void Form_NextDlgCtl(WPARAM which, LPARAM direct);
    void ShowPage(int index);
    void Working_Changed();
    void Menus_Changed();
    void UpdatePreview();
    bool Dirty() const;
    void cmdOK_Click();
    bool cmdApply_Click();
    void cmdCancel_Click();
    void cmdRevert_Click();
    void cmdHelp_Click();
    void Close();

    Program& program_;
    PreferencesHost& host_;
    DialogFont font_;
    SettingsRec working_;
    std::vector<std::unique_ptr<PreferencePage>> pages_;
    std::unique_ptr<SoundEvents> soundEvents_;
    std::unique_ptr<StartupHotspots> startupHotspots_;
    std::unique_ptr<HotspotsPage> hotspotsPage_;
    std::unique_ptr<UserTasksRoom> userTasks_;
    std::unique_ptr<MenuEditorPage> menuEditor_;
    std::unique_ptr<ThemesPage> themesPage_;
    const SettingsRec* themeLook_ = nullptr; // the theme chosen on the Themes page, for the preview
    PreviewMenu preview_;
    POINT previewTopLeft_{}; // in client pixels
    int current_ = -1;
    HWND pageList_ = nullptr;
    HWND heading_ = nullptr;
    HWND previewLabel_ = nullptr;
    HWND helpButton_ = nullptr;
    std::vector<HWND> rightButtons_; // Revert, OK, Cancel, Apply, from the left
    Win::UniqueWindow window_;
};

} // namespace PrefsWin
