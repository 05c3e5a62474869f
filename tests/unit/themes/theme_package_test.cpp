// Theme packages: unsafe entries, limits, the theme a package holds, texts and fonts,
// export names and the auto-install folder.
#include "themes/theme_package.h"

#include <gtest/gtest.h>

#include <set>

using namespace ThemePackage;

namespace {

std::vector<Entry> Files(std::initializer_list<const char*> names) {
    std::vector<Entry> entries;
    for (const char* name : names)
        entries.push_back({name, 10, false});
    return entries;
}

std::vector<std::string> PathsOf(const Plan& plan) {
    std::vector<std::string> paths;
    for (const Plan::File& file : plan.files)
        paths.push_back(file.path);
    return paths;
}

} // namespace

TEST(ThemePackage, EntriesThatWouldLandOutsideTheThemeFolderAreUnsafe) {
    for (const char* bad : {"..\\evil.txt", "C:\\evil.txt", "/abs.txt", "\\abs.txt", "Blue/../../x.txt",
                            "Blue\\sub\\..\\..\\..\\x", "Blue/CON.txt", "Blue/a:stream", "d:rel.txt"})
        EXPECT_FALSE(UnsafeReason({bad, 1, false}).empty()) << bad;
    for (const char* good : {"Blue/sub/x.bmp", "Blue/..x.bmp", "./Blue/x.bmp", "Blue//TitleA.bmp"})
        EXPECT_EQ(UnsafeReason({good, 1, false}), "") << good;
    EXPECT_EQ(UnsafeReason({"Blue/TitleA.bmp", 1, true}), "is a link");
    EXPECT_TRUE(IsLink(3u << 8 | 30, 0120777u << 16));
    EXPECT_FALSE(IsLink(0u << 8 | 20, 0120777u << 16)) << "only Unix tools mark links";
    EXPECT_FALSE(IsLink(3u << 8 | 30, 0100644u << 16));
}

TEST(ThemePackage, ASingleTopFolderNamesTheThemeAndIsLeftOut) {
    std::vector<Entry> entries = Files({"Blue/", "Blue/Blue.wst", "blue/TitleA.bmp", "Blue/Readme.txt", "Blue/Sky.ttf",
                                        "Blue/extra/Deep.ttf", "Blue/extra/"});
    Plan plan = PlanImport("blue-1.2.zip", entries);
    EXPECT_EQ(plan.refusal, "");
    EXPECT_EQ(plan.themeName, "Blue");
    EXPECT_EQ(PathsOf(plan),
              (std::vector<std::string>{"Blue.wst", "TitleA.bmp", "Readme.txt", "Sky.ttf", "extra\\Deep.ttf"}));
    EXPECT_EQ(plan.files[0].entry, 1u);
    EXPECT_EQ(plan.fonts, std::vector<std::string>{"Sky.ttf"}) << "Load theme installs the fonts at the top only";
    EXPECT_EQ(plan.texts, std::vector<std::size_t>{2});
}

TEST(ThemePackage, FilesAtTheTopTakeTheZipsNameAndTheOneThemeFileWithIt) {
    Plan top = PlanImport("C:\\Down\\Green Leaf.ZIP", Files({"Leaf.wst", "sub/x.bmp", "NOTES.NFO"}));
    EXPECT_EQ(top.themeName, "Green Leaf");
    EXPECT_EQ(PathsOf(top), (std::vector<std::string>{"Green Leaf.wst", "sub\\x.bmp", "NOTES.NFO"}));
    EXPECT_EQ(top.texts, std::vector<std::size_t>{2});
    Plan twoFolders = PlanImport("Pair.zip", Files({"A/A.wst", "B/B.wst"}));
    EXPECT_EQ(twoFolders.themeName, "Pair");
    EXPECT_EQ(PathsOf(twoFolders), (std::vector<std::string>{"A\\A.wst", "B\\B.wst"}))
        << "no lone theme file at the top";
}

TEST(ThemePackage, RefusedWholeWithAReason) {
    std::vector<Entry> many(kMaxEntries + 1, Entry{"Blue/x.bmp", 1, false});
    std::vector<Entry> big = {{"Blue/a.bmp", 150u << 20, false}, {"Blue/b.bmp", 50u << 20, false}};
    EXPECT_EQ(PlanImport("p.zip", big).refusal, "");
    big.push_back({"Blue/c.bmp", 1, false});
    std::vector<Entry> lying = {{"Blue/a.bmp", ~0ull, false}, {"Blue/b.bmp", ~0ull, false}};
    const std::pair<Plan, const char*> refusals[] = {
        {PlanImport("p.zip", many), "it holds more than 5,000 entries"},
        {PlanImport("p.zip", big), "its files take more than 200 MB unpacked"},
        {PlanImport("p.zip", lying), "its files take more than 200 MB unpacked"},
        {PlanImport("p.zip", Files({"Blue/ok.bmp", "..\\evil.txt"})),
         "the entry \"..\\evil.txt\" climbs out of its folder with \"..\""},
        {PlanImport("p.zip", Files({"Blue/", "Blue/sub/"})), "it holds no files"},
        {PlanImport("CON.zip", Files({"x.wst"})), "its theme name \"CON\" is a name Windows keeps for a device"},
    };
    for (const auto& [plan, reason] : refusals) {
        EXPECT_EQ(plan.refusal, reason);
        EXPECT_TRUE(plan.files.empty());
    }
    EXPECT_EQ(Refused("p.zip", "it holds no files", "Note.").text,
              "The theme package p.zip cannot be installed: it holds no files.\n\nNote.");
}

TEST(ThemePackage, TextsAreShownShortAndDecodedByWhatTheyHold) {
    std::string lines;
    for (int i = 1; i <= 50; ++i)
        lines += "line " + std::to_string(i) + "\r\n";
    EXPECT_TRUE(ShownText(lines).ends_with("line 39\nline 40\n...")) << ShownText(lines);
    EXPECT_EQ(ShownText(std::string(3000, 'x')), std::string(2000, 'x') + "\n...");
    EXPECT_EQ(ShownText("\xEF\xBB\xBFOne\r\nTwo\r\n\r\n"), "One\nTwo");
    const std::pair<std::string_view, TextEncoding> encodings[] = {{"\xFF\xFEO\0", TextEncoding::Utf16Le},
                                                                   {"h\xC3\xA9llo", TextEncoding::Utf8},
                                                                   {"cut inside a character \xC3", TextEncoding::Utf8},
                                                                   {"\xE9t\xE9 ok", TextEncoding::Ansi}};
    for (const auto& [bytes, encoding] : encodings)
        EXPECT_EQ(EncodingOf(bytes), encoding) << bytes;
}

TEST(ThemePackage, ExportNamesAndTheAutoInstallFolder) {
    EXPECT_EQ(ExportEntryName("Blue", "sub\\x.bmp"), "Blue/sub/x.bmp");
    EXPECT_EQ(ExportFile("C:\\P\\Export", "Blue"), "C:\\P\\Export\\Blue.zip");
    EXPECT_EQ(UnpackFolder("C:\\P\\Themes", "Blue"), "C:\\P\\Themes\\~Blue.unpacking");
    std::vector<std::string> names = {"b.ZIP", "a.zip", "notes.txt", "C.zip", "zip"};
    EXPECT_EQ(PackagesToInstall(names), (std::vector<std::string>{"a.zip", "b.ZIP", "C.zip"}));
    std::set<std::string, std::less<>> taken = {"Blue.zip", "Blue (2).zip"};
    auto isTaken = [&](std::string_view name) { return taken.contains(name); };
    EXPECT_EQ(FreeName("Blue.zip", isTaken), "Blue (3).zip");
    EXPECT_EQ(FreeName("Red.zip", isTaken), "Red.zip");
}
