#include "core/paths.h"

#include <gtest/gtest.h>

namespace {
std::string FakeCurrentDirectory(char drive) {
    if (drive == '\0')
        return "C:\\Work";
    if (drive == 'D' || drive == 'd')
        return "D:\\";
    return std::string(1, drive) + ":\\Other\\";
}
} // namespace

TEST(FolderOfPath, TakesTheTextUpToTheLastBackslashOrTheCurrentDirectoryOfTheDrive) {
    EXPECT_EQ(Paths::FolderOfPath("C:\\Tarvex\\tarvex2.exe", FakeCurrentDirectory), "C:\\Tarvex\\");
    EXPECT_EQ(Paths::FolderOfPath("\\\\server\\share\\a.ini", FakeCurrentDirectory), "\\\\server\\share\\");
    EXPECT_EQ(Paths::FolderOfPath("Helmora.ini", FakeCurrentDirectory), "C:\\Work\\");
    EXPECT_EQ(Paths::FolderOfPath("D:Helmora.ini", FakeCurrentDirectory), "D:\\");
    EXPECT_EQ(Paths::FolderOfPath("e:menu.ini", FakeCurrentDirectory), "e:\\Other\\");
}
