#include "themes/font_rules.h"

#include "core/text.h"

namespace FontRules {

std::string_view FontsKey(bool isNT) {
    return isNT ? "Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"
                : "Software\\Microsoft\\Windows\\CurrentVersion\\Fonts";
}

std::string RegistryValueName(std::string_view face) {
    return std::string(face).append(" (TrueType)");
}

std::string FontFilePath(std::string_view fontsFolder, std::string_view registryValue) {
    bool namesItsPlace = registryValue.find(':') != std::string_view::npos || registryValue.starts_with("\\\\");
    return namesItsPlace ? std::string(registryValue) : std::string(fontsFolder).append(registryValue);
}

std::string FaceNameFromFontResource(std::string_view bytes) {
    constexpr std::string_view kMarker = "FONTRES:";
    std::size_t at = bytes.find(kMarker);
    if (at == std::string_view::npos)
        return {};
    std::string_view rest = bytes.substr(at + kMarker.size());
    return std::string(rest.substr(0, rest.find('\0')));
}

bool IsFontFile(std::string_view fileName) {
    return fileName.size() > 4 && Text::EqualsIgnoreCase(fileName.substr(fileName.size() - 4), ".ttf");
}

std::vector<FontToSave> FontsToSave(const SettingsRec& settings) {
    // The two titles differ in the case of one letter; both are the program's own wording.
    std::vector<FontToSave> fonts{{settings.ButtonFont, "Tarvex - Font Not Saved"}};
    if (!Text::EqualsIgnoreCase(settings.TitleFont, settings.ButtonFont))
        fonts.push_back({settings.TitleFont, "Tarvex - Font not Saved"});
    return fonts;
}

ThemeFiles::Box NotInRegistry(const FontToSave& font) {
    std::string text = "Sorry - ";
    text.append(font.font).append(" font not found in the registry!");
    return {text, std::string(font.notFoundTitle), MessageBoxes::kExclamation};
}

FontCheck CheckFont(std::string_view name, std::span<const std::string> installedFonts) {
    for (const std::string& installed : installedFonts) {
        if (Text::EqualsIgnoreCase(installed, name))
            return {std::string(name), false};
    }
    return {"Arial", true};
}

ThemeFiles::Box MissingFont(std::string_view name) {
    std::string text = "This theme is using a font not installed in your system (";
    text.append(name).append(").\nArial will be used instead.");
    return {text, "Tarvex Warning", MessageBoxes::kInformation};
}

void CheckThemeFonts(SettingsRec& settings, const std::function<std::string(std::string_view)>& check) {
    bool oneFont = Text::EqualsIgnoreCase(settings.TitleFont, settings.ButtonFont);
    settings.ButtonFont = check(settings.ButtonFont);
    settings.TitleFont = oneFont ? settings.ButtonFont : check(settings.TitleFont);
}

} // namespace FontRules
