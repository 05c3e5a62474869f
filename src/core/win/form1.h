// Form1, the program's hidden main form. It never shows itself: it owns the tray icon
// and its popup menu, the two hotspot timers, and the program's start-up (Form_Load)
// and shut-down.
#pragma once

#include "core/startup_rules.h"
#include "core/win/program.h"
#include "core/win/tray_icon.h"
#include "desktop/win/hotspot_timers.h"
#include "desktop/win/taskbar_replacement.h"
#include "menus/win/menu_launcher.h"
#include "prefs/win/preferences_window.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <memory>
#include <optional>

class Form1 : public PrefsWin::PreferencesHost {
public:
    // The class of the main form's window; the single-instance search looks for it.
    static constexpr const wchar_t* kClassName = L"Tarvex2MainForm";

    explicit Form1(Program& program);
    ~Form1();
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    // Registers the class and creates the hidden window; Timer3 runs from here on.
    bool Create();

    enum class LoadResult { Running, EndProcess };
    // The start-up sequence. EndProcess when another instance was brought forward.
    LoadResult Form_Load();

    // Opens the preferences window, or brings the open one forward.
    void Show_Setup_Screen();
    // Opens the preferences unless they are open already.
    void OpenPreferences();
    // The dialog keys of the preferences window, for the message loop.
    bool TranslatePreferencesMessage(MSG& message);
    PrefsWin::PreferencesWindow* preferences() const { return preferences_.get(); }
    void Insert_TrayIcon();
    void Remove_TrayIcon();
    bool TrayIconShown() const { return trayIcon_.shown(); }

    // Stops the timers and takes the window down, which ends the message loop.
    void Unload();

    HWND hwnd() const { return window_.get(); }
    Program& program() { return program_; }
    TaskbarReplacement& taskbarReplacement() { return taskbarReplacement_; }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<Form1>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    // Applied settings reach every open menu window, the tray icon, the desktop icons
    // and the autostart value; hotspots keep quiet meanwhile.
    void SettingsApplied(const SettingsRec& before) override;
    void PreferencesClosed() override;

    void Form_MouseMove(WPARAM buttons, int x, int y);
    void Form_EndSession();
    void mPopSetup_Click();
    void mPopExit_Click();
    void Form_Unload();
    void Timer1_Timer();
    void Timer3_Timer();
    void PopUpSystrayMenu();
    void BuildSystrayMenu();
    HICON FormIcon() const;

    // The steps of Form_Load, in their order.
    void SetProgramTitle();
    bool AnotherInstanceRunning();
    void ParkOffScreen();
    void KeepParked();
    void WorkOutProgramFolder();
    void CreateProgramFolders();
    void BuildInternalCommandTable();
    void LoadSettings();
    void LoadMenus();
    void ClearOpenMenus();
    void OpenPreferencesAtStart();
    void RunFirstRun();
    void InstallAutoInstallPackages();
    void EnableTimer1();
    void ApplyDesktopSettings();
    void HideDesktopIcons();
    void HideTaskbarAndShowSystray();
    void OpenStartupHotspots();
    void OpenStartupHotspot(int hotspot);

    Program& program_;
    Win::UniqueWindow window_;
    Win::UniqueMenu menuBar_; // holds mPopupSys, the tray icon's popup menu
    Win::UniqueKernelHandle instanceMarker_;
    TrayIcon trayIcon_;
    MenuLauncher menuLauncher_{*this};
    HotspotTimers hotspotTimers_{*this};
    TaskbarReplacement taskbarReplacement_{program_};
    std::unique_ptr<PrefsWin::PreferencesWindow> preferences_;
    std::optional<POINT> parkedAt_; // where ParkOffScreen put the form
    UINT taskbarCreatedMessage_ = 0;
    StartupRules::CommandLineWords commandLineWords_;
};
