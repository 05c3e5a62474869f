#include "menuwindow/look/program_relative.h"

#include "core/paths.h"

namespace MenuWindow {

namespace {

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

bool NamesItsPlace(std::string_view path) {
    if (IsSeparator(path.front()))
        return true;
    return path.size() >= 2 && path[1] == ':';
}

} // namespace

std::string ResolveProgramRelative(std::string_view path, std::string_view programFolder) {
    if (path.empty() || NamesItsPlace(path))
        return std::string(path);
    return Paths::Join(programFolder, path);
}

} // namespace MenuWindow
