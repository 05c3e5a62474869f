// Path rules that do not need the file system itself.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace Paths {

// Gives the current directory of a drive ('C', 'D', ...), or of the current drive
// when the letter is '\0'.
using CurrentDirectoryOf = std::function<std::string(char drive)>;

// The folder part of a path, ending with a backslash: with a backslash in the path,
// the text up to and including the last one; a bare name ("file.ini") gives the
// current directory, and "D:name" the current directory of drive D. Case is left
// as it is; the caller upper-cases.
std::string FolderOfPath(std::string_view path, const CurrentDirectoryOf& currentDirectory);

// Joins a folder and a name with exactly one backslash between them.
std::string Join(std::string_view folder, std::string_view name);

} // namespace Paths
