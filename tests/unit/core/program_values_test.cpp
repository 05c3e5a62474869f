#include "core/program_values.h"

#include <gtest/gtest.h>

TEST(ProgramValues, FoldersAndFilesHangOffTheProgramFolder) {
    ProgramValues values;
    SetProgramFolder(values, "C:\\Apps\\Tarvex");
    EXPECT_EQ(values.ProgramFolder, "C:\\Apps\\Tarvex");
    EXPECT_EQ(values.ThemesFolder, "C:\\Apps\\Tarvex\\Themes");
    EXPECT_EQ(values.HelpFolder, "C:\\Apps\\Tarvex\\Help\\Tv2");
    EXPECT_EQ(values.AutoInstallFolder, "C:\\Apps\\Tarvex\\AutoInstall");
    EXPECT_EQ(values.ExportFolder, "C:\\Apps\\Tarvex\\Export");
    EXPECT_EQ(SettingsFile(values), "C:\\Apps\\Tarvex\\Helmora.ini");
    EXPECT_EQ(MenuFile(values), "C:\\Apps\\Tarvex\\TvMenus.ini");
}

TEST(ProgramValues, ARootFolderGivesSingleBackslashesAndNonLatinFoldersStayAsTheyAre) {
    ProgramValues values;
    SetProgramFolder(values, "D:\\");
    EXPECT_EQ(SettingsFile(values), "D:\\Helmora.ini");
    EXPECT_EQ(values.ThemesFolder, "D:\\Themes");
    SetProgramFolder(values, "C:\\Программы\\Tarvex");
    EXPECT_EQ(values.ExportFolder, "C:\\Программы\\Tarvex\\Export");
}
