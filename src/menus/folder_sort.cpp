#include "menus/folder_sort.h"

#include "core/text.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

// The sort runs on lower-cased copies of the labels, made once, with the place of
// their entry; the entries themselves are moved into the final order at the end.
struct SortKey {
    std::string label;
    std::size_t entry;
};

void QuickSort(std::vector<SortKey>& keys, std::ptrdiff_t first, std::ptrdiff_t last) {
    // The two parts after a split are disjoint, so sorting the smaller one by recursion
    // and the larger one in this loop gives the same result with a shallow stack.
    while (first < last) {
        const std::string pivot = keys[static_cast<std::size_t>((first + last) / 2)].label;
        std::ptrdiff_t i = first;
        std::ptrdiff_t j = last;
        while (i <= j) {
            while (keys[static_cast<std::size_t>(i)].label < pivot)
                ++i;
            while (keys[static_cast<std::size_t>(j)].label > pivot)
                --j;
            if (i <= j) {
                std::swap(keys[static_cast<std::size_t>(i)], keys[static_cast<std::size_t>(j)]);
                ++i;
                --j;
            }
        }
        if (j - first < last - i) {
            QuickSort(keys, first, j);
            first = i;
        } else {
            QuickSort(keys, i, last);
            last = j;
        }
    }
}

} // namespace

void SortEntries(std::vector<DisplayEntry>& entries, std::ptrdiff_t first, std::ptrdiff_t last) {
    if (first < 0 || last >= static_cast<std::ptrdiff_t>(entries.size()) || first >= last)
        return;
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(last - first + 1));
    for (std::ptrdiff_t k = first; k <= last; ++k)
        keys.push_back({Text::ToLower(entries[static_cast<std::size_t>(k)].LABEL), static_cast<std::size_t>(k)});
    QuickSort(keys, 0, last - first);
    std::vector<DisplayEntry> sorted;
    sorted.reserve(keys.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(entries[key.entry]));
    std::move(sorted.begin(), sorted.end(), entries.begin() + first);
}
