#include "menuwindow/layout/item_list.h"

#include "fake_measure.h"
#include "menus/data_manager.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuRec Named(const char* name) {
    MenuRec menu;
    menu.NAME = name;
    return menu;
}

MenuTable TwoMenus() {
    MenuTable table;
    table.menus.push_back(Named("Programs"));
    table.menus.push_back(Named("Tools"));
    for (const char* label : {"Editor", "Calculator"}) {
        std::int32_t slot = DataManager::AppendItem(table, 0);
        table.pool[static_cast<std::size_t>(slot)].LABEL = label;
    }
    std::int32_t slot = DataManager::AppendItem(table, 1);
    MenuItemRec& item = table.pool[static_cast<std::size_t>(slot)];
    item.LABEL = "Disk";
    item.TYPE = kItemFolderPath;
    item.PATH = "C:\\";
    item.ARG = "D:\\";
    item.HOTKEY = "d";
    return table;
}

DisplayEntry Entry(std::uint8_t type, std::string path, std::string iconPath = "") {
    DisplayEntry entry;
    entry.TYPE = type;
    entry.PATH = std::move(path);
    entry.ICONPATH = std::move(iconPath);
    return entry;
}

} // namespace

TEST(MenuItemsList, TheMenusItemsInChainOrderAndNoneForNoMenu) {
    MenuTable table = TwoMenus();
    DisplayList programs = MenuItemsList(table, 1);
    ASSERT_EQ(programs.Count(), 2);
    EXPECT_EQ(programs.Item(1).LABEL, "Editor");
    EXPECT_EQ(programs.Item(2).LABEL, "Calculator");
    DisplayList tools = MenuItemsList(table, 2);
    const DisplayEntry& disk = tools.Item(1);
    EXPECT_EQ(disk.TYPE, kItemFolderPath);
    EXPECT_EQ(disk.ARG, "D:\\");
    EXPECT_EQ(disk.HOTKEY, "d");
    for (int number : {0, 3, -1})
        EXPECT_EQ(MenuItemsList(table, number).Count(), 0) << number;
}

TEST(FolderList, KeepsTheListingsCountsWithTheMoreItemFrom1) {
    FolderListing listing;
    listing.entries.resize(3);
    listing.folderCount = 2;
    listing.moreIndex = 0;
    DisplayList list = FolderList(listing);
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.folderCount, 2);
    EXPECT_EQ(list.moreItem, 1);
    FolderListing empty;
    empty.entries.resize(1);
    empty.empty = true;
    DisplayList none = FolderList(empty);
    EXPECT_TRUE(none.empty);
    EXPECT_EQ(none.moreItem, 0);
}

TEST(MeasureItems, TextWidthsArrowsAndHotKeys) {
    DisplayList list = MenuItemsList(TwoMenus(), 2);
    list.entries.push_back(Entry(kItemFilename, "a.exe"));
    list.entries.back().LABEL = "Run";
    list.entries.push_back(list.entries.back());
    list.entries.back().HOTKEY = "0"; // what the menu file writes for none
    std::vector<ItemMeasure> measures = MeasureItems(list, FakeMeasure{});
    ASSERT_EQ(measures.size(), 3u);
    EXPECT_EQ(measures[0], (ItemMeasure{4 * kButtonCharWidth, true, true, kButtonCharWidth}));
    EXPECT_EQ(measures[1], (ItemMeasure{3 * kButtonCharWidth, false, false, 0}));
    EXPECT_EQ(measures[2], measures[1]) << "\"0\" is no hot key";
    EXPECT_FALSE(HasHotkey("0"));
    EXPECT_FALSE(HasHotkey(""));
    EXPECT_TRUE(HasHotkey("Q"));
    EXPECT_EQ(HotkeyLabel("q"), "Q") << "the key is shown upper-cased";
    EXPECT_EQ(HotkeyLabel("F5"), "F5");
}

TEST(IconSourceOf, IconPathWithAndWithoutAnIndexElseTheShellsIcon) {
    EXPECT_EQ(IconSourceOf(Entry(0, "a.exe", "shell32.dll,3")), (IconSource{"shell32.dll", 3, false}));
    EXPECT_EQ(IconSourceOf(Entry(0, "a.exe", "moricons.dll, -12 ")), (IconSource{"moricons.dll", -12, false}));
    EXPECT_EQ(IconSourceOf(Entry(0, "", "\"C:\\My, Icons\\x.dll\",2")), (IconSource{"C:\\My, Icons\\x.dll", 2, false}));
    EXPECT_EQ(IconSourceOf(Entry(0, "", "C:\\My, Icons\\x.ico")), (IconSource{"C:\\My, Icons\\x.ico", 0, false}))
        << "a comma inside the path is not an index";
    EXPECT_EQ(IconSourceOf(Entry(kItemFolderPath, "C:\\Tools\\")), (IconSource{"C:\\Tools\\", 0, true}));
    EXPECT_EQ(IconSourceOf(Entry(kItemCommandName, "*5")), std::nullopt);
    EXPECT_EQ(IconSourceOf(Entry(kItemMenuName, "Tools")), std::nullopt);
    EXPECT_EQ(IconSourceOf(Entry(kItemFilename, "")), std::nullopt);
    // What the icon chooser writes reads back as the file and index chosen.
    for (const IconSource& chosen : {IconSource{"C:\\x.dll", 4}, IconSource{"C:\\x.ico", 0},
                                     IconSource{"C:\\a,3", 0}, IconSource{"C:\\My, Icons\\x.dll", -2}}) {
        EXPECT_EQ(IconSourceOf(Entry(0, "", IconPathText(chosen.file, chosen.index))), chosen) << chosen.file;
    }
}
