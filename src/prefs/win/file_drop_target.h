// Files and folders dragged from the shell (or any program offering the shell's list of
// paths) onto a window. An OLE drop target, so that the drag works across processes the
// way the shell starts it; it is registered for as long as the object lives.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace PrefsWin {

class FileDropTarget {
public:
    // The dropped paths and the point of the drop, in screen pixels.
    using Dropped = std::function<void(const std::vector<std::wstring>& paths, POINT screen)>;
    // Where files are carried over the window, in screen pixels; nothing once they left
    // or were dropped.
    using Over = std::function<void(std::optional<POINT> screen)>;

    FileDropTarget(HWND window, Dropped dropped, Over over);
    ~FileDropTarget();
    FileDropTarget(const FileDropTarget&) = delete;
    FileDropTarget& operator=(const FileDropTarget&) = delete;

private:
    class Target;
    HWND window_;
    Target* target_ = nullptr; // counted by COM: the registration holds a reference, and so do we
};

} // namespace PrefsWin
