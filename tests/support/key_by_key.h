// The writes of a save made one by one with the profile functions, as the program once
// saved: the file a save through a temporary file must be the same as.
#pragma once

#include "core/profile.h"

#include <string>

namespace TestSupport {

// A missing file is first made UTF-16LE with a byte-order mark, as the program makes them.
void WriteKeyByKey(const std::string& file, const ProfileWrites& writes);

} // namespace TestSupport
