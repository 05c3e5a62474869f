#include "core/program_values.h"

void SetProgramFolder(ProgramValues& values, std::string_view folder) {
    while (!folder.empty() && folder.back() == '\\')
        folder.remove_suffix(1);
    values.ProgramFolder = folder;
    values.ThemesFolder = values.ProgramFolder + "\\Themes";
    values.HelpFolder = values.ProgramFolder + "\\Help\\Tv2";
    values.AutoInstallFolder = values.ProgramFolder + "\\AutoInstall";
    values.ExportFolder = values.ProgramFolder + "\\Export";
}

std::string SettingsFile(const ProgramValues& values) {
    return values.ProgramFolder + values.SettingsFileName;
}

std::string MenuFile(const ProgramValues& values) {
    return values.ProgramFolder + values.MenuFileName;
}
