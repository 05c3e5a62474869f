#include "core/startup_rules.h"

#include "core/text.h"

#include <cmath>
#include <cstdlib>

namespace StartupRules {

namespace {
constexpr int kTwipsPerInch = 1440;
constexpr int kPointsPerInch = 72;
} // namespace

CommandLineWords FindCommandLineWords(std::string_view arguments) {
    std::string lower = Text::ToLower(arguments);
    return {lower.find("autostart") != std::string::npos, lower.find("setup") != std::string::npos};
}

std::string FolderOfFile(std::string_view path) {
    std::size_t slash = path.find_last_of('\\');
    if (slash == std::string_view::npos)
        return {};
    return std::string(path.substr(0, slash));
}

std::string ChooseProgramFolder(const CommandLineWords& words, std::string_view exeFolder,
                                std::string_view currentDirectory) {
    std::string_view folder = words.autostart ? exeFolder : currentDirectory;
    while (!folder.empty() && folder.back() == '\\')
        folder.remove_suffix(1);
    return std::string(folder);
}

std::vector<std::string> FoldersToCreate(const ProgramValues& values) {
    return {values.ThemesFolder, values.AutoInstallFolder, values.ExportFolder};
}

PreferencesAtStart ChoosePreferencesAtStart(bool settingsFileExists, const CommandLineWords& words) {
    if (!settingsFileExists)
        return PreferencesAtStart::FirstRun;
    return words.setup ? PreferencesAtStart::Setup : PreferencesAtStart::None;
}

std::vector<int> StartupHotspotsToOpen(std::span<const std::int16_t> entries, int noOfHotSpots) {
    std::vector<int> open;
    for (std::int16_t entry : entries) {
        if (entry >= 0 && entry <= noOfHotSpots)
            open.push_back(entry);
    }
    return open;
}

TrayAction TrayCallbackAction(int mouseMessage) {
    switch (mouseMessage) {
    case kTrayDoubleClick:
        return TrayAction::ChoosePreferences;
    case kTrayRightButtonUp:
        return TrayAction::PopUpMenu;
    default:
        return TrayAction::None;
    }
}

std::int16_t TwipsPerPixel(int dotsPerInch) {
    if (dotsPerInch <= 0)
        return 15; // the 96-dpi factor, for a device that reports nothing
    return Text::ToInt16(static_cast<double>(kTwipsPerInch) / dotsPerInch).value_or(15);
}

int TwipsToPixels(int twips, int twipsPerPixel) {
    if (twipsPerPixel <= 0)
        return twips;
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel));
}

std::int16_t FontPointSize(int height, int dotsPerInch) {
    if (dotsPerInch <= 0)
        return 0;
    double points = static_cast<double>(std::abs(height)) * kPointsPerInch / dotsPerInch;
    return Text::ToInt16(points).value_or(0);
}

std::string SettingsNotWrittenMessage(std::string_view settingsFile) {
    std::string text = "Tarvex could not write its settings file\n";
    text += settingsFile;
    text += "\n\nThe introduction will come back at the next start. Please make sure that the program "
            "folder can be written to.";
    return text;
}

} // namespace StartupRules
