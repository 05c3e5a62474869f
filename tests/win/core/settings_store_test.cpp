#include "core/win/settings_store.h"

#include "core/win/ini_handler.h"
#include "support/key_by_key.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace {

SettingsRec NonLatinSettings() {
    SettingsRec settings;
    settings.TitleFont = "Микрософт Сэнс";
    settings.GenThemeAuthor = "Ελένη Παπαδοπούλου";
    settings.GenThemeName = "桜の季節 ☃";
    settings.GenShowInTray = false;
    settings.HotSpots[0].Menupath1 = "C:\\Users\\Zoë\\Рабочий стол";
    settings.UserTasks.push_back({"Блокнот", "C:\\Windows\\notepad.exe", "C:\\Windows\\notepad.exe,0"});
    return settings;
}

} // namespace

TEST(SettingsStore, NonLatinTextSurvivesASaveAndALoad) {
    TestSupport::TempFolder folder;
    std::string file = folder.File("Helmora.ini");
    SettingsRec saved = NonLatinSettings();
    SettingsStore::Save(file, false, saved);

    std::string bytes = TestSupport::ReadBytes(file);
    ASSERT_GE(bytes.size(), 2u);
    EXPECT_EQ(bytes.substr(0, 2), std::string("\xFF\xFE"));

    SettingsRec loaded;
    loaded.TitleFont = "left over";
    SettingsStore::Load(file, false, loaded);
    EXPECT_EQ(loaded, saved);
}

TEST(SettingsStore, AMissingFileLoadsTheDefaults) {
    TestSupport::TempFolder folder;
    SettingsRec settings = NonLatinSettings();
    SettingsStore::Load(folder.File("Helmora.ini"), false, settings);
    EXPECT_EQ(settings, SettingsRec());
    EXPECT_FALSE(TestSupport::FileExists(folder.File("Helmora.ini")));
}

TEST(SettingsStore, KeysTheProgramDoesNotKnowStayInTheFile) {
    TestSupport::TempFolder folder;
    std::string file = folder.File("Helmora.ini");
    TestSupport::WriteBytes(file, "[TARVEX]\r\nSomeoneElses=kept\r\nTitleFont=Old\r\n");
    SettingsStore::Save(file, false, SettingsRec());

    SettingsRec loaded;
    SettingsStore::Load(file, false, loaded);
    EXPECT_EQ(loaded.TitleFont, "Arial");
    EXPECT_EQ(IniHandler::ReadWholeSection("TARVEX", file).front(), (ProfileEntry{"SomeoneElses", "kept"}));
}

// The settings file is rewritten whole through a temporary file; it must read as writing
// the keys one by one into it would have left it, and keep its very bytes when the file
// is one the program wrote (UTF-16, no comments, no blank lines). A hand-made ANSI file
// becomes UTF-16, where one by one it stayed ANSI: the same content, as long as every
// character has its place in the code page.
TEST(SettingsStore, ASaveLeavesTheFileAsWritingItsKeysOneByOneWould) {
    const ProfileWrites programWritten{{"Other", "Keep", "this"}, {"TARVEX", "Mine", "kept"}, {"tarvex", "titlecolor", "7"}};
    const std::string handEdited =
        "[Other]\r\nKeep=this\r\n\r\n[tarvex]\r\nMine=kept\r\ntitlefont = Old \r\n\r\n[Last]\r\nA=1\r\n";
    enum class Before { Missing, ProgramWritten, HandEdited };
    for (Before before : {Before::Missing, Before::ProgramWritten, Before::HandEdited}) {
        TestSupport::TempFolder folder;
        const std::string file = folder.File("Helmora.ini");
        const std::string reference = folder.File("reference.ini");
        for (const std::string& path : {file, reference}) {
            if (before == Before::ProgramWritten)
                TestSupport::WriteKeyByKey(path, programWritten);
            else if (before == Before::HandEdited)
                TestSupport::WriteBytes(path, handEdited);
        }
        // Half a file, as a run killed while saving leaves it.
        TestSupport::WriteBytes(ProfileRewrite::TemporaryFileFor(file), "\xFF\xFE[\0T\0");
        SettingsRec changed = before == Before::HandEdited ? SettingsRec() : NonLatinSettings();
        changed.TitleColor = 255;
        ASSERT_TRUE(SettingsStore::Save(file, false, changed).saved);
        TestSupport::WriteKeyByKey(reference, SaveSettings(changed, false));

        EXPECT_EQ(IniHandler::ReadWholeFile(file), IniHandler::ReadWholeFile(reference));
        if (before != Before::HandEdited) {
            EXPECT_EQ(TestSupport::ReadBytes(file), TestSupport::ReadBytes(reference));
        }
        EXPECT_FALSE(TestSupport::FileExists(ProfileRewrite::TemporaryFileFor(file)));
    }
}
