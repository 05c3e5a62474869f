// The launcher against the real shell: programs of Unicode names, paths and arguments
// beyond every limit, and internal codes. A program item's arguments and start folder, a
// command line, and the box of a missing program are the end-to-end tests'.
#include "core/win/form1.h"
#include "menus/win/launcher.h"
#include "support/answered_message_boxes.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

using TestSupport::AnsweredMessageBoxes;
using TestSupport::FileExists;

std::string SystemFile(const char* name) {
    wchar_t folder[MAX_PATH];
    ::GetSystemDirectoryW(folder, MAX_PATH);
    return Win::Narrow(folder) + "\\" + name;
}

bool WaitForFile(const std::string& path) {
    for (int i = 0; i < 500 && !FileExists(path); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    return FileExists(path);
}

class LauncherTest : public ::testing::Test {
protected:
    Program program;
    TestSupport::TempFolder folder;
};

} // namespace

TEST_F(LauncherTest, AProgramStartsWithItsArgumentsInItsStartFolderEvenWithUnicodeNames) {
    std::string start = folder.File("Start \xC3\x9C\xCE\xA9"); // "Start ÜΩ"
    ASSERT_TRUE(::CreateDirectoryW(Win::Widen(start).c_str(), nullptr));
    std::string omega = start + "\\\xCE\xA9mega.exe"; // "Ωmega.exe": a program of a Unicode name
    ASSERT_TRUE(::CopyFileW(Win::Widen(SystemFile("cmd.exe")).c_str(), Win::Widen(omega).c_str(), FALSE));
    AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    Launcher::RunProgram(program, "Where", start, omega, "/c cd > started.txt", 0);
    EXPECT_TRUE(WaitForFile(start + "\\started.txt"));
    EXPECT_TRUE(boxes.requests.empty());
}

TEST_F(LauncherTest, HugeOrEmptyPathsAndArgumentsEndInABoxOrAStartNeverACrash) {
    AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    Launcher::RunProgram(program, "Long", "", std::string(32000, 'a') + ".exe", "", 0);
    Launcher::RunProgram(program, "Empty", "", "", "", 0);
    ASSERT_EQ(boxes.requests.size(), 2u);
    EXPECT_EQ(boxes.requests[0].title, "Tarvex - Error running Long");
    EXPECT_EQ(boxes.requests[0].text, "File not found.");
    EXPECT_EQ(boxes.requests[0].style, MessageBoxes::kExclamation);
    EXPECT_EQ(boxes.requests[1].title, "Tarvex - Error running Empty");
    std::string marker = folder.File("long-arguments.txt");
    std::string arguments = "/c echo ";
    arguments.append(7000, 'x');
    arguments += " > long-arguments.txt";
    Launcher::RunProgram(program, "Args", folder.path(), SystemFile("cmd.exe"), arguments, 0);
    EXPECT_TRUE(WaitForFile(marker));
}

TEST_F(LauncherTest, ACodeRunsItsInternalCommandAndAnUnknownOneSaysSo) {
    Form1 form1(program);
    ASSERT_TRUE(form1.Create());
    AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    for (const char* unknown : {"*3", "*99999", "*43"}) {
        boxes.requests.clear();
        Launcher::RunCommand(form1, unknown);
        ASSERT_EQ(boxes.requests.size(), 1u) << unknown;
        EXPECT_EQ(boxes.requests[0].text, "Sorry, this Internal Command is not yet implemented...") << unknown;
    }
    boxes.requests.clear();
    EXPECT_EQ(Launcher::RunCommand(form1, "*14"), 14) << "the preferences";
    EXPECT_TRUE(boxes.requests.empty());
    ASSERT_TRUE(form1.preferences());
    EXPECT_TRUE(::IsWindowVisible(form1.preferences()->hwnd()));
}
