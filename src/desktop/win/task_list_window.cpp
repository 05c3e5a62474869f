#include "desktop/win/task_list_window.h"

#include "desktop/win/task_windows.h"
#include "menus/win/launcher.h"
#include "menuwindow/layout/item_list.h"
#include "menuwindow/win/item_icons.h"
#include "win/text_convert.h"

#include <commctrl.h>
#include <windowsx.h>

using namespace DesktopBars;

namespace {

constexpr UINT_PTR kRefreshTimer = 1;

} // namespace

bool frmTaskList::Create() {
    if (window_)
        return true;
    return DesktopBarsWin::RegisterBarClass(kClassName, Win::FormWindowProc<frmTaskList>, 0) &&
           DesktopBarsWin::CreateBarWindow(kClassName, this, program_.settings.TaskbarAlwaysOnTop) != nullptr;
}

void frmTaskList::Show() {
    if (!Create())
        return;
    icons_.clear();
    entries_.clear();
    surface_.Prepare(program_.settings, program_.values.ProgramFolder);
    shape_ = ShapeOf(program_.settings, surface_.fonts().Height(MenuWindow::FontRole::Button), surface_.dpi());
    DesktopBarsWin::SetOnTop(window_.get(), program_.settings.TaskbarAlwaysOnTop);
    Rebuild();
    ::ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
    ::SetTimer(window_.get(), kRefreshTimer, kRefreshInterval, nullptr);
}

void frmTaskList::Hide() {
    if (!window_)
        return;
    ::KillTimer(window_.get(), kRefreshTimer);
    ::ShowWindow(window_.get(), SW_HIDE);
}

std::vector<frmTaskList::Entry> frmTaskList::TakeEntries() const {
    std::vector<Entry> entries;
    std::uint64_t foreground = reinterpret_cast<std::uintptr_t>(::GetForegroundWindow());
    for (const Tasks::TaskEntry& task : TaskWindows::ListTasks())
        entries.push_back({task.window, task.title, task.exePath, "", task.window == foreground});
    for (const UserTaskRec& task : program_.settings.UserTasks)
        entries.push_back({0, task.TaskName, task.TaskExec, task.TaskIcon, false});
    return entries;
}

void frmTaskList::tmrRefresh_Timer() {
    std::vector<Entry> now = TakeEntries();
    if (now == entries_)
        return;
    entries_ = std::move(now);
    Rebuild();
}

void frmTaskList::Rebuild() {
    if (entries_.empty())
        entries_ = TakeEntries();
    MenuWindow::Rect room = DesktopBarsWin::PlacementRoom();
    layout_ = LayOutTaskList(shape_, static_cast<int>(entries_.size()), {room.Width(), room.Height()});
    const SettingsRec& settings = program_.settings;
    Corner corner = CornerOf(settings.TaskbarPos, Corner::BottomLeft);
    DesktopBarsWin::Place(window_.get(),
                          PlaceInCorner(room, layout_.window, corner, settings.TaskbarXofset, settings.TaskbarYofset));
    std::vector<TaskListEntry> shown;
    for (const Entry& entry : entries_)
        shown.push_back({entry.title, entry.foreground});
    MenuWindow::DrawList ops = BackgroundOps(settings, surface_.pictures(), layout_.window, surface_.dpi());
    MenuWindow::DrawList slots = TaskListOps(settings, shape_, layout_, shown);
    ops.insert(ops.end(), slots.begin(), slots.end());
    surface_.Paint(window_.get(), layout_.window, ops, [this](int item) { return IconOf(item); });
    SetTooltips();
}

// A task shows its program's icon (else the shell's for it); a user task its own icon
// file, else its program's.
HICON frmTaskList::IconOf(int item) {
    if (item < 1 || item > static_cast<int>(entries_.size()))
        return nullptr;
    const Entry& entry = entries_[static_cast<std::size_t>(item - 1)];
    std::string key = entry.iconFile.empty() ? entry.program : entry.iconFile;
    auto found = icons_.find(key);
    if (found != icons_.end())
        return found->second.get();
    DisplayEntry display;
    display.PATH = entry.program;
    display.ICONPATH = key;
    Win::UniqueIcon icon;
    if (std::optional<MenuWindow::IconSource> source = MenuWindow::IconSourceOf(display))
        icon = MenuWindow::LoadItemIcon(*source, shape_.iconSize);
    if (!icon && !entry.program.empty())
        icon = MenuWindow::LoadItemIcon({entry.program, 0, true}, shape_.iconSize);
    return icons_.emplace(key, std::move(icon)).first->second.get();
}

void frmTaskList::SetTooltips() {
    tooltips_.reset();
    if (!program_.settings.TaskbarTooltips)
        return;
    tooltips_.reset(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                      window_.get(), nullptr, ::GetModuleHandleW(nullptr), nullptr));
    if (!tooltips_)
        return;
    for (std::size_t i = 0; i < layout_.slots.size() && i < entries_.size(); ++i) {
        std::wstring text = Win::Widen(entries_[i].title);
        const MenuWindow::Rect& slot = layout_.slots[i];
        TOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_SUBCLASS;
        tool.hwnd = window_.get();
        tool.uId = i + 1;
        tool.rect = {slot.left, slot.top, slot.right, slot.bottom};
        tool.lpszText = text.data();
        ::SendMessageW(tooltips_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void frmTaskList::Form_Click(MenuWindow::Point point) {
    std::optional<int> slot = SlotAt(layout_, point);
    if (!slot || *slot >= static_cast<int>(entries_.size()))
        return;
    Entry entry = entries_[static_cast<std::size_t>(*slot)];
    if (entry.window)
        Launcher::ActivateTaskWindow(TaskWindows::WindowOf(entry.window));
    else
        Launcher::RunProgram(program_, entry.title, "", entry.program, "", 0);
}

LRESULT frmTaskList::HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (std::optional<LRESULT> common = DesktopBarsWin::CommonMessage(hwnd, message, surface_))
        return *common;
    switch (message) {
    case WM_LBUTTONUP:
        Form_Click({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        return 0;
    case WM_TIMER:
        if (wParam == kRefreshTimer)
            tmrRefresh_Timer();
        return 0;
    default:
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}
