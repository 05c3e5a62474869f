// The file work of themes and packages on UTF-8 paths: listing a folder's files,
// copying, removing a folder whole and moving one into place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace FileTree {

// The names of the files (not folders) directly in a folder.
std::vector<std::string> FileNames(std::string_view folder);
// The names of the folders directly in a folder.
std::vector<std::string> FolderNames(std::string_view folder);
// Every file below a folder, as paths relative to it with backslashes, sorted.
std::vector<std::string> FilesBelow(std::string_view folder);

// Copies a file over any file of that name; false when it could not.
bool CopyOver(std::string_view from, std::string_view to);
// Creates the folder and the folders above it that are missing; false when it is not there after.
bool CreateFolders(std::string_view folder);
// Removes a folder with everything in it; true when it is gone (or was never there).
bool RemoveTree(std::string_view folder);
// Renames a file or folder on its volume; false when it could not (nothing moved then).
bool Rename(std::string_view from, std::string_view to);
// Renames a file over any file of the target's name.
bool MoveOver(std::string_view from, std::string_view to);

} // namespace FileTree
