// The launcher: starting a "Filename" item (RunProgram), running a "Command Name" item
// (RunCommand), and bringing a task's window forward (ActivateTaskWindow). None of
// them waits for what it started.
#pragma once

#include "core/win/program.h"

#include <windows.h>

#include <cstdint>
#include <string_view>

class Form1;

namespace Launcher {

// Plays the launch sound, then starts an applet through the control panel or anything
// else through the shell (the file type's default action, then "open"); when both fail,
// a box titled after the entry's label says why.
void RunProgram(const Program& program, std::string_view title, std::string_view startFolder, std::string_view path,
                std::string_view arguments, int runState);

// Plays the launch sound, then runs "*" + a code as that internal command and returns
// its result, or starts anything else as a command line and returns -1.
std::int16_t RunCommand(Form1& form1, std::string_view value);

// Starts a command line in a window state (a show command); a failure is silent.
void StartCommandLine(std::string_view commandLine, int showCommand);

// True when the window is, or became, the foreground window.
bool ActivateTaskWindow(HWND window);

} // namespace Launcher
