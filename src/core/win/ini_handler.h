// Reading profile (INI) files through the wide profile functions. Reads use one current
// target (section and file) that the reader sets first. Files are written whole, through
// ProfileRewrite, never key by key: a run ended between two keys would leave a mix.
#pragma once

#include "core/profile.h"
#include "core/profile_merge.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace IniHandler {

void SetTarget(std::string_view section, std::string_view file);

// The value of a key in the current section; a missing key gives the default, a
// present but empty key gives "". At most 254 characters are returned.
std::string ReadValue(std::string_view key, std::string_view defaultValue);

// Fills the table with the current section's keys and values in file order and
// returns how many; 0 with no target set. Every key of the section is read, however
// long the list of names.
std::int16_t ReadSection(ProfileSection& table);

// Reads a whole section of a file (sets the current target).
ProfileSection ReadWholeSection(std::string_view section, std::string_view file);

// Every section of a file as it stands, in file order: each "key=value" line split at
// its first '=', values whole (not cut, quotes kept). A missing file gives none.
std::vector<NamedSection> ReadWholeFile(std::string_view file);

// The folder of a path, upper-cased, with a trailing backslash.
std::string FolderOfPath(std::string_view path);

// Creates an empty profile file holding only the UTF-16LE byte-order mark, unless
// the file exists already. Returns false when it cannot be created.
bool CreateUnicodeProfile(std::string_view file);

// Forgets the current target, as before the first SetTarget. Only tests need this.
void ForgetTargetForTests();

} // namespace IniHandler
