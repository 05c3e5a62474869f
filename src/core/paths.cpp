#include "core/paths.h"

namespace Paths {

namespace {
bool IsDriveLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

std::string WithTrailingBackslash(std::string s) {
    if (s.empty() || s.back() != '\\')
        s += '\\';
    return s;
}
} // namespace

std::string FolderOfPath(std::string_view path, const CurrentDirectoryOf& currentDirectory) {
    std::size_t slash = path.rfind('\\');
    if (slash != std::string_view::npos)
        return std::string(path.substr(0, slash + 1));
    char drive = '\0';
    if (path.size() >= 2 && path[1] == ':' && IsDriveLetter(path[0]))
        drive = path[0];
    return WithTrailingBackslash(currentDirectory(drive));
}

std::string Join(std::string_view folder, std::string_view name) {
    std::string out(folder);
    while (!out.empty() && out.back() == '\\')
        out.pop_back();
    while (!name.empty() && name.front() == '\\')
        name.remove_prefix(1);
    out += '\\';
    out += name;
    return out;
}

} // namespace Paths
