#include "prefs/themes_page.h"

#include "core/text.h"

#include <algorithm>

namespace Preferences {

std::vector<std::string> InstalledThemes(std::vector<std::string> folders) {
    std::erase_if(folders, [](const std::string& folder) {
        return folder.starts_with('~') && (folder.ends_with(".unpacking") || folder.ends_with(".replaced"));
    });
    std::ranges::sort(folders, [](const std::string& a, const std::string& b) {
        return Text::ToLower(a) < Text::ToLower(b);
    });
    return folders;
}

void TakeLook(const SettingsRec& from, SettingsRec& to) {
    ProfileSection look;
    for (const ProfileWrite& write : SaveSettings(from, true))
        look.push_back({write.key, write.value});
    LoadSettings(look, true, to);
    to.BitmapsFolder = from.BitmapsFolder;
    to.SoundFx = from.SoundFx;
}

} // namespace Preferences
