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

// Items of type "Filename" that start notepad.exe, one per label.
std::vector<TestItem> NotepadItems(const std::vector<std::string>& labels);

// Settings whose start-up hotspot 0 opens the menu of that name at (left, top), without a
// tray icon, in a plain look: title 26 high, buttons 22 high, solid colours, flat parts,
// no frame. extra comes first and so wins over these: a key takes its first line's value.
inline constexpr int kPlainTitleHeight = 26;
inline constexpr int kPlainButtonHeight = 22;
std::string StartupMenuSettings(const std::string& menuName, int left, int top, const std::string& extra = "");

} // namespace E2e
