// The autostart entry: the value "Tarvex" under the Run key that starts the program
// at logon with the word "autostart". It belongs under the local machine's key; a
// standard user may not write there, and then it goes under the current user's key,
// so that the setting works for everyone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Autostart {

inline constexpr std::string_view kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr std::string_view kValueName = "Tarvex";

// The value: the program folder and the fixed executable name, whatever name the
// program runs under, followed by the word.
std::string Command(std::string_view programFolder);

enum class RunKeyScope { LocalMachine, CurrentUser };

// The two Run keys; the shell writes them in the registry, tests in memory.
class RunKeyStore {
public:
    virtual ~RunKeyStore() = default;
    // False when the write is refused.
    virtual bool Write(RunKeyScope scope, std::string_view value) = 0;
    virtual void Remove(RunKeyScope scope) = 0;
};

// Writes the value when autoRun is set, else removes it from both keys. Returns the
// key that holds the value afterwards, nullopt when none does. A value under the
// current user's key is removed once the machine's key holds it, so that logon does
// not start the program twice.
std::optional<RunKeyScope> Apply(bool autoRun, std::string_view programFolder, RunKeyStore& store);

} // namespace Autostart
