#include "core/program_folders.h"

#include <gtest/gtest.h>

TEST(ProgramFolders, TakesTheShellValuesEndingInOneBackslash) {
    ProgramFolders folders = ResolveProgramFolders(
        {"C:\\Users\\Ann\\Start Menu\\Programs", "C:\\ProgramData\\Programs\\", "C:\\Users\\Ann\\Desktop"},
        "C:\\Windows", true);
    EXPECT_EQ(folders.Programs, "C:\\Users\\Ann\\Start Menu\\Programs\\");
    EXPECT_EQ(folders.CommonPrograms, "C:\\ProgramData\\Programs\\");
    EXPECT_EQ(folders.Desktop, "C:\\Users\\Ann\\Desktop\\");
}

TEST(ProgramFolders, FallBackToTheProfilesFoldersOnNTAndToTheOneStartMenuOnWindows9x) {
    ProgramFolders nt = ResolveProgramFolders({"", "", ""}, "C:\\WINNT", true);
    EXPECT_EQ(nt.Programs, "C:\\WINNT\\profiles\\administrator\\Start menu\\Programs\\");
    EXPECT_EQ(nt.CommonPrograms, "C:\\WINNT\\profiles\\All Users\\Start menu\\Programs\\");
    EXPECT_EQ(nt.Desktop, "C:\\WINNT\\desktop\\");
    ProgramFolders old = ResolveProgramFolders({"D:\\Menu", "", ""}, "C:\\WINDOWS\\", false);
    EXPECT_EQ(old.Programs, "D:\\Menu\\");
    EXPECT_EQ(old.CommonPrograms, "C:\\WINDOWS\\Start menu\\Programs\\");
}
