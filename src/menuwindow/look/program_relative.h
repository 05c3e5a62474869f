// Paths that settings may give relative to the program folder: theme pictures and sounds
// travel with the program, so a relative path keeps working when the folder moves.
#pragma once

#include <string>
#include <string_view>

namespace MenuWindow {

// A path that names its drive ("C:\...", "C:..."), a share ("\\server\...") or the root
// of the current drive ("\...") is taken as it is; any other non-empty path is joined to
// the program folder. An empty path stays empty.
std::string ResolveProgramRelative(std::string_view path, std::string_view programFolder);

} // namespace MenuWindow
