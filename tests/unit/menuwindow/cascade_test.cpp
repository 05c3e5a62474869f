#include "menuwindow/interaction/cascade.h"

#include "print_helpers.h"

#include <gtest/gtest.h>

using namespace MenuWindow;

namespace {

MenuRec Named(const char* name) {
    MenuRec menu;
    menu.NAME = name;
    return menu;
}

} // namespace

TEST(MenuTitle, TheCaptionElseTheMenusNameElseTheFoldersName) {
    MenuTable menus;
    menus.menus.push_back(Named("Programs"));
    CascadeRec record;
    record.kind = kItemMenuName;
    record.menuNumber = 1;
    record.path = "Programs";
    EXPECT_EQ(MenuTitle(record, menus), "Programs");
    record.caption = "Start";
    EXPECT_EQ(MenuTitle(record, menus), "Start");

    CascadeRec missing;
    missing.kind = kItemMenuName;
    missing.menuNumber = 0;
    missing.path = "Gone";
    EXPECT_EQ(MenuTitle(missing, menus), "Gone") << "an empty menu still says what was asked for";

    CascadeRec folder;
    folder.kind = kItemFolderPath;
    folder.path = "C:\\Program Files\\Tools\\";
    EXPECT_EQ(MenuTitle(folder, menus), "Tools");

    CascadeRec tasks;
    tasks.kind = kItemTaskList;
    EXPECT_EQ(MenuTitle(tasks, menus), "Tasklist");
}

TEST(FolderRequestOf, FoldersEndInABackslashAndTheFilterIsKnown) {
    CascadeRec record;
    record.kind = kItemFolderPath;
    record.path = "C:\\Tools";
    record.path2 = "D:\\More";
    record.menuType = 3;
    FolderListRequest request = FolderRequestOf(record);
    EXPECT_EQ(request.folder, "C:\\Tools\\");
    EXPECT_EQ(request.secondFolder, "D:\\More\\");
    EXPECT_EQ(request.filter, kFilterUserMask);
    record.menuType = 7;
    EXPECT_EQ(FolderRequestOf(record).filter, kFilterAllFiles);
    record.path = "C:\\Tools\\";
    EXPECT_EQ(FolderRequestOf(record).folder, "C:\\Tools\\");
}

TEST(FolderRequestOf, AHotspotsMenuListsOneFolder) {
    CascadeRec record;
    record.kind = kItemFolderPath;
    record.openedByHotspot = true;
    record.path = "C:\\Tools\\";
    record.path2 = "notepad.exe";
    EXPECT_EQ(FolderRequestOf(record).secondFolder, "");
}

TEST(CascadeList, AMenuClosesWithEveryMenuBelowIt) {
    CascadeList list;
    for (int parent : {0, 1, 2, 0, 4, 3}) // ids 1..6: 1 -> 2 -> 3 -> 6, and 4 -> 5
        list.At(list.Append()).parentId = parent;
    EXPECT_EQ(list.WithSubMenus(2), (std::vector<int>{2, 3, 6}));
    EXPECT_EQ(list.WithSubMenus(4), (std::vector<int>{4, 5}));
    EXPECT_EQ(list.WithSubMenus(9), std::vector<int>{});
    EXPECT_EQ(list.SubMenuOf(1), 2);
    EXPECT_EQ(list.SubMenuOf(6), 0);
    EXPECT_EQ(list.SubMenuOf(0), 0) << "0 is no menu, though hotspot menus name it as their parent";
}
