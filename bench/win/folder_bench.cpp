// Times folder menus on real folders: the bare enumeration of a folder with the find
// functions next to the full listing (enumeration, the listing rules, sort and limit),
// so that the ratio shows what our own code adds to the file system's cost.
//     folder_bench.exe [--rounds N] [--keep]
//     folder_bench.exe --print-plan
// The folders are made under the temporary directory when they are not there yet and
// removed at the end; --keep leaves them for the next run. --print-plan prints what
// would be made ("root PATH", then per folder "folder NAME MARKER" followed by "file
// NAME" and "sub NAME" lines), for folder_bench.sh, which makes the folders faster
// than Wine can.
#include "menus/win/folder_enumeration.h"
#include "win/handles.h"
#include "win/text_convert.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using FolderEnumeration::FolderSearch;

constexpr int kCounts[] = {10000, 100000};

std::wstring BenchRoot() {
    wchar_t temp[MAX_PATH];
    const DWORD n = ::GetTempPathW(MAX_PATH, temp);
    return std::wstring(temp, n) + L"tarvex-folder-bench";
}

std::wstring FolderOf(int count) {
    return BenchRoot() + L"\\" + std::to_wstring(count);
}

// Made last, beside the folder so that it is not one of the entries listed: a folder
// without it was left half-made.
std::wstring MarkerName(int count) {
    return std::to_wstring(count) + L".complete";
}
std::wstring MarkerOf(int count) {
    return BenchRoot() + L"\\" + MarkerName(count);
}

struct PlannedEntry {
    std::wstring name;
    bool isFolder = false;
};

// Names as people have them: words in both cases and two scripts, numbers, the common
// extensions, one sub-folder in fifty, in no particular order.
std::vector<PlannedEntry> Plan(int count) {
    static const wchar_t* const words[] = {L"Report", L"invoice", L"Photo",     L"notes",
                                           L"Setup",  L"readme",  L"Übersicht", L"данные"};
    static const wchar_t* const extensions[] = {L".txt", L".DOC", L".pdf", L".lnk", L".exe", L".jpg", L".url", L".Xls"};
    std::vector<PlannedEntry> plan(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
        PlannedEntry& entry = plan[static_cast<std::size_t>(k)];
        const unsigned mixed = static_cast<unsigned>(k) * 2654435761u;
        entry.isFolder = k % 50 == 0;
        entry.name = words[mixed % std::size(words)];
        entry.name += L' ';
        entry.name += std::to_wstring((mixed >> 8) % 100000);
        entry.name += L' ';
        entry.name += std::to_wstring(k);
        if (!entry.isFolder)
            entry.name += extensions[(mixed >> 4) % std::size(extensions)];
    }
    return plan;
}

bool Exists(const std::wstring& path) {
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool CreateEmptyFile(const std::wstring& path) {
    Win::UniqueFileHandle file(
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return static_cast<bool>(file);
}

// The bench folders hold files and empty sub-folders only.
void RemoveFolder(const std::wstring& folder) {
    std::vector<PlannedEntry> found;
    for (FolderSearch search(Win::Narrow(folder + L"\\")); search.Next();) {
        const WIN32_FIND_DATAW& entry = search.Entry();
        if (std::wcscmp(entry.cFileName, L".") != 0 && std::wcscmp(entry.cFileName, L"..") != 0)
            found.push_back({entry.cFileName, (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    }
    for (const PlannedEntry& entry : found) {
        const std::wstring path = folder + L"\\" + entry.name;
        if (entry.isFolder)
            ::RemoveDirectoryW(path.c_str());
        else
            ::DeleteFileW(path.c_str());
    }
    ::RemoveDirectoryW(folder.c_str());
}

bool PrepareFolder(int count) {
    const std::wstring folder = FolderOf(count);
    if (Exists(MarkerOf(count)))
        return true;
    std::printf("making %d entries in %s ...\n", count, Win::Narrow(folder).c_str());
    std::fflush(stdout);
    if (Exists(folder))
        RemoveFolder(folder);
    ::CreateDirectoryW(BenchRoot().c_str(), nullptr);
    if (!::CreateDirectoryW(folder.c_str(), nullptr))
        return false;
    for (const PlannedEntry& entry : Plan(count)) {
        const std::wstring path = folder + L"\\" + entry.name;
        if (!(entry.isFolder ? ::CreateDirectoryW(path.c_str(), nullptr) != FALSE : CreateEmptyFile(path)))
            return false;
    }
    return CreateEmptyFile(MarkerOf(count));
}

// The bench root is made here, so that a script can ask Wine where it is on disk.
void PrintPlan() {
    ::CreateDirectoryW(BenchRoot().c_str(), nullptr);
    std::printf("root %s\n", Win::Narrow(BenchRoot()).c_str());
    for (const int count : kCounts) {
        std::printf("folder %d %s\n", count, Win::Narrow(MarkerName(count)).c_str());
        for (const PlannedEntry& entry : Plan(count))
            std::printf("%s %s\n", entry.isFolder ? "sub" : "file", Win::Narrow(entry.name).c_str());
    }
}

void RemoveBenchFolders() {
    for (const int count : kCounts) {
        RemoveFolder(FolderOf(count));
        ::DeleteFileW(MarkerOf(count).c_str());
    }
    ::RemoveDirectoryW(BenchRoot().c_str());
}

template <typename Work>
double BestMilliseconds(int rounds, Work work) {
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, elapsed.count());
    }
    return best;
}

double Milliseconds(std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

// Where the time of a listing goes: the steps of the listing, each timed alone on
// entries found once and kept in memory.
void PrintSteps(const std::string& folder, const SettingsRec& settings, int rounds) {
    std::vector<WIN32_FIND_DATAW> found;
    for (FolderSearch search(folder); search.Next();)
        found.push_back(search.Entry());
    std::vector<DirEntry> entries(found.size());
    const double narrow = BestMilliseconds(rounds, [&] {
        for (std::size_t k = 0; k < found.size(); ++k) {
            entries[k].name = Win::Narrow(found[k].cFileName);
            entries[k].attributes = found[k].dwFileAttributes;
            entries[k].isFolder = (found[k].dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        }
    });
    FolderListRequest request;
    request.folder = folder;
    double rules = 1e300;
    double finish = 1e300;
    for (int round = 0; round < rounds; ++round) {
        FolderListBuilder builder(request, settings);
        const auto start = std::chrono::steady_clock::now();
        for (const DirEntry& entry : entries)
            builder.Add(folder, entry);
        const auto added = std::chrono::steady_clock::now();
        const FolderListing listing = builder.Finish();
        const auto done = std::chrono::steady_clock::now();
        rules = std::min(rules, Milliseconds(start, added));
        finish = std::min(finish, Milliseconds(added, done));
    }
    std::printf("    steps: names to UTF-8 %.1f ms, rules %.1f ms, sort and limit %.1f ms\n", narrow, rules, finish);
}

void Bench(int count, int rounds) {
    const std::string folder = Win::Narrow(FolderOf(count)) + "\\";
    SettingsRec settings;

    std::size_t found = 0;
    const double bare = BestMilliseconds(rounds, [&] {
        found = 0;
        for (FolderSearch search(folder); search.Next();)
            ++found;
    });

    FolderListRequest request;
    request.folder = folder;
    std::size_t shown = 0;
    const double listing =
        BestMilliseconds(rounds, [&] { shown = FolderEnumeration::ListFolder(request, settings).entries.size(); });

    std::printf("folder of %6d entries: enumeration %7.1f ms, listing %7.1f ms, ratio %.2f (%zu found, %zu shown)\n",
                count, bare, listing, listing / bare, found, shown);
    PrintSteps(folder, settings, rounds);
}

} // namespace

int main(int argc, char** argv) {
    bool keep = false;
    int rounds = 5;
    for (int k = 1; k < argc; ++k) {
        if (std::strcmp(argv[k], "--print-plan") == 0) {
            PrintPlan();
            return 0;
        }
        if (std::strcmp(argv[k], "--keep") == 0)
            keep = true;
        else if (std::strcmp(argv[k], "--rounds") == 0 && k + 1 < argc)
            rounds = std::max(1, std::atoi(argv[++k]));
    }
    for (const int count : kCounts) {
        if (!PrepareFolder(count)) {
            std::printf("could not make the folder of %d entries\n", count);
            return 1;
        }
    }
    std::printf("best of %d rounds\n", rounds);
    for (const int count : kCounts)
        Bench(count, rounds);
    if (!keep)
        RemoveBenchFolders();
    return 0;
}
