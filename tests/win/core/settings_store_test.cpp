#include "core/win/settings_store.h"

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
    EXPECT_NE(TestSupport::ReadBytes(file).find("SomeoneElses=kept"), std::string::npos);
}
