#include "core/win/autostart.h"

#include "core/win/registry_access.h"

#include <utility>

namespace Autostart {

RegistryRunKeys::RegistryRunKeys(RunKeyLocation localMachine, RunKeyLocation currentUser)
    : localMachine_(std::move(localMachine)), currentUser_(std::move(currentUser)) {}

const RunKeyLocation& RegistryRunKeys::Location(RunKeyScope scope) const {
    return scope == RunKeyScope::LocalMachine ? localMachine_ : currentUser_;
}

bool RegistryRunKeys::Write(RunKeyScope scope, std::string_view value) {
    const RunKeyLocation& key = Location(scope);
    RegistryAccess::CreateKey(key.root, key.path);
    return RegistryAccess::SetValue(key.root, key.path, kValueName, std::string(value)) == ERROR_SUCCESS;
}

void RegistryRunKeys::Remove(RunKeyScope scope) {
    const RunKeyLocation& key = Location(scope);
    RegistryAccess::DeleteValue(key.root, key.path, kValueName);
}

RegistryRunKeys SystemRunKeys() {
    return RegistryRunKeys({HKEY_LOCAL_MACHINE, std::string(kRunKey)}, {HKEY_CURRENT_USER, std::string(kRunKey)});
}

std::optional<RunKeyScope> WriteAutostartValue(bool autoRun, std::string_view programFolder) {
    RegistryRunKeys keys = SystemRunKeys();
    return Apply(autoRun, programFolder, keys);
}

} // namespace Autostart
