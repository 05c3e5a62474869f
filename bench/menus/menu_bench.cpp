// Times the menu file load and save and the folder listing rules on synthetic data
// held in memory, so that the figures show the cost of our own code alone.
#include "menus/data_manager.h"
#include "menus/folder_listing.h"
#include "menus/menu_file.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kRuns = 5;

// The best of a few runs, in milliseconds.
template <typename Work>
double BestMilliseconds(Work work) {
    double best = 1e300;
    for (int run = 0; run < kRuns; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, elapsed.count());
    }
    return best;
}

// "LABEL", 3 -> "LABEL-3" (appended: GCC 12 warns falsely about literal + std::string).
std::string Key(const char* name, int number) {
    std::string key(name);
    key += '-';
    key += std::to_string(number);
    return key;
}

// A menu file of 20 menus sharing `items` items, every key written as the program writes it.
std::map<std::string, ProfileSection> MenuFile(int items) {
    constexpr int kMenus = 20;
    std::map<std::string, ProfileSection> sections;
    ProfileSection& menus = sections["MENUS"];
    for (int m = 1; m <= kMenus; ++m) {
        menus.push_back({Key("NAME", m), Key("Menu", m)});
        menus.push_back({Key("INHERIT", m), "False"});
        menus.push_back({Key("THEME", m), ""});
        menus.push_back({Key("SOUNDPATH", m), ""});
        menus.push_back({Key("APPPATH", m), ""});
    }
    for (int m = 1; m <= kMenus; ++m) {
        ProfileSection& section = sections[Key("MENU", m)];
        for (int p = 0; p < items / kMenus; ++p) {
            std::string path = Key("C:\\Program Files\\Vendor\\Program", p);
            path += ".exe";
            section.push_back({Key("LABEL", p), Key("Program", p)});
            section.push_back({Key("TYPE", p), "0"});
            section.push_back({Key("PATH", p), path});
            section.push_back({Key("STARTPATH", p), ""});
            section.push_back({Key("ARG", p), ""});
            section.push_back({Key("RUNSTATE", p), "0"});
            section.push_back({Key("FILETYPEMASK", p), ""});
            section.push_back({Key("ICONPATH", p), ""});
            section.push_back({Key("HOTKEY", p), "0"});
        }
    }
    return sections;
}

void BenchMenuFile(int items) {
    const std::map<std::string, ProfileSection> file = MenuFile(items);
    const SectionReader reader = [&file](std::string_view name) {
        const auto found = file.find(std::string(name));
        return found == file.end() ? ProfileSection{} : found->second;
    };
    MenuTable table;
    const double load = BestMilliseconds([&] { DataManager::LoadMenuFile(table, reader); });
    std::size_t writes = 0;
    const double save = BestMilliseconds([&] { writes = DataManager::SaveMenuFile(table).size(); });
    std::printf("menu file %6d items: load %8.2f ms (%6.0f ns/item)   save %8.2f ms (%zu keys)\n", items, load,
                load * 1e6 / items, save, writes);
}

// A folder of `count` entries: a few sub-folders, common file types in mixed case, some
// hidden or system files, names in no particular order.
std::vector<DirEntry> Folder(int count) {
    const char* const extensions[] = {".lnk", ".EXE", ".txt", ".Doc", ".pdf", ".url", ".jpg", ".cpl"};
    std::mt19937 random(42);
    std::vector<DirEntry> entries;
    entries.push_back({".", 0x10, true});
    entries.push_back({"..", 0x10, true});
    for (int k = 0; k < count; ++k) {
        std::string name = random() % 2 ? "Item " : "item ";
        name += std::to_string(random() % 1000000);
        if (k % 20 == 0) {
            entries.push_back({name, 0x10, true});
            continue;
        }
        name += extensions[random() % std::size(extensions)];
        const std::uint32_t attributes = (k % 50 == 1) ? kAttributeHidden : (k % 97 == 2) ? kAttributeSystem : 0;
        entries.push_back({name, attributes, false});
    }
    return entries;
}

void BenchFolder(int count, std::uint8_t filter, const char* what) {
    const std::vector<DirEntry> entries = Folder(count);
    SettingsRec settings;
    settings.GenShowHidden = false;
    settings.GenShowExtensions = false;
    FolderListRequest request;
    request.folder = "C:\\Users\\someone\\Documents\\";
    request.filter = filter;
    request.mask = ".txt.pdf";
    std::size_t listed = 0;
    const double ms = BestMilliseconds([&] {
        FolderListBuilder builder(request, settings);
        for (const DirEntry& entry : entries)
            builder.Add(request.folder, entry);
        listed = builder.Finish().entries.size();
    });
    std::printf("folder %7d entries, %-15s %8.2f ms (%6.0f ns/entry), %zu shown\n", count, what, ms, ms * 1e6 / count,
                listed);
}

} // namespace

int main() {
    for (const int items : {1000, 10000, 50000})
        BenchMenuFile(items);
    for (const int count : {10000, 100000}) {
        BenchFolder(count, kFilterAllFiles, "all files:");
        BenchFolder(count, kFilterUserMask, "mask .txt.pdf:");
    }
    return 0;
}
