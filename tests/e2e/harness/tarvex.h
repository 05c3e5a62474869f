// One run of tarvex2.exe under test: started with CreateProcessW, driven through its
// main form and tray icon, and stopped through its own exit path. A program still
// running when the object goes is stopped that way too; one that will not end so is
// killed, and the test fails.
#pragma once

#include "harness/program_folder.h"
#include "harness/wait.h"
#include "harness/windows.h"
#include "win/handles.h"

#include <windows.h>

#include <optional>
#include <string>

namespace E2e {

inline constexpr const char* kMainFormClass = "Tarvex2MainForm";
inline constexpr const char* kProgramTitle = "Tarvex 2.0";

class Tarvex {
public:
    Tarvex() = default;
    Tarvex(const Tarvex&) = delete;
    Tarvex& operator=(const Tarvex&) = delete;
    ~Tarvex();

    // Starts the folder's program with the arguments, in currentDirectory (the program
    // folder when empty). False when the process could not be created.
    bool Start(const ProgramFolder& folder, const std::string& arguments = "",
               const std::string& currentDirectory = "");

    DWORD processId() const { return processId_; }
    bool running() const;
    bool WaitForExit(Duration timeout);
    std::optional<DWORD> ExitCode() const;

    // The process's main form: a top-level window of the main form's class. It is never
    // visible, so this waits for the window itself.
    std::optional<WindowInfo> WaitForMainForm(Duration timeout = 30s);

    // The main form, once start-up is over and the program waits for input: its hotspots
    // answer from then on.
    bool WaitUntilReady(Duration timeout = 30s);

    // Once the program's thread is back waiting for messages: what it was doing (closing a
    // window, saving) is over, so the next input is seen. Input the program samples, as
    // its hotspots do, is lost while the thread is busy.
    bool WaitUntilIdle(Duration timeout = 10s);

    // Posts what the shell posts for a mouse event on the tray icon: the icon's
    // callback message (the mouse-move message) with the icon's id and the event.
    void SendTrayMessage(UINT mouseMessage);

    // Right button up on the tray icon, then the popup menu that it opens.
    std::optional<WindowInfo> OpenTrayMenu();

    // Exit from the tray menu, and Yes to the question. True when the process ended.
    bool ExitThroughTray();

    // Ends the process at once, as a kill from outside does: no code of its own runs.
    bool Kill();

    // Makes the process crash: a new thread in it starts at an address that holds no code,
    // so an access violation goes unhandled there, with the program's own code around.
    // True when the thread was made.
    bool Crash();

private:
    Win::UniqueKernelHandle process_;
    DWORD processId_ = 0;
    HWND mainForm_ = nullptr;
};

} // namespace E2e
