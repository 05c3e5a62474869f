// The Themes page's rules: its labels, which folders under Themes are themes, and how a
// loaded theme's look joins the settings being edited.
#pragma once

#include "core/settings.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace Preferences {

// The page's own controls, in the order they stand; their mnemonics stay clear of the
// window's. The fonts go into a saved theme, and a loaded theme's fonts are installed.
inline constexpr std::array<std::string_view, 9> kThemeLabels = {
    "Installed th&emes:", "&Name:", "Au&thor:", "Include the desktop &wallpaper", "Include the &fonts",
    "&Load Theme",        "&Save Theme", "&Delete Theme", "E&xport"};
inline constexpr std::string_view kImportLabel = "&Import...";

// The themes among the folders under Themes, sorted without regard to case: a folder an
// import left when it was cut short ("~name.unpacking", "~name.replaced") is none.
std::vector<std::string> InstalledThemes(std::vector<std::string> folders);

// `to` takes the look of `from`: the keys a theme file holds, the pictures folder and the
// sounds; everything else of `to` stays.
void TakeLook(const SettingsRec& from, SettingsRec& to);

} // namespace Preferences
