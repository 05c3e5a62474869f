// The fonts of a theme: which fonts a save looks up and under which registry names,
// where a font's file is, the face name inside a font resource file, and the check
// that puts "Arial" in place of a font the system does not have.
#pragma once

#include "core/settings.h"
#include "themes/theme_files.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace FontRules {

// The fonts table of the registry, under the local machine.
std::string_view FontsKey(bool isNT);
// The value a TrueType font stands under in the fonts table: face + " (TrueType)".
std::string RegistryValueName(std::string_view face);
// The file a fonts-table value names: a value naming its drive or share is a path of
// its own; a plain file name is in the fonts folder (which ends with a backslash).
std::string FontFilePath(std::string_view fontsFolder, std::string_view registryValue);

// The font resource file that the face name is read from, made in the temporary folder.
inline constexpr std::string_view kFontResourceFile = "~TEMP.FOT";
// The face name in a font resource file's bytes: the text after "FONTRES:" up to the
// next NUL; empty when the marker is not there.
std::string FaceNameFromFontResource(std::string_view bytes);

// Whether a file of a theme folder is a font that Load theme installs.
bool IsFontFile(std::string_view fileName);

// The fonts a save looks up: the button font, then the title font when it is another
// one; each with the title of the box that says it is not in the registry.
struct FontToSave {
    std::string font;
    std::string_view notFoundTitle;
};
std::vector<FontToSave> FontsToSave(const SettingsRec& settings);
ThemeFiles::Box NotInRegistry(const FontToSave& font);

// Theme font check: the name itself when an installed font has it (in any case),
// otherwise "Arial" and the warning.
struct FontCheck {
    std::string font;
    bool missing = false;
};
FontCheck CheckFont(std::string_view name, std::span<const std::string> installedFonts);
ThemeFiles::Box MissingFont(std::string_view name);
// A loaded theme's button and title fonts through the check, a font both use once.
void CheckThemeFonts(SettingsRec& settings, const std::function<std::string(std::string_view)>& check);

} // namespace FontRules
