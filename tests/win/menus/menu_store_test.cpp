#include "core/message_box.h"
#include "core/win/ini_handler.h"
#include "menu_test_support.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/menu_file.h"
#include "menus/win/menu_store.h"
#include "core/win/profile_rewrite.h"
#include "support/key_by_key.h"
#include "support/temp_folder.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

using MenuTests::AnsweredBoxes;
using TestSupport::FileExists;
using TestSupport::ReadBytes;
using TestSupport::TempFolder;
using TestSupport::WriteBytes;

namespace {

// A hand-edited file: menu 2 is only a gap, keys in lower case, item 1 of menu 1
// missing, and a [MENU-9] that [MENUS] does not name.
const std::string kHandEditedFile = "[MENUS]\r\n"
                                    "name-1=Main\r\n"
                                    "NAME-3=Tools\r\n"
                                    "inherit-3=True\r\n"
                                    "THEME-3=blue.wst\r\n"
                                    "\r\n"
                                    "[MENU-1]\r\n"
                                    "label-0=Editor\r\n"
                                    "PATH-0=C:\\Windows\\notepad.exe\r\n"
                                    "LABEL-2=Calculator\r\n"
                                    "hotkey-2=Ctrl+K\r\n"
                                    "\r\n"
                                    "[menu-3]\r\n"
                                    "LABEL-0=Documents\r\n"
                                    "TYPE-0=2\r\n"
                                    "RUNSTATE-0=3\r\n"
                                    "FILETYPEMASK-0=.txt.doc\r\n"
                                    "\r\n"
                                    "[MENU-9]\r\n"
                                    "LABEL-0=Ghost\r\n";

// A run in which no save has failed yet.
SaveNotices::Told told;

const MenuItemRec& ItemAt(const MenuTable& table, std::int32_t menu, std::int32_t position) {
    return table.pool[static_cast<std::size_t>(DataManager::FindItem(table, menu, position))];
}

MenuTable LoadedTable(const std::string& path) {
    MenuTable table;
    MenuStore::LoadMenuFile(table, path);
    return table;
}

} // namespace

TEST(MenuFile, AHandEditedFileRoundTripsThroughTheProfileFunctions) {
    TempFolder dir;
    const std::string file = MenuStore::MenuFilePath(dir.path());
    WriteBytes(file, kHandEditedFile);
    AnsweredBoxes boxes(MessageBoxes::kOk);

    MenuTable table;
    ASSERT_TRUE(MenuStore::LoadMenuFile(table, file));
    ASSERT_EQ(table.MenuCount(), 3);
    EXPECT_EQ(table.menus[1].NAME, "Main");
    EXPECT_EQ(table.menus[2], MenuRec{}) << "a menu number named nowhere is an empty menu";
    EXPECT_EQ(table.menus[3].NAME, "Tools");
    EXPECT_TRUE(table.menus[3].INHERIT);
    ASSERT_EQ(DataManager::LastItemPosition(table, 0), 2);
    EXPECT_EQ(ItemAt(table, 0, 0).PATH, "C:\\Windows\\notepad.exe");
    EXPECT_EQ(ItemAt(table, 0, 2).HOTKEY, "Ctrl+K");
    EXPECT_EQ(ItemAt(table, 2, 0).FILETYPEMASK, ".txt.doc");

    // Characters that no ANSI code page holds all of must survive the save.
    const std::string label = "Блокнот 記事本 Ελληνικά";
    const std::string path = "C:\\Users\\Zoë\\Документы\\";
    table.pool[static_cast<std::size_t>(DataManager::FindItem(table, 0, 0))].LABEL = label;
    table.pool[static_cast<std::size_t>(DataManager::FindItem(table, 2, 0))].PATH = path;

    ASSERT_TRUE(MenuStore::SaveMenuFile(table, dir.path(), told));
    EXPECT_FALSE(FileExists(ProfileRewrite::TemporaryFileFor(file)));
    EXPECT_EQ(ReadBytes(file).substr(0, 2), MenuTests::kUtf16Bom);

    const MenuTable reloaded = LoadedTable(file);
    EXPECT_EQ(DataManager::SaveMenuFile(reloaded), DataManager::SaveMenuFile(table));
    EXPECT_EQ(ItemAt(reloaded, 0, 0).LABEL, label);
    EXPECT_EQ(ItemAt(reloaded, 2, 0).PATH, path);
    EXPECT_TRUE(boxes.requests.empty());
}

TEST(MenuFile, SavingGivesTheBytesThatDeletingAndWritingKeyByKeyGives) {
    TempFolder dir;
    const std::string file = MenuStore::MenuFilePath(dir.path());
    WriteBytes(file, kHandEditedFile);
    MenuTable table = LoadedTable(file);
    DataManager::DeleteItem(table, 0, 1);
    table.menus[3].NAME = "Werkzeuge – Ärger";
    // Values the profile functions might treat specially.
    MenuItemRec& item = table.pool[static_cast<std::size_t>(DataManager::FindItem(table, 2, 0))];
    item.LABEL = "  padded  ";
    item.ARG = "/x=1 /y=\"two words\"";
    item.STARTPATH = "\"quoted\"";
    item.HOTKEY = ";semicolon";

    ASSERT_TRUE(MenuStore::SaveMenuFile(table, dir.path(), told));

    const std::string reference = dir.File("reference.ini");
    TestSupport::WriteKeyByKey(reference, DataManager::SaveMenuFile(table));
    EXPECT_EQ(ReadBytes(file), ReadBytes(reference));
    EXPECT_TRUE(IniHandler::ReadWholeSection("MENU-9", file).empty()) << "sections the table does not have are gone";
}

TEST(MenuFile, TheFirstSaveCreatesTheFileInAFolderWithoutOne) {
    TempFolder dir;
    MenuTable table;
    const std::int32_t number = DataManager::AddMenu(table);
    table.pool[static_cast<std::size_t>(DataManager::AppendItem(table, number - 1))].LABEL = "First";
    AnsweredBoxes boxes(MessageBoxes::kOk);

    ASSERT_TRUE(MenuStore::SaveMenuFile(table, dir.path() + "\\", told));
    const std::string file = dir.File("TvMenus.ini");
    EXPECT_EQ(ReadBytes(file).substr(0, 2), MenuTests::kUtf16Bom);
    EXPECT_EQ(ItemAt(LoadedTable(file), 0, 0).LABEL, "First");
    EXPECT_TRUE(boxes.requests.empty());
}

TEST(MenuFile, AFailedSaveKeepsTheOldFileAndSaysSo) {
    TempFolder dir;
    const std::string file = MenuStore::MenuFilePath(dir.path());
    WriteBytes(file, kHandEditedFile);
    MenuTable table = LoadedTable(file);
    DataManager::DeleteItem(table, 0, 0);
    AnsweredBoxes boxes(MessageBoxes::kOk);
    SaveNotices::Told thisRun;

    {
        // Another program holds the file open and shares it with no one.
        Win::UniqueFileHandle locked(::CreateFileW(Win::Widen(file).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                                   FILE_ATTRIBUTE_NORMAL, nullptr));
        ASSERT_TRUE(locked);
        EXPECT_FALSE(MenuStore::SaveMenuFile(table, dir.path(), thisRun));
    }
    EXPECT_EQ(ReadBytes(file), kHandEditedFile);
    EXPECT_FALSE(FileExists(ProfileRewrite::TemporaryFileFor(file)));
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].title, "Tarvex Warning");
    EXPECT_EQ(boxes.requests[0].style, MessageBoxes::kExclamation);
    EXPECT_NE(boxes.requests[0].text.find(file), std::string::npos) << boxes.requests[0].text;
    EXPECT_NE(boxes.requests[0].text.find("left as it was"), std::string::npos) << boxes.requests[0].text;

    // The name of the temporary file is taken by a folder: nothing can be written, and
    // only a run that has not told of a failed menu save yet says so.
    const std::string temp = ProfileRewrite::TemporaryFileFor(file);
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(temp).c_str(), nullptr));
    EXPECT_FALSE(MenuStore::SaveMenuFile(table, dir.path(), thisRun));
    EXPECT_EQ(boxes.requests.size(), 1u) << "told once a run";
    SaveNotices::Told nextRun;
    EXPECT_FALSE(MenuStore::SaveMenuFile(table, dir.path(), nextRun));
    EXPECT_EQ(ReadBytes(file), kHandEditedFile);
    ASSERT_EQ(boxes.requests.size(), 2u);
    EXPECT_NE(boxes.requests[1].text.find(temp), std::string::npos) << boxes.requests[1].text;

    // Once the obstacles are gone the same table saves.
    ASSERT_TRUE(::RemoveDirectoryW(Win::Widen(temp).c_str()));
    EXPECT_TRUE(MenuStore::SaveMenuFile(table, dir.path(), thisRun));
    EXPECT_EQ(ItemAt(LoadedTable(file), 0, 0).LABEL, "");
    EXPECT_EQ(ItemAt(LoadedTable(file), 0, 1).LABEL, "Calculator");
}

TEST(MenuFile, ABadValueEndsTheLoadWithAWarningThatNamesFileAndKey) {
    TempFolder dir;
    const std::string file = dir.File("TvMenus.ini");
    WriteBytes(file, "[MENUS]\r\nNAME-1=Main\r\nNAME-2=Second\r\n"
                     "[MENU-1]\r\nLABEL-0=Kept\r\nLABEL-1=Also kept\r\nTYPE-1=300\r\nPATH-1=C:\\never.exe\r\n"
                     "[MENU-2]\r\nLABEL-0=Never read\r\n");
    AnsweredBoxes boxes(MessageBoxes::kOk);

    MenuTable table;
    EXPECT_FALSE(MenuStore::LoadMenuFile(table, file));
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].title, "Tarvex Warning");
    EXPECT_EQ(boxes.requests[0].style, MessageBoxes::kExclamation);
    EXPECT_NE(boxes.requests[0].text.find(file), std::string::npos) << boxes.requests[0].text;
    EXPECT_NE(boxes.requests[0].text.find("TYPE-1=300"), std::string::npos) << boxes.requests[0].text;

    EXPECT_EQ(table.MenuCount(), 2);
    EXPECT_EQ(ItemAt(table, 0, 0).LABEL, "Kept");
    EXPECT_EQ(ItemAt(table, 0, 1).LABEL, "Also kept");
    EXPECT_EQ(ItemAt(table, 0, 1).PATH, "");
    EXPECT_EQ(DataManager::LastItemPosition(table, 1), kNoItem);

    // A missing file is no menus and no message.
    EXPECT_TRUE(MenuStore::LoadMenuFile(table, dir.File("Missing.ini")));
    EXPECT_EQ(table.MenuCount(), 0);
    EXPECT_EQ(boxes.requests.size(), 1u);
}
