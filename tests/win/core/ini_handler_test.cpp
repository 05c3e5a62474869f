#include "core/message_box.h"
#include "core/win/ini_handler.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

using TestSupport::TempFolder;

namespace {

// Records every message box instead of showing it.
class RecordedBoxes {
public:
    RecordedBoxes() {
        previous_ = MessageBoxes::SetHandler([this](const MessageBoxes::Request& r) {
            requests.push_back(r);
            return MessageBoxes::kOk;
        });
    }
    ~RecordedBoxes() { MessageBoxes::SetHandler(previous_); }
    std::vector<MessageBoxes::Request> requests;

private:
    MessageBoxes::Handler previous_;
};

const std::string kUtf16Bom = "\xFF\xFE";

} // namespace

TEST(IniHandler, ReadingBeforeATargetIsSetShowsTheLogicErrorAndReadsEmpty) {
    IniHandler::ForgetTargetForTests();
    RecordedBoxes boxes;
    EXPECT_EQ(IniHandler::ReadValue("TitleColor", "7"), "");
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].title, "IniFile Logic Error");
    EXPECT_EQ(boxes.requests[0].text, "[Section] and FileName Not Registered in Private.Ini!");
    EXPECT_EQ(boxes.requests[0].style, 16);

    ProfileSection table;
    EXPECT_EQ(IniHandler::ReadSection(table), 0);
    EXPECT_TRUE(table.empty());
    EXPECT_EQ(boxes.requests.size(), 1u) << "reading a section without a target is silent";
}

TEST(IniHandler, OnlyAMissingKeyGivesTheDefault) {
    TempFolder dir;
    std::string file = dir.File("Helmora.ini");
    TestSupport::WriteBytes(file, "[TARVEX]\r\nEmpty=\r\nTitleColor=255\r\n");
    IniHandler::SetTarget("  TARVEX ", "  " + file + "  ");
    EXPECT_EQ(IniHandler::ReadValue("Empty", "fallback"), "");
    EXPECT_EQ(IniHandler::ReadValue("Missing", "fallback"), "fallback");
    EXPECT_EQ(IniHandler::ReadValue("titlecolor", "0"), "255");

    IniHandler::SetTarget("TARVEX", dir.File("NoSuchFile.ini"));
    EXPECT_EQ(IniHandler::ReadValue("TitleColor", "9"), "9");
    ProfileSection table;
    EXPECT_EQ(IniHandler::ReadSection(table), 0);
}

TEST(IniHandler, LongValuesAreCutAt254Characters) {
    TempFolder dir;
    std::string file = dir.File("long.ini");
    std::string value(300, 'x');
    value[253] = 'L';
    value[254] = 'Z';
    TestSupport::WriteBytes(file, "[S]\r\nK=" + value + "\r\n");
    IniHandler::SetTarget("S", file);
    std::string read = IniHandler::ReadValue("K", "");
    ASSERT_EQ(read.size(), 254u);
    EXPECT_EQ(read.back(), 'L');
}

TEST(IniHandler, ReadsASectionInFileOrderAndDuplicatesReadTheFirstValue) {
    TempFolder dir;
    std::string file = dir.File("menu.ini");
    TestSupport::WriteBytes(file, "[Other]\r\nA=0\r\n[MENUS]\r\nNAME-2=Second\r\nname-1=First\r\nNAME-2=Again\r\n"
                                  "INHERIT-1=\r\n");
    ProfileSection table = IniHandler::ReadWholeSection("MENUS", file);
    std::vector<ProfileEntry> expected = {
        {"NAME-2", "Second"}, {"name-1", "First"}, {"NAME-2", "Second"}, {"INHERIT-1", ""}};
    EXPECT_EQ(table, expected);
}

TEST(IniHandler, ASectionWithMoreNamesThanTheFirstListHoldsIsReadWhole) {
    TempFolder dir;
    std::string file = dir.File("TvMenus.ini");
    std::string text = "[MENU-1]\r\n";
    const int keys = 3000; // about 33,000 characters of names, twice the first list
    for (int i = 0; i < keys; ++i)
        text += "FILETYPEMASK-" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
    TestSupport::WriteBytes(file, text);

    ProfileSection table = IniHandler::ReadWholeSection("MENU-1", file);
    ASSERT_EQ(table.size(), static_cast<std::size_t>(keys));
    EXPECT_EQ(table.back(), (ProfileEntry{"FILETYPEMASK-2999", "2999"}));
}

TEST(IniHandler, ACreatedFileIsUtf16AndKeepsNonLatinText) {
    TempFolder dir;
    std::string file = dir.File("Helmora.ini");
    const std::string text = "Меню ☃ 日本語 ü";
    IniHandler::WriteValue("TARVEX", file, "GenThemeName", text);
    IniHandler::WriteValue("TARVEX", file, "TitleFont", "Arial");

    std::string bytes = TestSupport::ReadBytes(file);
    ASSERT_GE(bytes.size(), 2u);
    EXPECT_EQ(bytes.substr(0, 2), kUtf16Bom);

    IniHandler::SetTarget("TARVEX", file);
    EXPECT_EQ(IniHandler::ReadValue("GenThemeName", ""), text);
    ProfileSection table;
    ASSERT_EQ(IniHandler::ReadSection(table), 2);
    EXPECT_EQ(table[0], (ProfileEntry{"GenThemeName", text}));
    EXPECT_EQ(table[1], (ProfileEntry{"TitleFont", "Arial"}));

    // A second write replaces the value in place rather than adding a key.
    IniHandler::WriteValue("TARVEX", file, "GenThemeName", "Ünïcode");
    EXPECT_EQ(IniHandler::ReadValue("GenThemeName", ""), "Ünïcode");
}

TEST(IniHandler, AnExistingAnsiFileIsReadAndWrittenAsItIs) {
    TempFolder dir;
    std::string file = dir.File("old.ini");
    TestSupport::WriteBytes(file, "[TARVEX]\r\nTitleFont=Tahoma\r\n");
    IniHandler::WriteValue("TARVEX", file, "TitleFontSize", "10");
    std::string bytes = TestSupport::ReadBytes(file);
    EXPECT_NE(bytes.substr(0, 2), kUtf16Bom);
    EXPECT_NE(bytes.find("TitleFontSize=10"), std::string::npos);
    IniHandler::SetTarget("TARVEX", file);
    EXPECT_EQ(IniHandler::ReadValue("TitleFont", ""), "Tahoma");
}

TEST(IniHandler, WriteAllKeepsKeysTheWritesDoNotName) {
    TempFolder dir;
    std::string file = dir.File("Helmora.ini");
    IniHandler::WriteValue("TARVEX", file, "UnknownKey", "kept");
    IniHandler::WriteAll(file, {{"TARVEX", "TitleColor", "1"}, {"TARVEX", "TitleColor2", "2"}});
    ProfileSection table = IniHandler::ReadWholeSection("TARVEX", file);
    std::vector<ProfileEntry> expected = {{"UnknownKey", "kept"}, {"TitleColor", "1"}, {"TitleColor2", "2"}};
    EXPECT_EQ(table, expected);
}

TEST(IniHandler, FolderOfPathIsUpperCasedWithATrailingBackslash) {
    TempFolder dir;
    EXPECT_EQ(IniHandler::FolderOfPath("c:\\Program Files\\Tarvex\\tarvex2.exe"), "C:\\PROGRAM FILES\\TARVEX\\");
    EXPECT_EQ(IniHandler::FolderOfPath("c:\\Täst\\x.ini"), "C:\\TÄST\\");

    ASSERT_TRUE(::SetCurrentDirectoryW(Win::Widen(dir.path()).c_str()));
    wchar_t current[MAX_PATH];
    DWORD n = ::GetCurrentDirectoryW(MAX_PATH, current);
    std::wstring expected(current, n);
    ::CharUpperBuffW(expected.data(), static_cast<DWORD>(expected.size()));
    expected += L"\\";
    EXPECT_EQ(IniHandler::FolderOfPath("Helmora.ini"), Win::Narrow(expected));
    std::wstring drive = expected.substr(0, 2); // "C:"
    EXPECT_EQ(IniHandler::FolderOfPath(Win::Narrow(drive) + "Helmora.ini"), Win::Narrow(expected));
    ::SetCurrentDirectoryW(L"C:\\");
}
