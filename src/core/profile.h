// Plain data that passes between the core and the profile-file code of the shell:
// the core reads sections as lists of entries and describes writes as records.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// One key of a section, in file order; duplicates are kept as the file has them.
struct ProfileEntry {
    std::string key;
    std::string value;
    bool operator==(const ProfileEntry&) const = default;
};

using ProfileSection = std::vector<ProfileEntry>;

// One value to write: WritePrivateProfileString(section, key, value, file).
struct ProfileWrite {
    std::string section;
    std::string key;
    std::string value;
    bool operator==(const ProfileWrite&) const = default;
};

using ProfileWrites = std::vector<ProfileWrite>;

// Reads a whole section of one file by name; a missing file or section gives no entries.
using SectionReader = std::function<ProfileSection(std::string_view section)>;
