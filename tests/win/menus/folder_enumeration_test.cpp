#include "menus/menu_records.h"
#include "menus/win/folder_enumeration.h"
#include "support/temp_folder.h"
#include "win/text_convert.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

using FolderEnumeration::ListFolder;
using TestSupport::FileExists;
using TestSupport::TempFolder;
using TestSupport::WriteBytes;

namespace {

using Strings = std::vector<std::string>;

const std::string kRussian = "Привет.txt";
const std::string kJapanese = "日本.doc";

// a.exe, B.TXT, pagefile.sys, a sub-folder Tools and two files with non-Latin names.
class FolderMenu : public ::testing::Test {
protected:
    void SetUp() override {
        for (const std::string& name :
             {std::string("a.exe"), std::string("B.TXT"), std::string("pagefile.sys"), kRussian, kJapanese})
            WriteBytes(dir.File(name), "");
        ASSERT_TRUE(::CreateDirectoryW(Win::Widen(dir.File("Tools")).c_str(), nullptr));
        WriteBytes(dir.File("Tools\\inside.txt"), "");
        settings.GenShowExtensions = false;
    }

    FolderListRequest Request() const {
        FolderListRequest request;
        request.folder = Folder();
        return request;
    }
    std::string Folder() const { return dir.path() + "\\"; }

    TempFolder dir;
    SettingsRec settings;
};

Strings Labels(const FolderListing& listing) {
    Strings labels;
    for (const DisplayEntry& entry : listing.entries)
        labels.push_back(entry.LABEL);
    return labels;
}

void SetAttributes(const std::string& path, DWORD attributes) {
    ASSERT_TRUE(::SetFileAttributesW(Win::Widen(path).c_str(), attributes));
}

} // namespace

TEST_F(FolderMenu, FoldersComeFirstThenFilesByNameWithoutExtensions) {
    FolderListRequest request = Request();
    request.mask = ".zip";
    const FolderListing listing = ListFolder(request, settings);

    EXPECT_EQ(Labels(listing), (Strings{"Tools", "a", "B", "Привет", "日本"}));
    EXPECT_FALSE(listing.empty);
    EXPECT_EQ(listing.folderCount, 1);
    ASSERT_EQ(listing.entries.size(), 5u);

    const DisplayEntry& tools = listing.entries[0];
    EXPECT_EQ(tools.TYPE, kItemFolderPath);
    EXPECT_EQ(tools.PATH, Folder() + "Tools\\");
    EXPECT_EQ(tools.FILETYPEMASK, ".zip") << "a sub-folder lists its files the same way";
    EXPECT_EQ(listing.entries[3].PATH, Folder() + kRussian);
    // The paths name the real files, whatever their script.
    for (const DisplayEntry& entry : listing.entries)
        EXPECT_TRUE(FileExists(entry.PATH)) << entry.PATH;
}

TEST_F(FolderMenu, HiddenAndSystemEntriesFollowTheirSettings) {
    SetAttributes(dir.File("a.exe"), FILE_ATTRIBUTE_HIDDEN);
    SetAttributes(dir.File(kRussian), FILE_ATTRIBUTE_SYSTEM);
    SetAttributes(dir.File("Tools"), FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN);

    settings.GenShowHidden = false;
    settings.GenShowSystem = false;
    EXPECT_EQ(Labels(ListFolder(Request(), settings)), (Strings{"B", "日本"}));
    settings.GenShowSystem = true;
    EXPECT_EQ(Labels(ListFolder(Request(), settings)), (Strings{"B", "Привет", "日本"}));
    settings.GenShowHidden = true;
    EXPECT_EQ(Labels(ListFolder(Request(), settings)), (Strings{"Tools", "a", "B", "Привет", "日本"}));
}

TEST_F(FolderMenu, TheSecondFolderIsListedIntoTheSameMenu) {
    TempFolder second;
    WriteBytes(second.File("a.exe"), "");
    WriteBytes(second.File("Ärger.txt"), "");
    FolderListRequest request = Request();
    request.secondFolder = second.path() + "\\";

    const FolderListing listing = ListFolder(request, settings);
    EXPECT_EQ(Labels(listing), (Strings{"Tools", "a", "a", "B", "Ärger", "Привет", "日本"}));
    EXPECT_EQ(listing.entries[4].PATH, request.secondFolder + "Ärger.txt");

    request.secondFolder = request.folder;
    EXPECT_EQ(ListFolder(request, settings).entries.size(), 5u) << "the same folder twice is listed once";
}

TEST_F(FolderMenu, APathOf32000CharactersListsNothingAndTheOtherFolderStill) {
    FolderListRequest request = Request();
    request.secondFolder = request.folder;
    request.folder = std::string(32000, 'd') + "\\";
    EXPECT_EQ(ListFolder(request, settings).entries.size(), 5u);
}
