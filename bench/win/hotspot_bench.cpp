// What the resident program costs and how fast it answers, measured from outside on the
// real tarvex2.exe: its CPU time over an idle stretch (no input, no menu open; the mouse
// timer polls every 10 ms all the while), and the time from a desktop click's release to
// the hotspot's menu on screen and painted, for a right click (one tick of delay) and a
// left click (which first waits out the double-click delay, GenDblClickDelay ticks).
//     hotspot_bench.exe [--idle SECONDS] [--rounds N]
#include "harness/input.h"
#include "harness/menu_files.h"
#include "harness/menu_window.h"
#include "harness/program_folder.h"
#include "harness/screen.h"
#include "harness/tarvex.h"
#include "win/handles.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace E2e;
using Clock = std::chrono::steady_clock;

constexpr COLORREF kTitleColour = 0x00803010; // the plain look's title bar
constexpr int kClickX = 400;
constexpr int kClickY = 300;

double Seconds(const FILETIME& time) {
    ULARGE_INTEGER value{};
    value.LowPart = time.dwLowDateTime;
    value.HighPart = time.dwHighDateTime;
    return static_cast<double>(value.QuadPart) / 1e7;
}

double CpuSeconds(HANDLE process) {
    FILETIME created{}, exited{}, kernel{}, user{};
    if (!::GetProcessTimes(process, &created, &exited, &kernel, &user))
        return -1;
    return Seconds(kernel) + Seconds(user);
}

// Under Wine another process's Windows times read as zero, and Wine's server does the
// work of many system calls for every process: both are read from Linux's process table
// (clock ticks of 1/100 s) by the process's name. -1 when there is no such table.
double LinuxCpuSeconds(const std::string& name) {
    WIN32_FIND_DATAW found{};
    Win::UniqueFindHandle search(::FindFirstFileW(L"Z:\\proc\\*", &found));
    if (!search)
        return -1;
    double seconds = -1;
    do {
        std::wstring id = found.cFileName;
        if (id.empty() || id.find_first_not_of(L"0123456789") != std::wstring::npos)
            continue;
        std::ifstream stat(std::filesystem::path(L"Z:\\proc\\" + id + L"\\stat"));
        std::string line;
        std::getline(stat, line);
        std::size_t open = line.find('(');
        std::size_t close = line.rfind(')');
        if (open == std::string::npos || close == std::string::npos ||
            line.compare(open + 1, name.size(), name) != 0)
            continue;
        std::istringstream fields(line.substr(close + 2));
        std::string field;
        std::vector<std::string> values;
        while (fields >> field)
            values.push_back(field);
        // utime and stime are the 12th and 13th fields after the name.
        if (values.size() > 12)
            seconds = (std::atof(values[11].c_str()) + std::atof(values[12].c_str())) / 100.0;
        break;
    } while (::FindNextFileW(search.get(), &found));
    return seconds;
}

double CpuSecondsOf(const char* name, HANDLE process) {
    double linux = LinuxCpuSeconds(name);
    return linux >= 0 ? linux : CpuSeconds(process);
}

// The floor under the program's idle cost: a window of this process that does nothing
// but take a 10 ms timer's messages, as the program's main form takes its mouse timer's.
double EmptyTimerPercent(int seconds) {
    Win::UniqueWindow window(::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                                               nullptr));
    ::SetTimer(window.get(), 1, 10, nullptr);
    double before = CpuSecondsOf("hotspot_bench", ::GetCurrentProcess());
    Clock::time_point start = Clock::now();
    Clock::time_point end = start + std::chrono::seconds(seconds);
    MSG msg;
    while (Clock::now() < end && ::GetMessageW(&msg, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&msg);
    double wall = std::chrono::duration<double>(Clock::now() - start).count();
    return 100 * (CpuSecondsOf("hotspot_bench", ::GetCurrentProcess()) - before) / wall;
}

void SendButton(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

HWND VisibleMenu() {
    HWND menu = ::FindWindowW(L"Tarvex2Menu", nullptr);
    return menu && ::IsWindowVisible(menu) ? menu : nullptr;
}

struct ClickTimes {
    double visible = -1; // ms from the release to the window shown
    double painted = -1; // ms from the release to its title bar on screen
};

// Clicks the desktop and times its menu; polls the screen every millisecond or so.
ClickTimes TimeClick(DWORD down, DWORD up) {
    ClickTimes times;
    if (!MoveMouse(kClickX, kClickY))
        return times;
    SendButton(down);
    Settle(80ms);
    Clock::time_point released = Clock::now();
    SendButton(up);
    auto since = [&] { return std::chrono::duration<double, std::milli>(Clock::now() - released).count(); };
    HWND menu = nullptr;
    while (!(menu = VisibleMenu()) && since() < 5000)
        ::Sleep(1);
    if (!menu)
        return times;
    times.visible = since();
    RECT rect{};
    ::GetWindowRect(menu, &rect);
    while (ReadPixel((rect.left + rect.right) / 2, rect.top + 2) != kTitleColour && since() < 5000)
        ::Sleep(1);
    times.painted = since();
    return times;
}

void CloseMenu(DWORD down, DWORD up) {
    MoveMouse(800, 600);
    SendButton(down);
    Settle(80ms);
    SendButton(up);
    WaitUntil([] { return VisibleMenu() == nullptr; }, 5s);
    Settle(300ms);
}

void Report(const char* what, std::vector<ClickTimes> times) {
    auto line = [&](const char* part, double ClickTimes::*field) {
        std::vector<double> values;
        for (const ClickTimes& t : times)
            values.push_back(t.*field);
        std::sort(values.begin(), values.end());
        std::printf("%-34s %-8s best %7.1f ms   median %7.1f ms\n", what, part, values.front(),
                    values[values.size() / 2]);
    };
    line("shown", &ClickTimes::visible);
    line("painted", &ClickTimes::painted);
}

} // namespace

int main(int argc, char** argv) {
    int idleSeconds = 60;
    int rounds = 10;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--idle") == 0)
            idleSeconds = std::max(1, std::atoi(argv[i + 1]));
        else if (std::strcmp(argv[i], "--rounds") == 0)
            rounds = std::max(1, std::atoi(argv[i + 1]));
    }
    ProgramFolder folder;
    TestHotspot left;
    left.target = "Programs";
    // Away from the clicks: a menu that opens under the pointer takes the mouse, and
    // under Wine moves sent from another process then do not reach it reliably.
    left.left = 100;
    left.top = 100;
    TestHotspot right = left;
    right.mouseButton = 2;
    right.group = "Right";
    folder.WriteSettings(HotspotSettings({left, right}, "GenAnimationOn=False\nGenSoundsOn=False\n"));
    folder.WriteMenus(MenuFileText({{"Programs", NotepadItems({"Text Editor", "Calculator", "Paint"})}}));
    Tarvex tarvex;
    if (!folder.ready() || !tarvex.Start(folder) || !tarvex.WaitUntilReady()) {
        std::fprintf(stderr, "hotspot_bench: the program did not start\n");
        return 1;
    }
    Win::UniqueKernelHandle process(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, tarvex.processId()));

    MoveMouse(600, 450);
    Settle(2s);
    double cpuBefore = CpuSecondsOf("tarvex2.exe", process.get());
    double serverBefore = LinuxCpuSeconds("wineserver");
    Clock::time_point start = Clock::now();
    ::Sleep(static_cast<DWORD>(idleSeconds) * 1000);
    double wall = std::chrono::duration<double>(Clock::now() - start).count();
    double cpu = CpuSecondsOf("tarvex2.exe", process.get()) - cpuBefore;
    double server = LinuxCpuSeconds("wineserver") - serverBefore;
    std::printf("idle for %.0f s: the program used %.2f s of CPU, %.2f %% of one core\n", wall, cpu, 100 * cpu / wall);
    if (serverBefore >= 0)
        std::printf("                 Wine's server used %.2f s meanwhile, %.2f %% of one core\n", server,
                    100 * server / wall);
    std::printf("                 an empty 10 ms timer alone: %.2f %% of one core\n", EmptyTimerPercent(idleSeconds));

    std::vector<ClickTimes> rightClicks, leftClicks;
    for (int i = 0; i < rounds; ++i) {
        rightClicks.push_back(TimeClick(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP));
        CloseMenu(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
        leftClicks.push_back(TimeClick(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP));
        CloseMenu(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    }
    std::printf("release to menu, %d rounds:\n", rounds);
    Report("right click", rightClicks);
    Report("left click (GenDblClickDelay 12)", leftClicks);
    tarvex.ExitThroughTray();
    return 0;
}
