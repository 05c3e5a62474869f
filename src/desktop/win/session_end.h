// The system calls that end the session: the shutdown privilege of the program's own
// process, and the exit-session call itself.
#pragma once

#include <cstdint>

namespace SessionEnd {

// Enables "SeShutdownPrivilege" in the process's token; a failure is left to the exit
// call, which then refuses.
void EnableShutdownPrivilege();

bool EndSession(std::uint32_t flags);

} // namespace SessionEnd
