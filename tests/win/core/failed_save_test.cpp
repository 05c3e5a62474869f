// A save that cannot be made, on a full disk or into a read-only file: the old file stays
// byte for byte, no temporary file is left, the reason is given, and the user hears of a
// kind of save once a run. The full disk is the rewrite's own seam: the temporary file
// stops growing past a few bytes with the system's "disk full" error.
#include "core/win/profile_rewrite.h"
#include "core/win/settings_store.h"
#include "menus/data_manager.h"
#include "menus/menu_editing.h"
#include "menus/win/menu_store.h"
#include "support/answered_message_boxes.h"
#include "support/temp_folder.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <functional>
#include <thread>
#include <string>

namespace {

struct Fault {
    const char* name;
    const char* reason; // in the problem the save reports
    std::function<void(const std::string& file)> set;
    std::function<void(const std::string& file)> clear;
};

const Fault kFaults[] = {
    {"read-only file", "the file is read-only",
     [](const std::string& file) { ::SetFileAttributesW(Win::Widen(file).c_str(), FILE_ATTRIBUTE_READONLY); },
     [](const std::string& file) { ::SetFileAttributesW(Win::Widen(file).c_str(), FILE_ATTRIBUTE_NORMAL); }},
    {"full disk", "(error 112)", [](const std::string&) { ProfileRewrite::SetFreeSpaceForTests(64); },
     [](const std::string&) { ProfileRewrite::SetFreeSpaceForTests(std::nullopt); }},
};

MenuTable OneMenu(const std::string& label) {
    MenuTable table;
    const std::int32_t number = DataManager::AddMenu(table);
    table.pool[static_cast<std::size_t>(DataManager::AppendItem(table, number - 1))].LABEL = label;
    return table;
}

} // namespace

TEST(FailedSave, TheOldFileStaysAndTheReasonIsToldOnceARunForEachKindOfFile) {
    for (const Fault& fault : kFaults) {
        SCOPED_TRACE(fault.name);
        TestSupport::TempFolder folder;
        const std::string menus = MenuStore::MenuFilePath(folder.path());
        const std::string settings = folder.File("Helmora.ini");
        SaveNotices::Told told;
        ASSERT_TRUE(MenuStore::SaveMenuFile(OneMenu("Old"), folder.path(), told));
        SettingsRec old;
        ASSERT_TRUE(SettingsStore::Save(settings, false, old).saved);
        const std::string oldMenus = TestSupport::ReadBytes(menus);
        const std::string oldSettings = TestSupport::ReadBytes(settings);

        TestSupport::AnsweredMessageBoxes boxes(MessageBoxes::kOk);
        fault.set(menus);
        fault.set(settings);
        SettingsRec changed;
        changed.TitleColor = 255;
        for (int attempt = 0; attempt < 2; ++attempt) {
            EXPECT_FALSE(MenuStore::SaveMenuFile(OneMenu("New"), folder.path(), told));
            const ProfileRewrite::Result result = SettingsStore::Save(settings, false, changed);
            EXPECT_FALSE(result.saved);
            EXPECT_NE(result.problem.find(fault.reason), std::string::npos) << result.problem;
            EXPECT_NE(result.problem.find(settings), std::string::npos) << result.problem;
        }
        fault.clear(menus);
        fault.clear(settings);

        EXPECT_EQ(TestSupport::ReadBytes(menus), oldMenus);
        EXPECT_EQ(TestSupport::ReadBytes(settings), oldSettings);
        for (const std::string& file : {menus, settings})
            EXPECT_FALSE(TestSupport::FileExists(ProfileRewrite::TemporaryFileFor(file)));
        ASSERT_EQ(boxes.requests.size(), 1u) << "the menu file's failure, told once";
        EXPECT_NE(boxes.requests[0].text.find(fault.reason), std::string::npos) << boxes.requests[0].text;
        EXPECT_NE(boxes.requests[0].text.find(menus), std::string::npos) << boxes.requests[0].text;
    }
}

// Another program that holds the file open for a moment (a scanner, an editor reading
// it) only delays the save: the rename is tried again until the file is let go.
TEST(FailedSave, AFileHeldOpenForAMomentIsStillReplaced) {
    TestSupport::TempFolder folder;
    const std::string settings = folder.File("Helmora.ini");
    SettingsRec old;
    ASSERT_TRUE(SettingsStore::Save(settings, false, old).saved);
    Win::UniqueFileHandle held(::CreateFileW(Win::Widen(settings).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(held);
    std::thread letGo([&] {
        ::Sleep(300);
        held.reset();
    });
    SettingsRec changed;
    changed.GenBumpDelay = 42;
    const ProfileRewrite::Result saved = SettingsStore::Save(settings, false, changed);
    letGo.join();
    EXPECT_TRUE(saved.saved) << saved.problem;
    EXPECT_EQ(::GetPrivateProfileIntW(L"TARVEX", L"GenBumpDelay", 0, Win::Widen(settings).c_str()), 42u);
}
