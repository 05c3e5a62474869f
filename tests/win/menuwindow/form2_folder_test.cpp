// Folder menus: the window lists a folder from disk through the folder-listing rules.
#include "menu_window_fixture.h"

#include "support/temp_folder.h"
#include "win/text_convert.h"

using namespace MenuWindowTests;

namespace {

MenuWindow::CascadeRec FolderRecord(const std::string& folder) {
    MenuWindow::CascadeRec record;
    record.kind = kItemFolderPath;
    record.path = folder; // without its backslash, as a hotspot's target may be written
    record.openedByHotspot = true;
    record.position = {150, 100};
    return record;
}

} // namespace

TEST_F(MenuWindowTest, AnEmptyFolderShowsTheSingleEntryEmpty) {
    TestSupport::TempFolder folder;
    Form2* form = Open(FolderRecord(folder.path()));
    ASSERT_TRUE(form);
    const MenuWindow::DisplayList& list = form->scene().list;
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Item(1).LABEL, "(Empty)");
    EXPECT_TRUE(list.empty);
    WindowPicture picture(form->hwnd());
    picture.Save("folder-empty");
    EXPECT_GT(picture.Count(MenuWindow::ItemInWindow(form->scene(), 1), kButtonTextColour), 0);
}

TEST_F(MenuWindowTest, AFolderListsItsSubFoldersFirstThenItsFiles) {
    settings.GenShowExtensions = false;
    TestSupport::TempFolder folder;
    TestSupport::WriteBytes(folder.File("b.txt"), "x");
    TestSupport::WriteBytes(folder.File("a.exe"), "x");
    ::CreateDirectoryW(Win::Widen(folder.File("Tools")).c_str(), nullptr);
    Form2* form = Open(FolderRecord(folder.path()));
    ASSERT_TRUE(form);
    const MenuWindow::DisplayList& list = form->scene().list;
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(list.Item(1).LABEL, "Tools");
    EXPECT_EQ(list.Item(1).TYPE, kItemFolderPath);
    EXPECT_EQ(list.Item(2).LABEL, "a");
    EXPECT_EQ(list.Item(3).LABEL, "b");
    EXPECT_TRUE(form->scene().measures[0].hasArrow) << "a sub-folder opens a sub-menu";
    EXPECT_FALSE(form->scene().measures[1].hasArrow);
    char title[64] = {};
    ::GetWindowTextA(form->hwnd(), title, 64);
    std::string expected = folder.path().substr(folder.path().find_last_of('\\') + 1);
    EXPECT_EQ(std::string(title), expected) << "a folder menu is named after its folder";
}
