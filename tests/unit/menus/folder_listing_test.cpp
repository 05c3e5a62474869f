#include "menus/folder_listing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

DirEntry File(const std::string& name, std::uint32_t attributes = 0) {
    return {name, attributes, false};
}
DirEntry Folder(const std::string& name, std::uint32_t attributes = 0) {
    return {name, attributes | 0x10, true};
}

FolderListRequest Request(std::uint8_t filter = kFilterAllFiles, const std::string& mask = "", int skip = 0) {
    FolderListRequest request;
    request.folder = "C:\\F\\";
    request.filter = filter;
    request.mask = mask;
    request.skip = skip;
    return request;
}

// The entries found in the first folder. Folders first, hidden and system entries, the
// second folder and the paths of real files are the Wine folder tests'; an empty or missing
// folder shown as "(Empty)" is the end-to-end tests'.
FolderListing List(const FolderListRequest& request, const SettingsRec& settings, const std::vector<DirEntry>& found) {
    FolderListBuilder builder(request, settings);
    for (const DirEntry& entry : found)
        builder.Add(request.folder, entry);
    return builder.Finish();
}

Strings Labels(const FolderListing& listing) {
    Strings labels;
    for (const DisplayEntry& entry : listing.entries)
        labels.push_back(entry.LABEL);
    return labels;
}

Strings Listed(const SettingsRec& settings, const std::vector<DirEntry>& found,
               const FolderListRequest& request = Request()) {
    return Labels(List(request, settings, found));
}

std::vector<DirEntry> Files(int count) {
    std::vector<DirEntry> files;
    for (int k = 1; k <= count; ++k)
        files.push_back(File((k < 10 ? "f0" : "f") + std::to_string(k) + ".txt"));
    return files;
}

SettingsRec NoExtensions() {
    SettingsRec settings;
    settings.GenShowExtensions = false;
    return settings;
}

} // namespace

TEST(FolderListing, SortsMixedCaseNamesWithFoldersAtTheTopTheBottomOrMixed) {
    const std::vector<DirEntry> found = {File("banana.txt"),
                                         Folder("~zoo"),
                                         File("Apple.txt"),
                                         Folder("Bin"),
                                         File("_x.txt"),
                                         File("apple2.txt"),
                                         File("\xC3\xA9t\xC3\xA9.txt")};
    SettingsRec settings = NoExtensions();
    const std::string ete = "\xC3\xA9t\xC3\xA9";
    EXPECT_EQ(Listed(settings, found), (Strings{"Bin", "~zoo", "_x", "Apple", "apple2", "banana", ete}));
    settings.MenuFolderPosition = 1;
    EXPECT_EQ(Listed(settings, found), (Strings{"_x", "Apple", "apple2", "banana", ete, "Bin", "~zoo"}));
    settings.MenuFolderPosition = 2;
    EXPECT_EQ(Listed(settings, found), (Strings{"_x", "Apple", "apple2", "banana", "Bin", "~zoo", ete}));
}

TEST(FolderListing, FiltersByTheLowerCasedLastFourCharactersFoundAnywhereInTheList) {
    const std::vector<DirEntry> found = {File("ab"),     File("readme.txt"), File("TOOL.EXE"), File("x.lnk"),
                                         File("abxe.b"), File("notes.TXT"),  File("desk.cpl"), File("t"),
                                         Folder("Sub"),  Folder("Net.cpl")};
    const SettingsRec settings;
    // "abxe.b" ends in "xe.b", which occurs inside ".exe.bat".
    EXPECT_EQ(Listed(settings, found, Request(kFilterExecutables)),
              (Strings{"Net.cpl", "Sub", "ab", "abxe.b", "desk", "t", "TOOL.EXE", "x"}));
    EXPECT_EQ(Listed(settings, found, Request(kFilterControlPanel)), (Strings{"desk", "Net"}));
    EXPECT_EQ(Listed(settings, found, Request(kFilterUserMask, ".txt")),
              (Strings{"Net.cpl", "Sub", "notes.TXT", "readme.txt", "t"}));
    EXPECT_EQ(Listed(settings, found, Request(kFilterUserMask, ".TXT")), (Strings{"Net.cpl", "Sub"}));
    EXPECT_EQ(Listed(settings, found, Request(7)), (Strings{"Net.cpl", "Sub"}));
    const FolderListing applets = List(Request(kFilterControlPanel), settings, found);
    EXPECT_EQ(applets.folderCount, 0);
    EXPECT_EQ(applets.entries[1].PATH, "C:\\F\\Net.cpl");
}

TEST(FolderListing, HidesExtensionsOfShortcutsAlwaysAndOfOtherFilesByTheSetting) {
    const std::string japanese = "\xE6\x97\xA5\xE6\x9C\xAC"; // two characters, six bytes
    const std::vector<DirEntry> found = {File("setup.lnk"), File("report.doc"),      File("site.URL"), File("notes.md"),
                                         File("README"),    File(japanese + ".pif"), File(".cf")};
    SettingsRec settings;
    EXPECT_EQ(Listed(settings, found), (Strings{".cf", "notes.md", "README", "report.doc", "setup", "site", japanese}));
    // Only a dot fourth from the end of a name of four or more characters marks an extension.
    EXPECT_EQ(Listed(NoExtensions(), found),
              (Strings{".cf", "notes.md", "README", "report", "setup", "site", japanese}));
    // A name that is all extension keeps it, and the folders stay on top with their own labels.
    EXPECT_EQ(Listed(NoExtensions(), {File(".env"), Folder("Bin"), File(".lnk")}), (Strings{"Bin", ".env", ".lnk"}));
    // Characters, not bytes: the two-character name is short enough for the executables filter.
    EXPECT_EQ(Listed(settings, {File(japanese), File("\xD1\x84\xD0\xB0\xD0\xB9\xD0\xBB")}, Request(kFilterExecutables)),
              (Strings{japanese}));
}

TEST(FolderListing, PutsMoreOnTopOrAtTheEndOfALongList) {
    SettingsRec settings;
    settings.MenuMaxNoItems = 10;
    FolderListRequest request = Request(kFilterUserMask, ".txt");
    request.secondFolder = "D:\\G\\";
    const FolderListing top = List(request, settings, Files(15));
    EXPECT_EQ(Labels(top), (Strings{"More...", "f01.txt", "f02.txt", "f03.txt", "f04.txt", "f05.txt", "f06.txt",
                                    "f07.txt", "f08.txt", "f09.txt"}));
    EXPECT_EQ(top.moreIndex, 0u);
    const DisplayEntry& more = top.entries[0];
    EXPECT_EQ(more.PATH, "C:\\F\\") << "it lists the same folders with the same filter";
    EXPECT_EQ(more.ARG, "D:\\G\\");
    EXPECT_EQ(more.FILETYPEMASK, ".txt");
    settings.ShowMoreOnTop = false;
    const FolderListing end = List(request, settings, Files(15));
    EXPECT_EQ(end.moreIndex, 9u);
    EXPECT_EQ(end.entries[9], more);
    EXPECT_FALSE(List(request, settings, Files(10)).moreIndex.has_value());
    settings.MenuMaxNoItems = 0; // still room for one entry beside "More..."
    EXPECT_EQ(Listed(settings, Files(3)), (Strings{"f01.txt", "More..."}));
}

TEST(FolderListing, ASkipCountPagesThroughALongList) {
    SettingsRec settings;
    settings.MenuMaxNoItems = 5;
    EXPECT_EQ(Listed(settings, Files(15), Request(kFilterAllFiles, "", 4)),
              (Strings{"More...", "f05.txt", "f06.txt", "f07.txt", "f08.txt"}));
    EXPECT_EQ(Listed(settings, Files(15), Request(kFilterAllFiles, "", 12)),
              (Strings{"f13.txt", "f14.txt", "f15.txt"}));
    EXPECT_EQ(Listed(settings, Files(3), Request(kFilterAllFiles, "", 3)), (Strings{"(Empty)"})) << "past the end";
    const FolderListing listing =
        List(Request(kFilterAllFiles, "", 2), settings, {Folder("A"), Folder("B"), Folder("C"), File("x.txt")});
    EXPECT_EQ(Labels(listing), (Strings{"C", "x.txt"}));
    EXPECT_EQ(listing.folderCount, 1);
}

TEST(FolderListing, TurnsTheHourglassOnOnceAtTheTwoHundredthOrSeventiethListedEntry) {
    for (const bool early : {false, true}) {
        FolderListRequest request = Request(kFilterUserMask, ".txt");
        request.earlyHourglass = early;
        SettingsRec settings;
        settings.GenShowHidden = false;
        FolderListBuilder builder(request, settings);
        std::vector<int> turnedOnAt;
        for (int k = 1; k <= 300; ++k) // skipped and filtered entries do not count
            for (const DirEntry& entry : {File("h.txt", 2), File("f.txt"), File("r.doc")})
                if (builder.Add(k <= 100 ? "C:\\F\\" : "D:\\G\\", entry))
                    turnedOnAt.push_back(k);
        EXPECT_EQ(turnedOnAt, (std::vector<int>{early ? 70 : 200}));
    }
}
