// Form_Load: the program's start-up sequence, step by step in its fixed order.
#include "core/win/form1.h"

#include "core/message_box.h"
#include "core/startup_rules.h"
#include "core/win/settings_store.h"
#include "core/win/subroutines.h"
#include "core/win/system_values.h"
#include "desktop/win/desktop_windows.h"
#include "desktop/win/hotspot_opening.h"
#include "menus/win/startup_menus.h"
#include "prefs/win/first_run_introduction.h"
#include "themes/win/themes.h"
#include "win/text_convert.h"

namespace {
constexpr int kParkedPositionTwips = -20000; // far off every screen
constexpr int kParkedSizeTwips = 720;
} // namespace

Form1::LoadResult Form1::Form_Load() {
    ProgramValues& values = program_.values;
    values.SystemCaptionFont = SystemValues::ReadCaptionFont();
    SetProgramTitle();
    if (AnotherInstanceRunning() && Subroutines::SingleInstance(*this))
        return LoadResult::EndProcess;
    ParkOffScreen();
    WorkOutProgramFolder();
    CreateProgramFolders();
    // Before anything else changes the desktop: what a run that never reached its exit left.
    DesktopWindows::PutBackLeftChanges(program_);
    values.WindowsFolder = SystemValues::WindowsFolder();
    values.SystemFolder = SystemValues::SystemFolder();
    values.IsNT = SystemValues::IsNT();
    SystemValues::TwipsPerPixel twips = SystemValues::ReadTwipsPerPixel();
    values.TwipsPerPixelX = twips.x;
    values.TwipsPerPixelY = twips.y;
    values.SoundAvailable = SystemValues::SoundAvailable();
    BuildInternalCommandTable();
    {
        BusyScope rebuilding(program_.RebuildBusy);
        LoadSettings();
        LoadMenus();
    }
    ClearOpenMenus();
    if (program_.settings.GenShowInTray)
        Insert_TrayIcon();
    OpenPreferencesAtStart();
    if (!window_)
        return LoadResult::EndProcess; // closed while the preferences were up
    InstallAutoInstallPackages();
    EnableTimer1();
    ApplyDesktopSettings();
    OpenStartupHotspots();
    return LoadResult::Running;
}

void Form1::SetProgramTitle() {
    program_.values.ProgramTitle = kProgramTitle;
    ::SetWindowTextW(window_.get(), Win::Widen(kProgramTitle).c_str());
}

// Another instance holds the marker for as long as it runs. Ours is taken here and
// kept, so that later starts find it too.
bool Form1::AnotherInstanceRunning() {
    HANDLE marker = ::CreateMutexW(nullptr, FALSE, L"Tarvex2.Running");
    bool existed = ::GetLastError() == ERROR_ALREADY_EXISTS;
    instanceMarker_.reset(marker);
    return existed;
}

void Form1::ParkOffScreen() {
    SystemValues::TwipsPerPixel twips = SystemValues::ReadTwipsPerPixel();
    int x = StartupRules::TwipsToPixels(kParkedPositionTwips, twips.x);
    int y = StartupRules::TwipsToPixels(kParkedPositionTwips, twips.y);
    int width = StartupRules::TwipsToPixels(kParkedSizeTwips, twips.x);
    int height = StartupRules::TwipsToPixels(kParkedSizeTwips, twips.y);
    parkedAt_ = {x, y};
    ::SetWindowPos(window_.get(), nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Timer3 keeps the hidden form where it was parked, wherever something moved it.
void Form1::KeepParked() {
    RECT rect{};
    if (!window_ || !parkedAt_ || !::GetWindowRect(window_.get(), &rect) ||
        (rect.left == parkedAt_->x && rect.top == parkedAt_->y))
        return;
    ::SetWindowPos(window_.get(), nullptr, parkedAt_->x, parkedAt_->y, 0, 0, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOSIZE);
}

void Form1::WorkOutProgramFolder() {
    commandLineWords_ = StartupRules::FindCommandLineWords(program_.arguments);
    SetProgramFolder(program_.values,
                     StartupRules::ChooseProgramFolder(commandLineWords_, SystemValues::ExecutableFolder(),
                                                       SystemValues::CurrentDirectory()));
}

void Form1::CreateProgramFolders() {
    for (const std::string& folder : StartupRules::FoldersToCreate(program_.values))
        SystemValues::CreateFolder(folder);
}

void Form1::BuildInternalCommandTable() {
    Subroutines::BuildInternalCommandTable(program_);
}

void Form1::LoadSettings() {
    ProgramValues& values = program_.values;
    values.ShellFolders = SettingsStore::ReadProgramFolders(values.WindowsFolder, values.IsNT);
    SettingsStore::Load(SettingsFile(values), false, program_.settings);
}

void Form1::LoadMenus() {
    const ProgramValues& values = program_.values;
    MenuStore::LoadMenusAtStartup(program_.menus, values.ProgramFolder, values.SystemFolder, values.ShellFolders,
                                  program_.settings);
    // After the menus: the default hotspot shows the first of them.
    HotspotOpening::EnsureDefaultHotspot(program_, SettingsFile(values));
}

// No menu window open and no hotspot waiting to be fired.
void Form1::ClearOpenMenus() {
    program_.openMenus.CloseAll();
    program_.RequestedHotspot = -1;
}

void Form1::OpenPreferencesAtStart() {
    bool settingsFileExists = SystemValues::FileExists(SettingsFile(program_.values));
    switch (StartupRules::ChoosePreferencesAtStart(settingsFileExists, commandLineWords_)) {
    case StartupRules::PreferencesAtStart::FirstRun:
        RunFirstRun();
        break;
    case StartupRules::PreferencesAtStart::Setup:
        Show_Setup_Screen();
        break;
    case StartupRules::PreferencesAtStart::None:
        break;
    }
}

// The introduction comes once: unless the settings file is there by the time the
// preferences window is open, the settings as they stand are written, so that the next
// start is not a first run again. A folder that refuses the file is told, or the
// user would meet the introduction at every start without knowing why.
void Form1::RunFirstRun() {
    program_.values.PreferencesOpen = true;
    FirstRunIntroduction::ShowModal(program_.instance, window_.get(), program_.iconResource);
    Show_Setup_Screen();
    std::string settingsFile = SettingsFile(program_.values);
    if (!SystemValues::FileExists(settingsFile) && !SettingsStore::Save(settingsFile, false, program_.settings).saved &&
        program_.saveNotices.First(SaveNotices::Kind::SettingsFile))
        MessageBoxes::MsgBox(StartupRules::SettingsNotWrittenMessage(settingsFile), "Tarvex Warning",
                             MessageBoxes::kExclamation);
}

// Every zip package waiting in the auto-install folder becomes a theme; a broken one is
// told and start-up goes on.
void Form1::InstallAutoInstallPackages() {
    Themes::InstallWaitingPackages(program_.values, program_.settings);
}

void Form1::ApplyDesktopSettings() {
    if (program_.settings.GenHideDesktopIcons)
        HideDesktopIcons();
    if (program_.settings.TaskbarRunOnStartup)
        HideTaskbarAndShowSystray();
}

void Form1::HideDesktopIcons() {
    DesktopWindows::SetDesktopIcons(CommandActions::Visibility::Hide, program_);
}

void Form1::HideTaskbarAndShowSystray() {
    taskbarReplacement_.ReplaceTaskbar();
}

void Form1::OpenStartupHotspots() {
    const SettingsRec& settings = program_.settings;
    for (int hotspot : StartupRules::StartupHotspotsToOpen(settings.GenStartupHotspot, settings.NoOfHotSpots()))
        OpenStartupHotspot(hotspot);
}

void Form1::OpenStartupHotspot(int hotspot) {
    HotspotOpening::OpenMenuOfHotspot(program_, hotspot);
}
