#include "core/program_folders.h"

namespace {

std::string WithBackslash(std::string_view folder) {
    std::string out(folder);
    if (out.empty() || out.back() != '\\')
        out += '\\';
    return out;
}

std::string OrFallback(std::string_view value, std::string_view windowsFolder, std::string_view subFolder) {
    if (!value.empty())
        return WithBackslash(value);
    while (!windowsFolder.empty() && windowsFolder.back() == '\\')
        windowsFolder.remove_suffix(1);
    return std::string(windowsFolder) + std::string(subFolder);
}

} // namespace

ProgramFolders ResolveProgramFolders(const ProgramFolders& shellFolders, std::string_view windowsFolder, bool isNT) {
    // NT keeps Start menus in per-user profiles; Windows 9x has a single Start menu, which
    // then also stands for the common one.
    std::string_view programs = isNT ? "\\profiles\\administrator\\Start menu\\Programs\\" : "\\Start menu\\Programs\\";
    std::string_view common = isNT ? "\\profiles\\All Users\\Start menu\\Programs\\" : "\\Start menu\\Programs\\";
    return {
        OrFallback(shellFolders.Programs, windowsFolder, programs),
        OrFallback(shellFolders.CommonPrograms, windowsFolder, common),
        OrFallback(shellFolders.Desktop, windowsFolder, "\\desktop\\"),
    };
}
