#include "harness/menu_files.h"

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

std::string StartupMenuSettings(const std::string& menuName, int left, int top, const std::string& extra) {
    std::string text = "[TARVEX]\n";
    text += extra;
    text += "GenShowInTray=False\nNoOfHotSpots=0\nGenStartupHotspot0=0\n";
    text += "HotSpot0x1=48\nHotSpot0x2=1024\nHotSpot0y1=0\nHotSpot0y2=768\n";
    text += "HotSpot0App=Desktop\nHotSpot0GroupName=Default\n";
    text += "HotSpot0Type=1\n";
    text += Setting("HotSpot0Menupath1", menuName);
    text += Setting("HotSpot0Menuleft", std::to_string(left));
    text += Setting("HotSpot0Menutop", std::to_string(top));
    text += "TitleColor=8400912\nTitleFontColor=57599\nTitleGradient=False\nTitleFlat=True\nTitleOverlap=False\n";
    text += Setting("TitleVSize", std::to_string(kPlainTitleHeight));
    text += "ButtonColor=15788256\nButtonFontColor=3153936\nButtonGradient=False\nButtonFlat=1\n";
    text += Setting("ButtonVSize", std::to_string(kPlainButtonHeight));
    text += "MenuNoFrames=1\nTwinScrollButtons=False\n";
    return text;
}

} // namespace E2e
