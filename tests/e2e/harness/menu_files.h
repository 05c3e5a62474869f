// Menu and settings files as the program itself writes them, for the tests' program
// folders: every key of every menu and item present, "0" for an item without a hot key.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace E2e {

struct TestItem {
    std::string label;
    std::uint8_t type = 0; // 0 file, 1 command, 2 folder, 3 menu, 4 task list
    std::string path;
    std::string startPath;
    std::string arg;
    int runState = 0;
    std::string hotkey = "0";
    std::string iconPath;
};

struct TestMenu {
    std::string name;
    std::vector<TestItem> items;
};

// An item of a type and path, its other fields as a new item has them.
TestItem Item(std::string label, std::uint8_t type, std::string path);

// The text of a menu file (UTF-8, CR LF lines) holding the menus, numbered from 1.
std::string MenuFileText(const std::vector<TestMenu>& menus);

// A file of the system folder ("cmd.exe").
std::string SystemFile(const char* name);

// An item that runs cmd.exe to write the folder it runs in to a file: the file proves
// that the item was chosen, and its text that it ran in its start folder.
TestItem WritesAFile(const std::string& label, const std::string& file, const std::string& startFolder = "");

// Items of type "Filename" that start notepad.exe, one per label.
std::vector<TestItem> NotepadItems(const std::vector<std::string>& labels);

// A hotspot as the settings hold it; by default the desktop right of the icon column,
// left click, group "Default", showing a menu.
struct TestHotspot {
    std::string target; // Menupath1: the menu it shows, the program it runs
    int left = 0;       // Menuleft
    int top = 0;        // Menutop
    int mouseButton = 0;
    std::string app = "Desktop";
    int x1 = 48, y1 = 0, x2 = 1024, y2 = 768;
    bool onMouse = false;
    std::string group = "Default";
    bool alwaysOpen = false;
    int hotKey = 0; // with Ctrl; 0 for none
    int type = 1;   // 1 show a menu, 2 run a program, 3 run a command
    std::string target2; // Menupath2: the program's arguments, the command
    int monitor = 0;     // where its bumps count: 0 any monitor, else that monitor's number
};

// Settings with the hotspots, without a tray icon, in a plain look: title 26 high,
// buttons 22 high, solid colours, flat parts, no frame. extra comes first and so wins
// over these: a key takes its first line's value.
inline constexpr int kPlainTitleHeight = 26;
inline constexpr int kPlainButtonHeight = 22;
std::string HotspotSettings(const std::vector<TestHotspot>& hotspots, const std::string& extra = "");

// The same with one hotspot, the default one showing the menu of that name at (left,
// top), opened at start.
std::string StartupMenuSettings(const std::string& menuName, int left, int top, const std::string& extra = "");

} // namespace E2e
