// Another program running beside the one under test (Wine's notepad, say): a window to
// list, to click in, to minimise. It is ended when the object goes.
#pragma once

#include "harness/wait.h"
#include "harness/windows.h"
#include "win/handles.h"

#include <optional>
#include <string>

namespace E2e {

class OtherProgram {
public:
    OtherProgram() = default;
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram();

    // Starts the command line and waits for the program's first visible window of the class.
    bool Start(const std::wstring& commandLine, const std::string& windowClass, Duration timeout = 20s);
    void End();
    // Minimises its window and waits until it is.
    bool Minimise();

    HWND hwnd() const { return window_ ? window_->hwnd : nullptr; }
    const WindowInfo& window() const { return *window_; }

private:
    Win::UniqueKernelHandle process_;
    std::optional<WindowInfo> window_;
};

} // namespace E2e
