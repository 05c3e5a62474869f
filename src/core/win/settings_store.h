// Loads and saves SettingsRec in section [TARVEX] of a settings or theme file, and
// reads the shell's program-menu folders that the default menus are adapted to.
#pragma once

#include "core/program_folders.h"
#include "core/settings.h"
#include "core/win/profile_rewrite.h"

#include <string_view>

namespace SettingsStore {

// Defaults first, then every key the file holds; a missing file leaves the defaults.
// With themeOnly, only the look keys are touched.
void Load(std::string_view file, bool themeOnly, SettingsRec& settings);

// Writes the keys in catalogue order; with themeOnly, the look keys alone. Keys the
// file holds besides them stay. A new file is UTF-16 with a byte-order mark. Saved as
// SaveAtomically saves.
ProfileRewrite::Result Save(std::string_view file, bool themeOnly, const SettingsRec& settings);

// Writes the given keys into the file in one step: the file is rewritten whole through a
// temporary file, with every other key and section it holds kept, so that it is never
// seen half-written. The file then reads as writing the keys one by one into it would
// have left it. On failure the file stays as it was and the result says why.
ProfileRewrite::Result SaveAtomically(std::string_view file, const ProfileWrites& writes);

// The "Programs", "Common Programs" and "Desktop" values of Explorer's Shell Folders,
// with the fallbacks under the Windows folder for those that are missing.
ProgramFolders ReadProgramFolders(std::string_view windowsFolder, bool isNT);

} // namespace SettingsStore
