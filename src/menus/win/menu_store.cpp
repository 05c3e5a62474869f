#include "menus/win/menu_store.h"

#include "core/message_box.h"
#include "core/paths.h"
#include "core/win/ini_handler.h"
#include "core/win/profile_rewrite.h"
#include "menus/menu_file.h"

namespace MenuStore {

std::string MenuFilePath(std::string_view programFolder) {
    return Paths::Join(programFolder, kMenuFileName);
}

bool LoadMenuFile(MenuTable& table, std::string_view path) {
    const std::string file(path);
    const MenuLoadResult result = DataManager::LoadMenuFile(
        table, [&file](std::string_view section) { return IniHandler::ReadWholeSection(section, file); });
    if (result.complete)
        return true;
    std::string text = "The menu file ";
    text += file;
    text += " could not be read to its end.\n";
    text += result.error;
    text += "\nThe menus read before that key are kept. The rest of the file was not read, and saving the menus "
            "will leave it out.";
    MessageBoxes::MsgBox(text, kWarningTitle, MessageBoxes::kExclamation);
    return false;
}

bool SaveMenuFile(const MenuTable& table, std::string_view programFolder, SaveNotices::Told& told) {
    const ProfileRewrite::Result result =
        ProfileRewrite::Rewrite(MenuFilePath(programFolder), DataManager::SaveMenuFile(table));
    if (!result.saved)
        told.Tell(SaveNotices::Kind::MenuFile, result.problem);
    return result.saved;
}

} // namespace MenuStore
