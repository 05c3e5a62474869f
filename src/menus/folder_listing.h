// The rules of a folder menu: which entries of one or two folders are listed, how they
// are labelled, sorted and limited. The shell enumerates the folders and feeds each
// entry it finds to a FolderListBuilder; the builder decides everything else.
#pragma once

#include "core/settings.h"
#include "menus/display_entry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One entry as the directory enumeration finds it.
struct DirEntry {
    std::string name;             // UTF-8
    std::uint32_t attributes = 0; // the file system's attribute bits
    bool isFolder = false;
};

inline constexpr std::uint32_t kAttributeHidden = 0x2;
inline constexpr std::uint32_t kAttributeSystem = 0x4;

// The file filters of a folder item (its RUNSTATE).
inline constexpr std::uint8_t kFilterAllFiles = 0;
inline constexpr std::uint8_t kFilterExecutables = 1;
inline constexpr std::uint8_t kFilterControlPanel = 2;
inline constexpr std::uint8_t kFilterUserMask = 3;

inline constexpr const char* kMoreLabel = "More...";
inline constexpr const char* kEmptyLabel = "(Empty)";

struct FolderListRequest {
    std::string folder;                    // the item's PATH, ending in a backslash
    std::string secondFolder;              // the item's ARG: a second folder, or empty
    std::uint8_t filter = kFilterAllFiles; // the item's RUNSTATE
    std::string mask;                      // the item's FILETYPEMASK, extensions with their dots
    // For a window opened from "More...": how many entries of the sorted listing the
    // earlier windows of the chain showed, their "More..." entries not counted.
    std::int32_t skip = 0;
    bool earlyHourglass = false; // the window's flag that shows the hourglass sooner
};

struct FolderListing {
    std::vector<DisplayEntry> entries;    // the display list in order; never empty
    std::int32_t folderCount = 0;         // folder entries among the listed ones
    std::optional<std::size_t> moreIndex; // where "More..." is, when the list was cut
    bool empty = false;                   // nothing to list: entries holds "(Empty)"
};

class FolderListBuilder {
public:
    FolderListBuilder(FolderListRequest request, const SettingsRec& settings);

    // The folders to enumerate, in order: the first, then the second when it is set
    // and differs from the first.
    std::vector<std::string> Folders() const;

    // Takes one entry found in `folder`. True exactly once, at the entry from which
    // on the listing counts as slow: the shell shows the hourglass until Finish.
    bool Add(std::string_view folder, const DirEntry& entry);

    // Sorts what was added, skips the entries of earlier pages and cuts the list to
    // the limit with a "More..." entry. Call once, after the last Add.
    FolderListing Finish();

private:
    void AddFolder(std::string_view folder, std::string_view name);
    void AddFile(std::string_view folder, std::string_view name);

    FolderListRequest request_;
    bool showHidden_;
    bool showSystem_;
    bool showExtensions_;
    std::int16_t folderPosition_;
    bool moreOnTop_;
    std::int16_t maxItems_;
    std::vector<DisplayEntry> entries_;
    std::int32_t folderCount_ = 0;
};
