// A whole profile file with some keys changed, as one list of writes: what writing the
// changes key by key into the file would give, ready to be written into a fresh file
// that then replaces the old one in one step.
#pragma once

#include "core/profile.h"

#include <string>
#include <vector>

struct NamedSection {
    std::string name;
    ProfileSection entries;
    bool operator==(const NamedSection&) const = default;
};

// The file's sections in their order, each key once (the first of two equal keys, as
// the profile functions read it); a changed key keeps its place with its new value, a
// new key comes at the end of its section, a new section at the end of the file. Names
// of sections and keys match without regard to case.
ProfileWrites MergeChanges(const std::vector<NamedSection>& file, const ProfileWrites& changes);
