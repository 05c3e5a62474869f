// Times the menu window under Wine or Windows: opening a 40-item menu (display list,
// measuring, layout, placement, painting and showing it), repainting the buttons of a
// change of selection, and the mouse sweeping down the whole menu with the bar
// following it, next to filling the same window area once with one solid brush, which
// is the floor any painting of that area stands on.
//     menu_window_bench.exe [--rounds N]
#include "core/settings.h"
#include "core/win/system_values.h"
#include "menus/data_manager.h"
#include "menus/menu_records.h"
#include "menuwindow/layout/menu_scene.h"
#include "menuwindow/win/form2.h"
#include "menuwindow/win/open_menus.h"
#include "win/handles.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kItems = 40;

// Lets the window's paint messages through, so that what is timed reaches the screen.
void PumpMessages() {
    MSG msg;
    while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

struct Figures {
    double best = 0;
    double median = 0;
};

// Runs the work the number of times, each followed by the untimed tidying, and gives
// its best and median time in microseconds.
Figures Time(
    int rounds, const std::function<void()>& work, const std::function<void()>& after = [] {}) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        Clock::time_point start = Clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
        after();
    }
    std::sort(times.begin(), times.end());
    return {times.front(), times[times.size() / 2]};
}

MenuTable FortyItemMenu() {
    MenuTable menus;
    MenuRec menu;
    menu.NAME = "Applications";
    menus.menus.push_back(menu);
    static const char* const names[] = {"Editor",   "Calculator", "Paint",    "Mail",      "Browser",
                                        "Terminal", "Music",      "Pictures", "Documents", "Settings"};
    for (int i = 0; i < kItems; ++i) {
        std::int32_t slot = DataManager::AppendItem(menus, 0);
        MenuItemRec& item = menus.pool[static_cast<std::size_t>(slot)];
        item.LABEL = std::string(names[i % 10]) + " " + std::to_string(i + 1);
        item.TYPE = i % 8 == 0 ? kItemMenuName : kItemFilename;
        item.HOTKEY = i % 7 == 0 ? std::string(1, static_cast<char>('a' + i % 26)) : "";
    }
    return menus;
}

// The default look with a gradient title: the heavier of the usual looks to paint.
SettingsRec BenchSettings() {
    SettingsRec settings;
    settings.TitleGradient = true;
    settings.TitleColor = 0x00602000;
    settings.TitleColor2 = 0x00F0B060;
    settings.SelBarFollowMouse = true;
    return settings;
}

class Bench {
public:
    Bench() : settings_(BenchSettings()), menus_(FortyItemMenu()) {}

    Form2* Open() {
        int index = openMenus_.Append();
        MenuWindow::CascadeRec& record = openMenus_.records().At(index);
        record.kind = kItemMenuName;
        record.menuNumber = 1;
        record.openedByHotspot = true;
        record.position = {100, 0};
        auto window = std::make_unique<Form2>(settings_, menus_, SystemValues::ExecutableFolder(), openMenus_, record.id);
        Form2* form = window.get();
        openMenus_.Attach(index, std::move(window));
        if (!form->Create())
            return nullptr;
        form->Show();
        PumpMessages();
        return form;
    }

    void CloseAll() {
        openMenus_.CloseAll();
        PumpMessages();
    }

private:
    SettingsRec settings_;
    MenuTable menus_;
    OpenMenus openMenus_;
};

int RoundsFrom(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i)
        if (std::strcmp(argv[i], "--rounds") == 0)
            return std::max(1, std::atoi(argv[i + 1]));
    return 50;
}

} // namespace

int main(int argc, char** argv) {
    int rounds = RoundsFrom(argc, argv);
    Bench bench;
    Form2* probe = bench.Open();
    if (!probe) {
        std::fprintf(stderr, "the menu window could not be made\n");
        return 1;
    }
    MenuWindow::Size window = probe->scene().layout.window;
    int shown = probe->scene().view().slots;
    bench.CloseAll();

    Figures open = Time(
        rounds, [&] { bench.Open(); }, [&] { bench.CloseAll(); });

    Form2* form = bench.Open();
    Figures repaint = Time(rounds, [&] {
        form->PaintMenu();
        ::UpdateWindow(form->hwnd());
    });
    int selected = 1;
    int drawnBefore = form->ButtonsDrawn();
    Figures select = Time(rounds, [&] {
        selected = selected % shown + 1;
        form->SetSelection({selected, false});
        ::UpdateWindow(form->hwnd());
    });
    double drawnPerChange = static_cast<double>(form->ButtonsDrawn() - drawnBefore) / rounds;

    // Two moves over each button, near its top and across its middle: the second finds
    // the bar already there and paints nothing.
    std::vector<LPARAM> sweep;
    for (int item = 1; item <= shown; ++item) {
        MenuWindow::Rect button = MenuWindow::ItemInWindow(form->scene(), item);
        int x = (button.left + button.right) / 2;
        sweep.push_back(MAKELPARAM(x, button.top + 1));
        sweep.push_back(MAKELPARAM(x, (button.top + button.bottom) / 2));
    }
    drawnBefore = form->ButtonsDrawn();
    Figures hover = Time(rounds, [&] {
        for (LPARAM point : sweep) {
            ::SendMessageW(form->hwnd(), WM_MOUSEMOVE, 0, point);
            ::UpdateWindow(form->hwnd());
        }
    });
    auto moves = static_cast<double>(sweep.size());
    double drawnPerMove = static_cast<double>(form->ButtonsDrawn() - drawnBefore) / (rounds * moves);
    Figures fillWindow = Time(rounds, [&] {
        Win::WindowDc windowDc(form->hwnd());
        RECT all{0, 0, window.width, window.height};
        ::FillRect(windowDc.get(), &all, static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH)));
        ::GdiFlush();
    });
    bench.CloseAll();

    Win::WindowDc screen(nullptr);
    Win::UniqueMemoryDc dc(::CreateCompatibleDC(screen.get()));
    Win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen.get(), window.width, window.height));
    Win::SelectGuard selectBitmap(dc.get(), bitmap.get());
    Win::UniqueBrush brush(::CreateSolidBrush(RGB(0xDF, 0xDF, 0xDF)));
    RECT area{0, 0, window.width, window.height};
    Figures fill = Time(rounds, [&] {
        ::FillRect(dc.get(), &area, brush.get());
        ::GdiFlush();
    });

    std::printf("menu window, %d items (%d button slots on the screen), window %dx%d, %d rounds, best / median:\n",
                kItems, shown, window.width, window.height, rounds);
    std::printf("  open: make the window, list, measure, lay out, place, paint, show  %9.1f / %9.1f us\n", open.best,
                open.median);
    std::printf("  PaintMenu again on the open window, shown                          %9.1f / %9.1f us\n", repaint.best,
                repaint.median);
    std::printf("  change of selection: %.1f buttons repainted, shown                 %9.1f / %9.1f us\n",
                drawnPerChange, select.best, select.median);
    std::printf("  mouse sweep, per move: %.2f buttons repainted, shown                %9.1f / %9.1f us\n",
                drawnPerMove, hover.best / moves, hover.median / moves);
    std::printf("  one solid fill of the window's area, off screen                    %9.1f / %9.1f us\n", fill.best,
                fill.median);
    std::printf("  one solid fill of the window's area, on the window                 %9.1f / %9.1f us\n",
                fillWindow.best, fillWindow.median);
    return 0;
}
