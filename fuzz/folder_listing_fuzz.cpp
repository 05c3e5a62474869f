// The folder-listing rules: the input chooses the switches, the item's filter, mask and
// folders, and the entries the enumeration finds. The listing holds entries that were
// found, each once, sorted by label with the folders at their end; the "More..." pages
// together list exactly the whole listing, in its order.
#include "fuzz_support.h"

#include "core/text.h"
#include "menus/folder_listing.h"
#include "menus/menu_records.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Fuzz::Require;

struct Found {
    std::size_t folder; // index into the builder's Folders()
    DirEntry entry;
};

// A name as Windows gives it, converted to UTF-8: no control characters, none of the
// characters names may not hold, and no byte that UTF-8 never uses.
bool IsFileName(std::string_view name) {
    return !name.empty() && std::ranges::none_of(name, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte >= 0xF5 || std::string_view("<>:\"/\\|?*").find(c) != std::string_view::npos;
    });
}

FolderListing List(const FolderListRequest& request, const SettingsRec& settings, const std::vector<Found>& found) {
    FolderListBuilder builder(request, settings);
    const std::vector<std::string> folders = builder.Folders();
    int slow = 0;
    for (const Found& f : found)
        slow += builder.Add(folders[std::min(f.folder, folders.size() - 1)], f.entry) ? 1 : 0;
    Require(slow <= 1, "the hourglass is asked for once at most");
    return builder.Finish();
}

// The listed entries, without "More..." and "(Empty)".
std::vector<DisplayEntry> Listed(const FolderListing& listing) {
    if (listing.empty) {
        Require(listing.entries.size() == 1 && listing.entries[0].LABEL == kEmptyLabel && !listing.moreIndex,
                "an empty listing is \"(Empty)\" alone");
        return {};
    }
    std::vector<DisplayEntry> listed = listing.entries;
    if (listing.moreIndex)
        listed.erase(listed.begin() + static_cast<std::ptrdiff_t>(*listing.moreIndex));
    return listed;
}

// Every entry stands for one entry found, with that entry's name or the name less its
// extension as label, and the order is by lower-cased label with the folders at one end.
void CheckWhole(const FolderListing& whole, const std::vector<Found>& found, const std::vector<std::string>& folders,
                const FolderListRequest& request, std::int16_t folderPosition) {
    std::map<std::string, std::pair<int, std::set<std::string>>> paths; // path: times found, names
    for (const Found& f : found) {
        const bool folder = f.entry.isFolder && request.filter != kFilterControlPanel;
        auto& [times, names] =
            paths[folders[std::min(f.folder, folders.size() - 1)] + f.entry.name + (folder ? "\\" : "")];
        ++times;
        names.insert(f.entry.name);
    }
    const std::vector<DisplayEntry> listed = Listed(whole);
    Require(!whole.moreIndex, "a listing without a limit is whole");
    Require(whole.folderCount == std::ranges::count(listed, kItemFolderPath, &DisplayEntry::TYPE), "folder count");
    auto group = [folderPosition](const DisplayEntry& e) {
        const bool folder = e.TYPE == kItemFolderPath;
        return folderPosition == 0 ? !folder : folderPosition == 1 ? folder : false;
    };
    for (std::size_t i = 0; i < listed.size(); ++i) {
        const DisplayEntry& e = listed[i];
        Require(e.TYPE == kItemFolderPath || e.TYPE == kItemFilename, "a listed entry is a folder or a file");
        const auto place = paths.find(e.PATH);
        Require(place != paths.end() && place->second.first-- > 0, "each entry listed stands for one found");
        Require(std::ranges::any_of(place->second.second,
                                    [&](const std::string& name) {
                                        return e.LABEL == name ||
                                               (e.TYPE == kItemFilename && name.starts_with(e.LABEL) &&
                                                name[e.LABEL.size()] == '.');
                                    }),
                "the label is the name, or the name less its extension");
        Require(!e.LABEL.empty(), "every entry has a label");
        if (i > 0) {
            const DisplayEntry& before = listed[i - 1];
            Require(std::pair(group(before), Text::ToLower(before.LABEL)) <=
                        std::pair(group(e), Text::ToLower(e.LABEL)),
                    "sorted by lower-cased label, the folders at their end");
        }
    }
}

// Page after page from the first, each starting where the last stopped, as the windows
// opened from "More..." ask for them.
void CheckPages(FolderListRequest request, const SettingsRec& settings, const std::vector<Found>& found,
                const std::vector<DisplayEntry>& whole) {
    const auto limit = static_cast<std::size_t>(std::max<std::int16_t>(settings.MenuMaxNoItems, 2));
    std::size_t shown = 0;
    for (request.skip = 0;; request.skip = static_cast<std::int32_t>(shown)) {
        const FolderListing page = List(request, settings, found);
        Require(page.entries.size() <= limit, "a page holds the limit at most");
        const std::vector<DisplayEntry> listed = Listed(page);
        Require(
            std::equal(listed.begin(), listed.end(), whole.begin() + static_cast<std::ptrdiff_t>(shown),
                       whole.begin() + static_cast<std::ptrdiff_t>(std::min(whole.size(), shown + listed.size()))) &&
                shown + listed.size() <= whole.size(),
            "a page goes on where the one before stopped");
        shown += listed.size();
        if (!page.moreIndex)
            break;
        Require(*page.moreIndex == (settings.ShowMoreOnTop ? 0 : limit - 1), "\"More...\" at its end of the page");
        const DisplayEntry& more = page.entries[*page.moreIndex];
        Require(more.LABEL == kMoreLabel && more.TYPE == kItemFolderPath && more.PATH == request.folder &&
                    more.ARG == request.secondFolder && more.RUNSTATE == request.filter &&
                    more.FILETYPEMASK == request.mask,
                "\"More...\" lists the same folders the same way");
        Require(page.entries.size() == limit && !listed.empty(), "a cut page is full");
    }
    Require(shown == whole.size(), "the pages list the whole listing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    SettingsRec settings;
    settings.GenShowHidden = input.ConsumeBool();
    settings.GenShowSystem = input.ConsumeBool();
    settings.GenShowExtensions = input.ConsumeBool();
    settings.ShowMoreOnTop = input.ConsumeBool();
    settings.MenuFolderPosition = input.ConsumeIntegralInRange<std::int16_t>(-1, 3);
    settings.MenuMaxNoItems = input.ConsumeIntegralInRange<std::int16_t>(-2, 40);
    FolderListRequest request;
    request.folder = input.ConsumeRandomLengthString(24);
    request.secondFolder = input.ConsumeBool() ? input.ConsumeRandomLengthString(24) : std::string();
    request.filter = input.ConsumeIntegralInRange<std::uint8_t>(0, 4);
    request.mask = input.ConsumeRandomLengthString(24);
    request.skip = input.ConsumeIntegralInRange<std::int32_t>(-2, 60);
    request.earlyHourglass = input.ConsumeBool();
    std::vector<Found> found;
    while (input.remaining_bytes() > 0 && found.size() < 400) {
        const auto attributes = input.ConsumeIntegral<std::uint8_t>();
        const std::size_t folder = input.ConsumeBool() ? 1 : 0;
        std::string name = input.ConsumeRandomLengthString(32);
        if (IsFileName(name))
            found.push_back({folder, {std::move(name), attributes, (attributes & 0x10) != 0}});
    }

    const std::vector<std::string> folders = FolderListBuilder(request, settings).Folders();
    Require(folders.front() == request.folder &&
                folders.size() == (request.secondFolder.empty() || request.secondFolder == request.folder ? 1u : 2u),
            "the first folder, then a second that differs");

    SettingsRec unlimited = settings;
    unlimited.MenuMaxNoItems = INT16_MAX;
    FolderListRequest first = request;
    first.skip = 0;
    const FolderListing whole = List(first, unlimited, found);
    CheckWhole(whole, found, folders, request, settings.MenuFolderPosition);
    const std::vector<DisplayEntry> listed = Listed(whole);
    CheckPages(request, settings, found, listed);

    // A window asked for any later part of the listing.
    const FolderListing part = List(request, unlimited, found);
    const std::size_t skipped =
        std::min<std::size_t>(static_cast<std::size_t>(std::max(request.skip, 0)), listed.size());
    Require(Listed(part) == std::vector(listed.begin() + static_cast<std::ptrdiff_t>(skipped), listed.end()),
            "a later page starts at the entry it asks for");
    return 0;
}
