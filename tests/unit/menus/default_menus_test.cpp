#include "menus/default_menus.h"

#include "menus/data_manager.h"
#include "menus/menu_file.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

using namespace DataManager;

namespace {

const std::string kUser = "C:\\WINNT\\Profiles\\Administrator\\Start Menu\\Programs\\";
const std::string kCommon = "C:\\WINNT\\Profiles\\All Users\\Start Menu\\Programs\\";

MenuItemRec& Add(MenuTable& table, std::uint8_t type, const std::string& path, const std::string& icon,
                 const std::string& arg = "") {
    MenuItemRec& item = table.pool[AppendItem(table, 0)];
    item.TYPE = type;
    item.PATH = path;
    item.ICONPATH = icon;
    item.ARG = arg;
    return item;
}

} // namespace

TEST(DefaultMenus, AdaptsLeadingPrefixesOfTheirOwnFieldsWithoutRegardToCase) {
    MenuTable table;
    Add(table, 2, kUser + "Games\\", "c:\\winnt\\SYSTEM32\\shell32.dll,24", kCommon);
    Add(table, 0, "c:\\winnt\\profiles\\all users\\start menu\\programs\\a.lnk", kUser + "i.ico", kCommon);
    Add(table, 0, "C:\\WINNT\\System32\\calc.exe", "X" + kCommon);
    DefaultMenus::AdaptPaths(table, ProgramFolders{"D:\\U\\", "D:\\C", ""}, "D:\\Windows\\System32");
    EXPECT_EQ(table.pool[1].PATH, "D:\\U\\Games\\");
    EXPECT_EQ(table.pool[1].ICONPATH, "D:\\Windows\\System32\\shell32.dll,24");
    EXPECT_EQ(table.pool[1].ARG, "D:\\C\\"); // a folder item's second folder
    EXPECT_EQ(table.pool[2].PATH, "D:\\C\\a.lnk");
    EXPECT_EQ(table.pool[2].ICONPATH, kUser + "i.ico"); // icons adapt to the system folder only
    EXPECT_EQ(table.pool[2].ARG, kCommon);              // arguments of other items stay
    EXPECT_EQ(table.pool[3].PATH, "C:\\WINNT\\System32\\calc.exe");
    EXPECT_EQ(table.pool[3].ICONPATH, "X" + kCommon);
}

// Canonical, every item can work, and every path of it points at this machine once adapted.
TEST(DefaultMenus, TheShippedFileIsCanonicalAndEveryItemCanWork) {
    std::ifstream in(std::filesystem::path(__FILE__).parent_path() / "../../../resources/DefMenu.ini",
                     std::ios::binary);
    std::stringstream file;
    file << in.rdbuf();
    std::string text;
    for (std::string line; std::getline(file, line);) {
        EXPECT_TRUE(std::all_of(line.begin(), line.end(), [](char c) { return (c >= ' ' && c < 127) || c == '\r'; }));
        if (line.ends_with('\r'))
            line.pop_back();
        if (!line.empty()) // blank lines only make it readable
            text += line + "\n";
    }
    MenuTable table;
    ASSERT_TRUE(LoadMenuFile(table, ReaderOf(text)).complete);
    EXPECT_EQ(TextOf(SaveMenuFile(table)), text);

    std::set<std::string> names, commands;
    for (std::int32_t i = 1; i <= table.MenuCount(); ++i)
        EXPECT_TRUE(names.insert(table.menus[i].NAME).second);
    for (const MenuItemRec& item : table.pool) {
        EXPECT_TRUE(item.TYPE <= kItemTaskList && item.owner != kFreeSlot);
        EXPECT_TRUE(item.TYPE != kItemMenuName || names.contains(item.PATH)) << item.LABEL;
        if (item.TYPE == kItemCommandName && commands.insert(item.PATH).second && item.PATH.starts_with('*')) {
            const int code = std::stoi(item.PATH.substr(1)); // codes 3 to 6 do not exist
            EXPECT_TRUE(code <= 2 || (code >= 7 && code <= 42) || (code >= 100 && code <= 125)) << item.LABEL;
        }
    }
    DefaultMenus::AdaptPaths(table, ProgramFolders{"D:\\U\\", "D:\\C\\", ""}, "D:\\Windows\\System32");
    for (const MenuItemRec& item : table.pool)
        for (const std::string* path : {&item.PATH, &item.ARG, &item.ICONPATH})
            EXPECT_EQ(path->find("WINNT"), std::string::npos) << *path << " was not adapted";
}
