#include "menuwindow/cascade.h"

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

TEST(CascadeList, RecordsAreNumberedFrom1AndGetFreshIdentifiers) {
    CascadeList list;
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Append(), 1);
    EXPECT_EQ(list.Append(), 2);
    EXPECT_EQ(list.At(1).id, 1);
    EXPECT_EQ(list.At(2).id, 2);
    EXPECT_EQ(list.IndexOf(2), 2);
    EXPECT_EQ(list.IndexOf(7), 0);
    EXPECT_EQ(list.Find(7), nullptr);
}

TEST(CascadeList, RemovingMovesTheLaterRecordsDownAndFreesTheIdentifier) {
    CascadeList list;
    list.Append();
    list.Append();
    list.Append();
    list.At(3).level = 2;
    list.Remove(1);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.At(1).id, 2);
    EXPECT_EQ(list.At(2).id, 3);
    EXPECT_EQ(list.At(2).level, 2);
    EXPECT_EQ(list.Find(3)->level, 2);
    EXPECT_EQ(list.FreeId(), 1);
    EXPECT_EQ(list.At(list.Append()).id, 1);
    list.Remove(0);
    list.Remove(9);
    EXPECT_EQ(list.Count(), 3);
}

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
    folder.path = "D:\\Games";
    EXPECT_EQ(MenuTitle(folder, menus), "Games");
}

TEST(FolderRequestOf, FoldersEndInABackslashAndTheFilterIsKnown) {
    CascadeRec record;
    record.kind = kItemFolderPath;
    record.path = "C:\\Tools";
    record.path2 = "D:\\More";
    record.menuType = 3;
    record.fileTypeMask = ".txt";
    record.skip = 12;
    FolderListRequest request = FolderRequestOf(record);
    EXPECT_EQ(request.folder, "C:\\Tools\\");
    EXPECT_EQ(request.secondFolder, "D:\\More\\");
    EXPECT_EQ(request.filter, kFilterUserMask);
    EXPECT_EQ(request.mask, ".txt");
    EXPECT_EQ(request.skip, 12);

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
