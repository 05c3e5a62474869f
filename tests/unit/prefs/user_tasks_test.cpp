// The user tasks' rules on the Tasklist and Systray page: "NewItem" added up to ten, the
// eleventh refused with the reason, deleting moves the later ones up.
#include "prefs/user_tasks.h"

#include <gtest/gtest.h>

using namespace Preferences;

TEST(UserTasks, TenAtMostAddedAsNewItemAndDeletingMovesTheRestUp) {
    SettingsRec settings;
    for (int i = 0; i < 10; ++i)
        ASSERT_FALSE(AddUserTask(settings)) << i;
    std::optional<std::string> refused = AddUserTask(settings);
    ASSERT_TRUE(refused);
    EXPECT_NE(refused->find("eleventh"), std::string::npos);
    EXPECT_EQ(settings.NoOfUserTasks(), 10);
    EXPECT_EQ(UserTaskListName(settings.UserTasks[9]), "NewItem");

    settings.UserTasks[3].TaskName = "Fourth";
    settings.UserTasks[4].TaskName.clear();
    EXPECT_FALSE(DeleteUserTask(settings, 10));
    EXPECT_FALSE(DeleteUserTask(settings, -1));
    ASSERT_TRUE(DeleteUserTask(settings, 2));
    EXPECT_EQ(settings.UserTasks[2].TaskName, "Fourth");
    EXPECT_EQ(UserTaskListName(settings.UserTasks[3]), "(no name)");
    EXPECT_FALSE(AddUserTask(settings)) << "room for one again";
}
