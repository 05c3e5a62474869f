#include "core/win/ini_handler.h"
#include "support/answered_message_boxes.h"
#include "support/key_by_key.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

using TestSupport::TempFolder;

namespace {

const std::string kUtf16Bom = "\xFF\xFE";

} // namespace

TEST(IniHandler, ReadingBeforeATargetIsSetShowsTheLogicErrorAndReadsEmpty) {
    IniHandler::ForgetTargetForTests();
    TestSupport::AnsweredMessageBoxes boxes(MessageBoxes::kOk);
    EXPECT_EQ(IniHandler::ReadValue("TitleColor", "7"), "");
    ASSERT_EQ(boxes.requests.size(), 1u);
    EXPECT_EQ(boxes.requests[0].title, "IniFile Logic Error");
    EXPECT_EQ(boxes.requests[0].text, "[Section] and FileName Not Registered in Private.Ini!");
    EXPECT_EQ(boxes.requests[0].style, 16);
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
    TestSupport::WriteKeyByKey(file, {{"TARVEX", "GenThemeName", text}, {"TARVEX", "TitleFont", "Arial"}});

    EXPECT_EQ(TestSupport::ReadBytes(file).substr(0, 2), kUtf16Bom);
    IniHandler::SetTarget("TARVEX", file);
    EXPECT_EQ(IniHandler::ReadValue("GenThemeName", ""), text);
    EXPECT_EQ(IniHandler::ReadValue("TitleFont", ""), "Arial");
}

TEST(IniHandler, AnExistingAnsiFileIsReadAndWrittenAsItIs) {
    TempFolder dir;
    std::string file = dir.File("old.ini");
    TestSupport::WriteBytes(file, "[TARVEX]\r\nTitleFont=Tahoma\r\n");
    TestSupport::WriteKeyByKey(file, {{"TARVEX", "TitleFontSize", "10"}});
    std::string bytes = TestSupport::ReadBytes(file);
    EXPECT_NE(bytes.substr(0, 2), kUtf16Bom);
    EXPECT_NE(bytes.find("TitleFontSize=10"), std::string::npos);
    IniHandler::SetTarget("TARVEX", file);
    EXPECT_EQ(IniHandler::ReadValue("TitleFont", ""), "Tahoma");
}
