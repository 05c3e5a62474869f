// A helper of the end-to-end tests that saves the menu file and the settings file through
// the program's own code, over and over, so that the test can kill it at any moment of a
// save. Two sets of menus and settings take turns:
//   save_loop.exe FOLDER FIRST ROUNDS [READY]
// saves into FOLDER's TvMenus.ini and Helmora.ini in rounds FIRST, FIRST + 1 ... for
// ROUNDS rounds (0: until killed). An even round saves the first set, the menus first; an
// odd one the second set, the settings first. READY is the handle of an inherited event,
// set once it is about to save. The exit code is 0 after the rounds, 2 when a save
// failed, 1 for a wrong command line.
#include "core/save_notices.h"
#include "core/settings.h"
#include "core/win/settings_store.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/win/menu_store.h"
#include "win/text_convert.h"

#include <windows.h>

#include <cwchar>
#include <string>

namespace {

// Menus of a few dozen items each, so that a save takes long enough to be killed in;
// the second set has a menu more and other labels.
MenuTable Menus(bool second) {
    MenuTable table;
    for (int m = 0; m < (second ? 4 : 3); ++m) {
        const std::int32_t number = DataManager::AddMenu(table);
        table.menus[static_cast<std::size_t>(number)].NAME = (second ? "Menu B" : "Menu A") + std::to_string(m);
        for (int i = 0; i < 16; ++i) {
            MenuItemRec& item = table.pool[static_cast<std::size_t>(DataManager::AppendItem(table, number - 1))];
            item.LABEL = (second ? "Программа " : "Program ") + std::to_string(m) + "." + std::to_string(i);
            item.PATH = "C:\\Programs\\tool" + std::to_string(i) + ".exe";
            item.ARG = second ? "/b" : "";
        }
    }
    return table;
}

// The same keys in both sets, other values: each save replaces every value it changes.
// Ten hotspots make the file about as long as the menu file, so that a kill is as likely
// to fall in either save.
SettingsRec Settings(bool second) {
    SettingsRec settings;
    settings.TitleColor = second ? 0x0000FF : 0x00FF00;
    settings.TitleFont = second ? "Courier New" : "Arial";
    settings.GenThemeName = second ? "Second ☃" : "First";
    settings.HotSpots.resize(11);
    for (std::size_t h = 1; h < settings.HotSpots.size(); ++h) {
        settings.HotSpots[h].Menuname = (second ? "Menu B" : "Menu A") + std::to_string(h % 3);
        settings.HotSpots[h].x2 = static_cast<std::int16_t>(second ? 100 + h : 200 + h);
    }
    return settings;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc < 4)
        return 1;
    const std::string folder = Win::Narrow(argv[1]);
    const long first = std::wcstol(argv[2], nullptr, 10);
    const long rounds = std::wcstol(argv[3], nullptr, 10);
    const std::string settingsFile = folder + "\\Helmora.ini";
    const MenuTable menus[] = {Menus(false), Menus(true)};
    const SettingsRec settings[] = {Settings(false), Settings(true)};
    SaveNotices::Told told; // no handler: a failure is only the exit code
    const auto saveMenus = [&](std::size_t which) { return MenuStore::SaveMenuFile(menus[which], folder, told); };
    const auto saveSettings = [&](std::size_t which) {
        return SettingsStore::Save(settingsFile, false, settings[which]).saved;
    };
    if (argc > 4)
        ::SetEvent(reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(std::wcstoull(argv[4], nullptr, 10))));
    for (long round = first; rounds == 0 || round < first + rounds; ++round) {
        const std::size_t which = static_cast<std::size_t>(round % 2);
        const bool saved = which == 0 ? saveMenus(which) && saveSettings(which) : saveSettings(which) && saveMenus(which);
        if (!saved)
            return 2;
    }
    return 0;
}
