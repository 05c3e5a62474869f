// The table of internal commands that the menu editor and the hotspots page offer:
// each row a label, an icon reference and a command ("*" and a code, or a command line
// that the launcher runs). Codes 3 to 6 have no row: saved menus store the codes, so
// the numbering keeps its gap.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CommandTable {

struct CommandRow {
    std::string label;
    std::string icon; // "<system folder>\<file>,<index>"; the index may be empty
    std::string command;
    bool operator==(const CommandRow&) const = default;
};

// Whether the drive of a letter ('A' to 'Z') is a CD-ROM drive: its eject row says so.
using IsCdRomDrive = std::function<bool(char letter)>;

// The whole table, made anew: the internal codes, the eject rows *100 to *125 (one per
// drive letter), then the control-panel applets. A row that names no icon of its own
// carries the icon of the row before it. Icon files are taken from the system folder.
std::vector<CommandRow> BuildCommandTable(const std::string& systemFolder, const IsCdRomDrive& isCdRom);

} // namespace CommandTable
