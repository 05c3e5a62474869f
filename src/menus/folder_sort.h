// The sort of a menu window's display list.
#pragma once

#include "menus/display_entry.h"

#include <cstddef>
#include <vector>

// Sorts entries first..last (zero-based, inclusive) by their labels compared lower-cased,
// byte by byte: a quicksort with the middle entry's label as pivot. Entries with equal
// labels keep the order this particular quicksort leaves them in, which is part of what
// the user sees, so the algorithm stays exactly this one.
void SortEntries(std::vector<DisplayEntry>& entries, std::ptrdiff_t first, std::ptrdiff_t last);
