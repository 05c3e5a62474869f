#include "menus/menu_editing.h"

#include "core/message_box.h"
#include "menus/data_manager.h"

#include <cstddef>

namespace DataManager {

std::int32_t AddMenu(MenuTable& table) {
    table.menus.emplace_back().NAME = kNewMenuName;
    return table.MenuCount();
}

std::string RemoveMenuQuestion(const std::string& name) {
    return "This will delete the '" + name + "' menu!\n\nAre you sure?";
}

bool RemoveMenu(MenuTable& table, std::int32_t number) {
    if (number < 1 || number > table.MenuCount())
        return false;
    using namespace MessageBoxes;
    const std::string question = RemoveMenuQuestion(table.menus[static_cast<std::size_t>(number)].NAME);
    if (MsgBox(question, kRemoveMenuTitle, kYesNo + kExclamation + kDefaultButton2) != kYes)
        return false;
    const std::int32_t menu = number - 1;
    while (DeleteItem(table, menu, 0)) {
    }
    table.menus.erase(table.menus.begin() + number);
    ShiftMenuOwners(table, menu);
    return true;
}

} // namespace DataManager
