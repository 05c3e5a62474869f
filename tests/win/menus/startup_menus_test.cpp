#include "core/message_box.h"
#include "menu_test_support.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/win/startup_menus.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

using MenuStore::StartupMenus;
using MenuTests::AnsweredBoxes;
using TestSupport::TempFolder;
using TestSupport::WriteBytes;

namespace {

const std::string kDefaultFile = "[MENUS]\r\nNAME-1=Main\r\n"
                                 "[MENU-1]\r\n"
                                 "LABEL-0=Programs\r\nTYPE-0=2\r\n"
                                 "PATH-0=C:\\WINNT\\Profiles\\Administrator\\Start Menu\\Programs\\\r\n"
                                 "ARG-0=C:\\WINNT\\Profiles\\All Users\\Start Menu\\Programs\\\r\n"
                                 "ICONPATH-0=C:\\WINNT\\System32\\shell32.dll,19\r\n"
                                 "LABEL-1=Accessories\r\nTYPE-1=2\r\n"
                                 "PATH-1=C:\\WINNT\\Profiles\\All Users\\Start Menu\\Programs\\Accessories\\\r\n"
                                 "ICONPATH-1=D:\\Icons\\tools.ico\r\n";

const std::string kSystemFolder = "C:\\windows\\system32";

ProgramFolders ThisMachine() {
    ProgramFolders folders;
    folders.Programs = "C:\\Users\\Ana\\Start Menu\\Programs\\";
    folders.CommonPrograms = "C:\\ProgramData\\Start Menu\\Programs\\";
    folders.Desktop = "C:\\Users\\Ana\\Desktop\\";
    return folders;
}

const MenuItemRec& ItemAt(const MenuTable& table, std::int32_t menu, std::int32_t position) {
    return table.pool[static_cast<std::size_t>(DataManager::FindItem(table, menu, position))];
}

StartupMenus LoadAtStartup(const TempFolder& dir, MenuTable& table, SettingsRec& settings) {
    return MenuStore::LoadMenusAtStartup(table, dir.path(), kSystemFolder, ThisMachine(), settings);
}

void ExpectTaskbarQuestion(const std::vector<MessageBoxes::Request>& requests) {
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].title, "Tarvex Initialization");
    EXPECT_EQ(requests[0].text, "Tarvex can automatically replace the Windows Taskbar...\n"
                                "Would you like this feature to be turned on by default?");
    EXPECT_EQ(requests[0].style, MessageBoxes::kYesNo);
}

} // namespace

TEST(StartupMenus, DefaultMenusAreAdaptedAndTheAnswerTurnsTheTaskbarReplacementOnOrLeavesIt) {
    TempFolder dir;
    WriteBytes(dir.File("DefMenu.ini"), kDefaultFile);
    MenuTable table;
    SettingsRec settings;
    {
        AnsweredBoxes no(MessageBoxes::kNo);
        EXPECT_EQ(LoadAtStartup(dir, table, settings), StartupMenus::DefaultMenus);
        EXPECT_FALSE(settings.TaskbarRunOnStartup);
    }
    AnsweredBoxes boxes(MessageBoxes::kYes);
    EXPECT_EQ(LoadAtStartup(dir, table, settings), StartupMenus::DefaultMenus);
    ExpectTaskbarQuestion(boxes.requests);
    EXPECT_TRUE(settings.TaskbarRunOnStartup);

    ASSERT_EQ(table.MenuCount(), 1);
    EXPECT_EQ(table.menus[1].NAME, "Main");
    const MenuItemRec& programs = ItemAt(table, 0, 0);
    EXPECT_EQ(programs.PATH, "C:\\Users\\Ana\\Start Menu\\Programs\\");
    EXPECT_EQ(programs.ARG, "C:\\ProgramData\\Start Menu\\Programs\\");
    EXPECT_EQ(programs.ICONPATH, "C:\\windows\\system32\\shell32.dll,19");
    const MenuItemRec& accessories = ItemAt(table, 0, 1);
    EXPECT_EQ(accessories.PATH, "C:\\ProgramData\\Start Menu\\Programs\\Accessories\\");
    EXPECT_EQ(accessories.ICONPATH, "D:\\Icons\\tools.ico") << "a path outside the old folders stays";
    EXPECT_FALSE(TestSupport::FileExists(dir.File("TvMenus.ini"))) << "loading writes nothing";
}

TEST(StartupMenus, TheMenuFileIsTakenAsItIsWhenItExists) {
    TempFolder dir;
    WriteBytes(dir.File("DefMenu.ini"), kDefaultFile);
    WriteBytes(dir.File("TvMenus.ini"), "[MENUS]\r\nNAME-1=Mine\r\nNAME-2=Other\r\n[MENU-1]\r\n"
                                        "LABEL-0=Old\r\nPATH-0=C:\\WINNT\\System32\\calc.exe\r\n"
                                        "ICONPATH-0=C:\\WINNT\\System32\\calc.exe\r\n");
    AnsweredBoxes boxes(MessageBoxes::kYes);
    MenuTable table;
    SettingsRec settings;

    EXPECT_EQ(LoadAtStartup(dir, table, settings), StartupMenus::MenuFile);
    EXPECT_TRUE(boxes.requests.empty());
    EXPECT_FALSE(settings.TaskbarRunOnStartup);
    ASSERT_EQ(table.MenuCount(), 2);
    EXPECT_EQ(table.menus[1].NAME, "Mine");
    EXPECT_EQ(ItemAt(table, 0, 0).ICONPATH, "C:\\WINNT\\System32\\calc.exe") << "the user's own file is not adapted";
}

TEST(StartupMenus, WithBothFilesMissingTheProblemIsToldLineForLineAndNoMenusStay) {
    TempFolder dir;
    AnsweredBoxes boxes(MessageBoxes::kOk);
    MenuTable table;
    DataManager::AddMenu(table);
    DataManager::AppendItem(table, 0);
    SettingsRec settings;

    EXPECT_EQ(LoadAtStartup(dir, table, settings), StartupMenus::None);
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].title, "Tarvex Initialization Problem");
    EXPECT_EQ(boxes.requests[0].style, MessageBoxes::kCritical);
    EXPECT_EQ(boxes.requests[0].text, "WARNING! Tarvex could not find the TvMenus.ini and DefMenu.ini\n"
                                      "files in the current working folder!\n"
                                      "\n"
                                      "This usually means that the shortcut you're using to run Tarvex\n"
                                      "points to the wrong 'Start in' location OR that instead of creating a shortcut\n"
                                      "to Tarvex in your startup folder you actually moved the executable itself.");
    EXPECT_EQ(table.MenuCount(), 0);
    EXPECT_EQ(DataManager::LastItemPosition(table, 0), kNoItem);
    EXPECT_FALSE(settings.TaskbarRunOnStartup);
}
