#include "prefs/sample_menu.h"

#include "menus/data_manager.h"
#include "menus/menu_editing.h"

#include <initializer_list>

namespace Preferences {

namespace {

struct SampleItem {
    const char* label;
    std::uint8_t type;
    const char* path;
    const char* hotKey;
};

void AddSampleMenu(MenuTable& table, const char* name, std::initializer_list<SampleItem> items) {
    const std::int32_t menu = DataManager::AddMenu(table) - 1;
    table.menus[static_cast<std::size_t>(menu) + 1].NAME = name;
    for (const SampleItem& sample : items) {
        MenuItemRec& item = table.pool[static_cast<std::size_t>(DataManager::AppendItem(table, menu))];
        item.LABEL = sample.label;
        item.TYPE = sample.type;
        item.PATH = sample.path;
        item.HOTKEY = sample.hotKey;
    }
}

} // namespace

MenuTable SampleMenus() {
    MenuTable table;
    AddSampleMenu(table, kSampleMenuName,
                  {{"Programs", kItemMenuName, "Accessories", "0"},
                   {"Text Editor", kItemFilename, "notepad.exe", "E"},
                   {"Calculator", kItemFilename, "calc.exe", "0"},
                   {"Command Prompt", kItemFilename, "cmd.exe", "0"},
                   {"Shut Down", kItemCommandName, "*6", "0"}});
    AddSampleMenu(table, "Accessories",
                  {{"Paint", kItemFilename, "mspaint.exe", "0"}, {"Character Map", kItemFilename, "charmap.exe", "0"}});
    return table;
}

} // namespace Preferences
