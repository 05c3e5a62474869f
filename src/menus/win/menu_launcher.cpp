#include "menus/win/menu_launcher.h"

#include "core/hotspot_keys.h"
#include "core/program_values.h"
#include "core/win/form1.h"
#include "core/win/settings_store.h"
#include "menus/win/launcher.h"
#include "win/text_convert.h"

#include <shellapi.h>

bool MenuLauncher::ActivateTaskWindow(HWND window) {
    return Launcher::ActivateTaskWindow(window);
}

std::int16_t MenuLauncher::RunCommand(const std::string& value) {
    return Launcher::RunCommand(form1_, value);
}

void MenuLauncher::RunProgram(const DisplayEntry& entry) {
    Launcher::RunProgram(form1_.program(), entry.LABEL, entry.STARTPATH, entry.PATH, entry.ARG, entry.RUNSTATE);
}

void MenuLauncher::ShowProperties(const std::string& path) {
    std::wstring file = Win::Widen(path);
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_INVOKEIDLIST;
    info.lpVerb = L"properties";
    info.lpFile = file.c_str();
    info.nShow = SW_SHOWNORMAL;
    ::ShellExecuteExW(&info);
}

// The settings in memory and the settings file both take the place, so that the next
// opening and the next start agree; the file's other keys stay as they are.
void MenuLauncher::StoreHotspotPlace(int hotspot, int left, int top) {
    Program& program = form1_.program();
    if (hotspot < 0 || static_cast<std::size_t>(hotspot) >= program.settings.HotSpots.size())
        return;
    HotspotRec& record = program.settings.HotSpots[static_cast<std::size_t>(hotspot)];
    record.Menuleft = static_cast<std::int16_t>(left);
    record.Menutop = static_cast<std::int16_t>(top);
    const ProfileRewrite::Result saved = SettingsStore::SaveAtomically(
        SettingsFile(program.values),
        HotSpotPlaceWrites(static_cast<std::size_t>(hotspot), record.Menuleft, record.Menutop));
    if (!saved.saved)
        program.saveNotices.Tell(SaveNotices::Kind::SettingsFile, saved.problem);
}
