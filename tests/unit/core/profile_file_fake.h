// A profile section in memory that takes writes the way WritePrivateProfileString does:
// the first key of the same name, in any case, gets the new value; a new key is appended.
#pragma once

#include "core/profile.h"
#include "core/text.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

inline void ApplyWrites(ProfileSection& section, const ProfileWrites& writes) {
    for (const ProfileWrite& write : writes) {
        auto same = [&](const ProfileEntry& e) { return Text::EqualsIgnoreCase(e.key, write.key); };
        auto found = std::find_if(section.begin(), section.end(), same);
        if (found != section.end())
            found->value = write.value;
        else
            section.push_back({write.key, write.value});
    }
}

inline ProfileSection SectionOf(const ProfileWrites& writes) {
    ProfileSection section;
    ApplyWrites(section, writes);
    return section;
}

// The value of the first write of key, if any.
inline std::optional<std::string> WrittenValue(const ProfileWrites& writes, std::string_view key) {
    for (const ProfileWrite& write : writes)
        if (write.key == key)
            return write.value;
    return std::nullopt;
}
