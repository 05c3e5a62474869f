// Writes and removes the autostart value in the registry's Run keys.
#pragma once

#include "core/autostart_rules.h"

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace Autostart {

// Where one Run key lives: a root and the path of the key under it.
struct RunKeyLocation {
    HKEY root;
    std::string path;
};

// The Run keys in the registry. The value is written with the registry functions of
// the program; a key that is missing is created first.
class RegistryRunKeys : public RunKeyStore {
public:
    RegistryRunKeys(RunKeyLocation localMachine, RunKeyLocation currentUser);

    bool Write(RunKeyScope scope, std::string_view value) override;
    void Remove(RunKeyScope scope) override;

private:
    const RunKeyLocation& Location(RunKeyScope scope) const;

    RunKeyLocation localMachine_;
    RunKeyLocation currentUser_;
};

// The Run keys of the local machine and of the current user.
RegistryRunKeys SystemRunKeys();

// Sets the value "Tarvex" when autoRun is on, deletes it from both keys when it is off.
// Returns the key that holds it afterwards.
std::optional<RunKeyScope> WriteAutostartValue(bool autoRun, std::string_view programFolder);

} // namespace Autostart
