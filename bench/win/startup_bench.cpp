// How the size of the menu file weighs on start-up, measured from outside on the real
// tarvex2.exe: the time from starting the program to its start-up menu on screen and
// painted, for menu files of 10 to 50,000 items. The menu that opens is the same
// ten-item menu every time; the other items stand in menus of 100 beside it. Beside it,
// the load of the file alone, in this process, through the program's own code.
//     startup_bench.exe [--rounds N]
#include "harness/menu_files.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "harness/windows.h"
#include "menus/menu_records.h"
#include "menus/win/menu_store.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace E2e;
using Clock = std::chrono::steady_clock;

constexpr COLORREF kTitleColour = 0x00803010; // the plain look's title bar
constexpr int kMenuLeft = 200;
constexpr int kMenuTop = 150;

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// "Program 12": a name appended to, not added to a literal (GCC 12's i686 -Wrestrict).
std::string Numbered(const char* stem, std::size_t number) {
    std::string name = stem;
    name += std::to_string(number);
    return name;
}

// The start-up menu of ten items, then menus of 100 up to `items` in all.
std::string MenuFile(int items) {
    std::vector<TestMenu> menus;
    std::vector<std::string> labels;
    for (int i = 1; i <= 10; ++i)
        labels.push_back(Numbered("Start item ", static_cast<std::size_t>(i)));
    menus.push_back({"Start", NotepadItems(labels)});
    for (int done = 10; done < items; done += 100) {
        labels.clear();
        for (int i = 1; i <= std::min(100, items - done); ++i)
            labels.push_back(Numbered("Program ", static_cast<std::size_t>(done + i)));
        menus.push_back({Numbered("Menu ", menus.size() + 1), NotepadItems(labels)});
    }
    return MenuFileText(menus);
}

// Milliseconds from the start to the menu painted; -1 when it did not come.
double TimeStart(const ProgramFolder& folder) {
    Tarvex tarvex;
    const Clock::time_point start = Clock::now();
    if (!tarvex.Start(folder))
        return -1;
    std::optional<WindowInfo> menu = WaitForVisibleWindow("Tarvex2Menu", tarvex.processId(), 120s);
    if (!menu)
        return -1;
    const RECT& rect = menu->rect;
    while (ReadPixel((rect.left + rect.right) / 2, rect.top + 2) != kTitleColour && MillisecondsSince(start) < 120000)
        ::Sleep(1);
    return MillisecondsSince(start);
}

// Milliseconds to load the menu file through the program's own code; -1 when it did not
// give all its items.
double TimeLoad(const std::string& file, int items) {
    MenuTable table;
    const Clock::time_point start = Clock::now();
    MenuStore::LoadMenuFile(table, file);
    const double time = MillisecondsSince(start);
    std::size_t loaded = 0;
    for (const auto& chain : table.chains)
        loaded += chain.size();
    return loaded == static_cast<std::size_t>(items) ? time : -1;
}

double Best(std::vector<double> values) { return *std::min_element(values.begin(), values.end()); }

} // namespace

int main(int argc, char** argv) {
    int rounds = 3;
    if (argc == 3 && std::strcmp(argv[1], "--rounds") == 0)
        rounds = std::max(1, std::atoi(argv[2]));

    std::printf("%d rounds, best of each:   start-up to menu painted   menu file loaded alone\n", rounds);
    double tenItems = 0;
    for (int items : {10, 2000, 5000, 50000}) {
        ProgramFolder folder;
        folder.WriteSettings(
            StartupMenuSettings("Start", kMenuLeft, kMenuTop, "GenAnimationOn=False\nGenSoundsOn=False\n"));
        folder.WriteMenus(MenuFile(items));
        std::vector<double> starts;
        std::vector<double> loads;
        for (int round = 0; round < rounds; ++round) {
            starts.push_back(TimeStart(folder));
            loads.push_back(TimeLoad(folder.File("TvMenus.ini"), items));
        }
        if (items == 10)
            tenItems = Best(starts);
        std::printf("  %6d items  %24.0f ms (%.2fx)  %14.1f ms\n", items, Best(starts), Best(starts) / tenItems,
                    Best(loads));
    }
    return 0;
}
