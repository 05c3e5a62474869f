// One entry of a menu window's display list, filled from a menu item or from a folder
// listing and handed to the launcher. Fields are named like the item fields they carry.
#pragma once

#include <cstdint>
#include <string>

struct DisplayEntry {
    std::string LABEL;
    std::uint8_t TYPE = 0;
    std::string PATH;
    std::string STARTPATH;
    std::string ARG;           // for folders: the second folder
    std::uint8_t RUNSTATE = 0; // for folders: the file filter
    std::string FILETYPEMASK;
    std::string ICONPATH;
    std::string HOTKEY;
    std::uint64_t taskWindow = 0; // an entry of a task-list menu: the handle of its window
    bool operator==(const DisplayEntry&) const = default;
};
