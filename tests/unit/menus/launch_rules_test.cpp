#include "menus/launch_rules.h"

#include <gtest/gtest.h>

using namespace LaunchRules;

TEST(LaunchRules, AppletsAreCplPathsNotAlreadyStartedByRundll32) {
    struct Case {
        const char* path;
        bool applet;
    };
    for (const Case& c : {Case{"C:\\WINNT\\System32\\MAIN.CPL", true}, Case{"desk.cpl", true},
                          Case{"C:\\Windows\\rundll32.exe shell32.dll,Control_RunDLL x.cpl", false},
                          Case{"C:\\cpl\\notes.txt", false}, Case{"cpl", false}, Case{"", false}})
        EXPECT_EQ(IsControlPanelApplet(c.path), c.applet) << c.path;
    EXPECT_EQ(AppletCommandLine("C:\\WINNT\\System32\\MAIN.CPL"),
              "rundll32.exe shell32.dll,Control_RunDLL C:\\WINNT\\System32\\MAIN.CPL");
}

TEST(LaunchRules, AProgramStartsInItsOwnFolderUnlessTheItemNamesOne) {
    EXPECT_EQ(StartFolderFor("", "C:\\Tools\\a.exe"), "C:\\Tools\\");
    EXPECT_EQ(StartFolderFor("", "a.exe"), "\\");
    EXPECT_EQ(StartFolderFor("", "\\\\server\\share\\b.exe"), "\\\\server\\share\\");
    EXPECT_EQ(StartFolderFor("D:\\Work", "C:\\Tools\\a.exe"), "D:\\Work");
}

TEST(LaunchRules, RunStatesBecomeShowCommands) {
    EXPECT_EQ(ShowCommandFor(0), 1); // normal
    EXPECT_EQ(ShowCommandFor(1), 2); // minimised
    EXPECT_EQ(ShowCommandFor(2), 3); // maximised
}

TEST(LaunchRules, FailedStartsGetTheirTextWithAFullStopAndTheLabelInTheTitle) {
    EXPECT_TRUE(StartFailed(32));
    EXPECT_TRUE(StartFailed(0));
    EXPECT_FALSE(StartFailed(33));
    EXPECT_EQ(ErrorTitle("Text Editor"), "Tarvex - Error running Text Editor");
    struct Case {
        std::intptr_t result;
        const char* text;
    };
    for (const Case& c : {Case{0, "Not enough system memory or corrupt program file."}, Case{2, "File not found."},
                          Case{6, "Seperate data segments are required for each task."},
                          Case{30, "DDE busy. Other DDE transactions were being processed."},
                          Case{32, "Required DLL was not found."}, Case{1, "Unknown error."},
                          Case{4, "Unknown error."}, Case{-5, "Unknown error."}})
        EXPECT_EQ(ErrorText(c.result), c.text) << c.result;
}

TEST(LaunchRules, CommandValuesNameAnInternalCodeOrACommandLine) {
    struct Case {
        const char* value;
        CommandValue parsed;
    };
    for (const Case& c : {
             Case{"*12", {true, 12, ""}},
             Case{"*", {true, 0, ""}},
             Case{"*abc", {true, 0, ""}},
             Case{"* 9", {true, 9, ""}},
             Case{"*12.5", {true, 12, ""}}, // half to even
             Case{"*13.5", {true, 14, ""}},
             Case{"*32767", {true, 32767, ""}},
             Case{"*99999", {true, std::nullopt, ""}},
             Case{"*-1", {true, -1, ""}},
             Case{"notepad.exe *12", {false, std::nullopt, "notepad.exe *12"}},
             Case{"", {false, std::nullopt, ""}},
         })
        EXPECT_EQ(ParseCommandValue(c.value), c.parsed) << c.value;
}

TEST(LaunchRules, OnlyPathsTheShellCanTakeAreHandedToIt) {
    EXPECT_TRUE(PathFitsTheShell(std::string(259, 'a')));
    EXPECT_FALSE(PathFitsTheShell(std::string(260, 'a')));
    EXPECT_FALSE(PathFitsTheShell(std::string(10000, 'a')));
    std::string omega = "\xCE\xA9"; // two bytes, one character
    std::string wide;
    for (int i = 0; i < 259; ++i)
        wide += omega;
    EXPECT_TRUE(PathFitsTheShell(wide)) << "characters count, not bytes";
    EXPECT_TRUE(PathFitsTheShell("https://example.org/" + std::string(2000, 'q')));
    EXPECT_FALSE(PathFitsTheShell("https://example.org/" + std::string(2100, 'q')));
}
