// InternalCommands: the program's own actions that menu items and hotspots name by
// "*" and a code, carried out as the core's command actions say.
#pragma once

#include <cstdint>
#include <functional>

class Form1;

namespace InternalCommands {

// The code that a command value too large for a 16-bit number stands for: none.
inline constexpr std::int16_t kNoCommand = -1;

// Runs the command of a code and returns the code, which tells the menu window whether
// to stay open (9, 14) or come forward again (27). An unknown code says so in a box.
std::int16_t RunInternalCommand(Form1& form1, std::int16_t code);

// The two calls that end the session. The program uses the system's; a test puts in
// its own, so that running a session command never ends the session it runs in.
struct SessionControl {
    std::function<void()> enableShutdownPrivilege;
    std::function<bool(std::uint32_t flags)> exitWindows;
};

// Replaces the session calls; returns the ones before, so a test can put them back.
SessionControl SetSessionControl(SessionControl control);

} // namespace InternalCommands
