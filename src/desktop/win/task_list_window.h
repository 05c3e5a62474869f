// frmTaskList: the task list kept on the desktop. It shows the running tasks and then the
// user's own tasks, as icons or as buttons, in a row or a column, in the corner that
// TaskbarPos names; it takes the tasks again every second and repaints only when they
// changed. A click on a task brings its window forward; on a user task, starts it.
#pragma once

#include "core/win/program.h"
#include "desktop/desktop_bars.h"
#include "desktop/task_filter.h"
#include "desktop/win/bar_surface.h"
#include "win/form_window.h"
#include "win/handles.h"

#include <windows.h>

#include <map>
#include <string>
#include <vector>

class frmTaskList {
public:
    static constexpr const wchar_t* kClassName = L"Tarvex2TaskList";
    static constexpr UINT kRefreshInterval = 1000;

    explicit frmTaskList(Program& program) : program_(program) {}
    frmTaskList(const frmTaskList&) = delete;
    frmTaskList& operator=(const frmTaskList&) = delete;

    void Show();
    void Hide();
    bool Visible() const { return window_ && ::IsWindowVisible(window_.get()); }

private:
    friend LRESULT CALLBACK Win::FormWindowProc<frmTaskList>(HWND, UINT, WPARAM, LPARAM);
    LRESULT HandleMessage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    // One shown entry: a running task, or a user task (window 0).
    struct Entry {
        std::uint64_t window = 0;
        std::string title;
        std::string program;  // the executable: its icon; for a user task, what starts
        std::string iconFile; // a user task's own icon
        bool foreground = false;
        bool operator==(const Entry&) const = default;
    };

    bool Create();
    std::vector<Entry> TakeEntries() const;
    void tmrRefresh_Timer();
    void Rebuild();
    void SetTooltips();
    HICON IconOf(int item);
    void Form_Click(MenuWindow::Point point);

    Program& program_;
    DesktopBarsWin::BarSurface surface_;
    DesktopBars::TaskListShape shape_;
    DesktopBars::TaskListLayout layout_;
    std::vector<Entry> entries_;
    std::map<std::string, Win::UniqueIcon> icons_; // by file, at the shape's icon size
    Win::UniqueWindow tooltips_;
    // Declared last, so it goes first.
    Win::UniqueWindow window_;
};
