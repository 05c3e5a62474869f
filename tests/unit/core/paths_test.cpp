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

TEST(FolderOfPath, TakesTheTextUpToTheLastBackslash) {
    EXPECT_EQ(Paths::FolderOfPath("C:\\Program Files\\Tarvex\\tarvex2.exe", FakeCurrentDirectory),
              "C:\\Program Files\\Tarvex\\");
    EXPECT_EQ(Paths::FolderOfPath("C:\\Tarvex\\", FakeCurrentDirectory), "C:\\Tarvex\\");
    EXPECT_EQ(Paths::FolderOfPath("\\\\server\\share\\a.ini", FakeCurrentDirectory), "\\\\server\\share\\");
}

TEST(FolderOfPath, BareNamesUseTheCurrentDirectoryOfTheirDrive) {
    EXPECT_EQ(Paths::FolderOfPath("Helmora.ini", FakeCurrentDirectory), "C:\\Work\\");
    EXPECT_EQ(Paths::FolderOfPath("D:Helmora.ini", FakeCurrentDirectory), "D:\\");
    EXPECT_EQ(Paths::FolderOfPath("e:menu.ini", FakeCurrentDirectory), "e:\\Other\\");
    EXPECT_EQ(Paths::FolderOfPath("", FakeCurrentDirectory), "C:\\Work\\");
}

TEST(PathsJoin, PutsExactlyOneBackslashBetween) {
    EXPECT_EQ(Paths::Join("C:\\Tarvex", "Themes"), "C:\\Tarvex\\Themes");
    EXPECT_EQ(Paths::Join("C:\\Tarvex\\", "\\Helmora.ini"), "C:\\Tarvex\\Helmora.ini");
    EXPECT_EQ(Paths::Join("C:\\", "x"), "C:\\x");
}
