#include "core/autostart_rules.h"

namespace Autostart {

std::string Command(std::string_view programFolder) {
    return std::string(programFolder) + "\\tarvex2.exe autostart";
}

std::optional<RunKeyScope> Apply(bool autoRun, std::string_view programFolder, RunKeyStore& store) {
    if (!autoRun) {
        store.Remove(RunKeyScope::LocalMachine);
        store.Remove(RunKeyScope::CurrentUser);
        return std::nullopt;
    }
    std::string value = Command(programFolder);
    if (store.Write(RunKeyScope::LocalMachine, value)) {
        store.Remove(RunKeyScope::CurrentUser);
        return RunKeyScope::LocalMachine;
    }
    if (store.Write(RunKeyScope::CurrentUser, value))
        return RunKeyScope::CurrentUser;
    return std::nullopt;
}

} // namespace Autostart
