// Rewrites a whole profile file so that it is never seen half-written: the new text
// goes into a sibling temporary file, which then takes the place of the original.
#pragma once

#include "core/profile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ProfileRewrite {

struct Result {
    bool saved = false;
    std::string problem; // what failed and why, for the user; empty when saved
};

// The temporary file used for `file`: the same name with ".tmp" added.
std::string TemporaryFileFor(std::string_view file);

// Gives `file` exactly the content that deleting it and then making `writes` one by one
// with the profile functions would give. The writes describe a whole file: the keys of
// each section come together, each key once. On failure the original file stays as it
// was and the temporary file is removed. A read-only file is refused before anything is
// written, as the profile functions would refuse it.
Result Rewrite(std::string_view file, const ProfileWrites& writes);

// From now on a temporary file fails to grow past `bytes` as on a full disk (no limit
// with none). Only tests set it: no other way reaches the full-disk path on demand.
void SetFreeSpaceForTests(std::optional<std::uintmax_t> bytes);

} // namespace ProfileRewrite
