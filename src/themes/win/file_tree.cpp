#include "themes/win/file_tree.h"

#include "core/win/system_values.h"
#include "menus/win/folder_enumeration.h"
#include "win/text_convert.h"

#include <windows.h>

#include <algorithm>

namespace FileTree {

namespace {

bool IsDots(const WIN32_FIND_DATAW& entry) {
    std::wstring_view name = entry.cFileName;
    return name == L"." || name == L"..";
}

bool IsFolder(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string WithBackslash(std::string_view folder) {
    std::string out(folder);
    if (!out.ends_with('\\'))
        out += '\\';
    return out;
}

void CollectFiles(const std::string& folder, const std::string& prefix, std::vector<std::string>& files) {
    for (FolderEnumeration::FolderSearch search(folder); search.Next();) {
        const WIN32_FIND_DATAW& entry = search.Entry();
        if (IsDots(entry))
            continue;
        std::string name = Win::Narrow(entry.cFileName);
        // A linked folder is not followed: its files are not the theme's.
        if (IsFolder(entry) && !(entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT))
            CollectFiles(folder + name + "\\", prefix + name + "\\", files);
        else if (!IsFolder(entry))
            files.push_back(prefix + name);
    }
}

} // namespace

std::vector<std::string> FileNames(std::string_view folder) {
    std::vector<std::string> names;
    for (FolderEnumeration::FolderSearch search(WithBackslash(folder)); search.Next();) {
        if (!IsFolder(search.Entry()))
            names.push_back(Win::Narrow(search.Entry().cFileName));
    }
    return names;
}

std::vector<std::string> FolderNames(std::string_view folder) {
    std::vector<std::string> names;
    for (FolderEnumeration::FolderSearch search(WithBackslash(folder)); search.Next();) {
        if (IsFolder(search.Entry()) && !IsDots(search.Entry()))
            names.push_back(Win::Narrow(search.Entry().cFileName));
    }
    return names;
}

std::vector<std::string> FilesBelow(std::string_view folder) {
    std::vector<std::string> files;
    CollectFiles(WithBackslash(folder), "", files);
    std::sort(files.begin(), files.end());
    return files;
}

bool CopyOver(std::string_view from, std::string_view to) {
    return ::CopyFileW(Win::Widen(from).c_str(), Win::Widen(to).c_str(), FALSE) != 0;
}

bool CreateFolders(std::string_view folder) {
    std::string path(folder);
    while (path.ends_with('\\'))
        path.pop_back();
    if (path.empty() || SystemValues::FolderExists(path))
        return !path.empty();
    std::size_t parent = path.rfind('\\');
    if (parent != std::string::npos && parent > 0 && path[parent - 1] != ':' && path[parent - 1] != '\\')
        CreateFolders(std::string_view(path).substr(0, parent));
    SystemValues::CreateFolder(path);
    return SystemValues::FolderExists(path);
}

bool RemoveTree(std::string_view folder) {
    std::string path = WithBackslash(folder);
    for (FolderEnumeration::FolderSearch search(path); search.Next();) {
        const WIN32_FIND_DATAW& entry = search.Entry();
        if (IsDots(entry))
            continue;
        std::wstring full = Win::Widen(path) + entry.cFileName;
        // A link is removed itself; what it points at is left alone.
        if (IsFolder(entry) && !(entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)) {
            RemoveTree(Win::Narrow(full));
        } else if (IsFolder(entry)) {
            ::RemoveDirectoryW(full.c_str());
        } else {
            ::SetFileAttributesW(full.c_str(), FILE_ATTRIBUTE_NORMAL);
            ::DeleteFileW(full.c_str());
        }
    }
    path.pop_back();
    ::RemoveDirectoryW(Win::Widen(path).c_str());
    return ::GetFileAttributesW(Win::Widen(path).c_str()) == INVALID_FILE_ATTRIBUTES;
}

bool Rename(std::string_view from, std::string_view to) {
    return ::MoveFileExW(Win::Widen(from).c_str(), Win::Widen(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

bool MoveOver(std::string_view from, std::string_view to) {
    return ::MoveFileExW(Win::Widen(from).c_str(), Win::Widen(to).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace FileTree
