// The fonts side of saving a theme; the public font helpers are declared in themes.h.
#pragma once

#include "core/settings.h"

#include <string>
#include <string_view>

namespace ThemeFonts {

// The system's fonts folder, ending with a backslash.
std::string FontsFolder();

// Copies the files of the button font and of the title font (when another) from the
// fonts folder into the theme folder, as the registry's fonts table names them; a font
// the table does not have is told in a message box.
void SaveFonts(const SettingsRec& settings, std::string_view themeFolder, bool isNT);

} // namespace ThemeFonts
