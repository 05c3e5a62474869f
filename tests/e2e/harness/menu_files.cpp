#include "harness/menu_files.h"

#include "win/text_convert.h"

#include <windows.h>

namespace E2e {

namespace {

// Built up by appending: GCC 12 warns falsely on a literal + a temporary string.
std::string Line(const std::string& key, long long number, const std::string& value) {
    std::string line = key;
    line += "-";
    line += std::to_string(number);
    line += "=";
    line += value;
    line += "\r\n";
    return line;
}

std::string Setting(const std::string& key, const std::string& value) {
    std::string line = key;
    line += "=";
    line += value;
    line += "\n";
    return line;
}

} // namespace

TestItem Item(std::string label, std::uint8_t type, std::string path) {
    TestItem item;
    item.label = std::move(label);
    item.type = type;
    item.path = std::move(path);
    return item;
}

std::string SystemFile(const char* name) {
    wchar_t folder[MAX_PATH];
    ::GetSystemDirectoryW(folder, MAX_PATH);
    std::string path = Win::Narrow(folder);
    path += "\\";
    path += name;
    return path;
}

TestItem WritesAFile(const std::string& label, const std::string& file, const std::string& startFolder) {
    TestItem item = Item(label, 0, SystemFile("cmd.exe"));
    item.arg = "/c cd > ";
    item.arg += file;
    item.startPath = startFolder;
    return item;
}

std::string MenuFileText(const std::vector<TestMenu>& menus) {
    std::string text = "[MENUS]\r\n";
    for (std::size_t i = 0; i < menus.size(); ++i) {
        long long number = static_cast<long long>(i) + 1;
        text += Line("NAME", number, menus[i].name) + Line("INHERIT", number, "False") + Line("THEME", number, "") +
                Line("SOUNDPATH", number, "") + Line("APPPATH", number, "");
    }
    for (std::size_t i = 0; i < menus.size(); ++i) {
        text += "\r\n[MENU-";
        text += std::to_string(i + 1);
        text += "]\r\n";
        const std::vector<TestItem>& items = menus[i].items;
        for (std::size_t p = 0; p < items.size(); ++p) {
            const TestItem& item = items[p];
            long long at = static_cast<long long>(p);
            text += Line("LABEL", at, item.label) + Line("TYPE", at, std::to_string(item.type)) +
                    Line("PATH", at, item.path) + Line("STARTPATH", at, item.startPath) + Line("ARG", at, item.arg) +
                    Line("RUNSTATE", at, std::to_string(item.runState)) + Line("FILETYPEMASK", at, "") +
                    Line("ICONPATH", at, item.iconPath) + Line("HOTKEY", at, item.hotkey);
        }
    }
    return text;
}

std::vector<TestItem> NotepadItems(const std::vector<std::string>& labels) {
    std::vector<TestItem> items;
    for (const std::string& label : labels)
        items.push_back(Item(label, 0, "notepad.exe"));
    return items;
}

std::string HotspotSettings(const std::vector<TestHotspot>& hotspots, const std::string& extra) {
    std::string text = "[TARVEX]\n";
    text += extra;
    text += "GenShowInTray=False\n";
    text += Setting("NoOfHotSpots", std::to_string(static_cast<int>(hotspots.size()) - 1));
    for (std::size_t i = 0; i < hotspots.size(); ++i) {
        const TestHotspot& spot = hotspots[i];
        std::string key = "HotSpot";
        key += std::to_string(i);
        auto add = [&](const char* field, const std::string& value) {
            std::string name = key;
            name += field;
            text += Setting(name, value);
        };
        add("x1", std::to_string(spot.x1));
        add("x2", std::to_string(spot.x2));
        add("y1", std::to_string(spot.y1));
        add("y2", std::to_string(spot.y2));
        add("App", spot.app);
        add("GroupName", spot.group);
        add("Type", std::to_string(spot.type));
        add("Menupath1", spot.target);
        add("Menupath2", spot.target2);
        add("Menuleft", std::to_string(spot.left));
        add("Menutop", std::to_string(spot.top));
        add("MouseButton", std::to_string(spot.mouseButton));
        add("OnMouse", spot.onMouse ? "True" : "False");
        add("AlwaysOpen", spot.alwaysOpen ? "1" : "0");
        add("UseHotKey", spot.hotKey ? "1" : "0");
        add("Hotkey", std::to_string(spot.hotKey));
        add("Monitor", std::to_string(spot.monitor));
    }
    text += "TitleColor=8400912\nTitleFontColor=57599\nTitleGradient=False\nTitleFlat=True\nTitleOverlap=False\n";
    text += Setting("TitleVSize", std::to_string(kPlainTitleHeight));
    text += "ButtonColor=15788256\nButtonFontColor=3153936\nButtonGradient=False\nButtonFlat=1\n";
    text += Setting("ButtonVSize", std::to_string(kPlainButtonHeight));
    text += "MenuNoFrames=1\nTwinScrollButtons=False\n";
    return text;
}

std::string StartupMenuSettings(const std::string& menuName, int left, int top, const std::string& extra) {
    TestHotspot hotspot;
    hotspot.target = menuName;
    hotspot.left = left;
    hotspot.top = top;
    return HotspotSettings({hotspot}, extra + "GenStartupHotspot0=0\n");
}

} // namespace E2e
