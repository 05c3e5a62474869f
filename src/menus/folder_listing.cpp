#include "menus/folder_listing.h"

#include "core/text.h"
#include "menus/folder_sort.h"
#include "menus/menu_records.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kExecutableExtensions = ".exe.bat.com.cpl.pif.lnk";
// Extensions that are never shown, whatever GenShowExtensions says.
constexpr std::string_view kHiddenExtensions = ".lnk.cpl.pif.url";
constexpr std::string_view kControlPanelExtension = ".cpl";

// Folder labels carry one of these before the sort, to keep folders above or below
// the files; it is removed afterwards.
constexpr char kFoldersFirstPrefix = '\x01';
constexpr char kFoldersLastPrefix = '\xFF';

constexpr std::size_t kHourglassAt = 200;
constexpr std::size_t kEarlyHourglassAt = 70;

// A limit below 2 leaves no room for an entry beside "More...", and the chain of
// "More..." windows would never move on.
constexpr std::int16_t kSmallestLimit = 2;

// The last four characters of a name (all of it when shorter), counted in characters
// rather than bytes so that a name ending in non-Latin letters is cut between letters.
struct Tail {
    std::size_t start = 0;   // byte offset where the tail begins
    bool fullLength = false; // the name has at least four characters
};

Tail LastFourCharacters(std::string_view name) {
    std::size_t pos = name.size();
    int characters = 0;
    while (pos > 0 && characters < 4) {
        --pos;
        if ((static_cast<unsigned char>(name[pos]) & 0xC0) != 0x80)
            ++characters;
    }
    return {pos, characters == 4};
}

bool Contains(std::string_view list, std::string_view part) {
    return list.find(part) != std::string_view::npos;
}

} // namespace

FolderListBuilder::FolderListBuilder(FolderListRequest request, const SettingsRec& settings)
    : request_(std::move(request)), showHidden_(settings.GenShowHidden), showSystem_(settings.GenShowSystem),
      showExtensions_(settings.GenShowExtensions), folderPosition_(settings.MenuFolderPosition),
      moreOnTop_(settings.ShowMoreOnTop), maxItems_(std::max(settings.MenuMaxNoItems, kSmallestLimit)) {}

std::vector<std::string> FolderListBuilder::Folders() const {
    std::vector<std::string> folders{request_.folder};
    if (!request_.secondFolder.empty() && request_.secondFolder != request_.folder)
        folders.push_back(request_.secondFolder);
    return folders;
}

bool FolderListBuilder::Add(std::string_view folder, const DirEntry& entry) {
    const std::string_view name = std::string_view(entry.name).substr(0, entry.name.find('\0'));
    if (name == "." || name == ".." || Text::EqualsIgnoreCase(name, "pagefile.sys"))
        return false;
    if ((entry.attributes & kAttributeSystem) != 0 && !showSystem_)
        return false;
    if ((entry.attributes & kAttributeHidden) != 0 && !showHidden_)
        return false;
    const std::size_t before = entries_.size();
    if (entry.isFolder && request_.filter != kFilterControlPanel)
        AddFolder(folder, name);
    else
        AddFile(folder, name);
    const std::size_t hourglassAt = request_.earlyHourglass ? kEarlyHourglassAt : kHourglassAt;
    return entries_.size() != before && entries_.size() == hourglassAt;
}

void FolderListBuilder::AddFolder(std::string_view folder, std::string_view name) {
    DisplayEntry& added = entries_.emplace_back();
    if (folderPosition_ == 0)
        added.LABEL += kFoldersFirstPrefix;
    else if (folderPosition_ == 1)
        added.LABEL += kFoldersLastPrefix;
    added.LABEL += name;
    added.PATH.reserve(folder.size() + name.size() + 1);
    added.PATH.append(folder).append(name) += '\\';
    added.TYPE = kItemFolderPath;
    added.RUNSTATE = request_.filter;
    added.FILETYPEMASK = request_.mask;
    ++folderCount_;
}

// Files, and with the control-panel filter folders too, which then count as files.
// The extension tests look for the lower-cased last four characters anywhere in the
// list, not for whole extensions, and the user's mask is not lower-cased: a mask
// written in capitals matches nothing. Both are what users' existing menus expect.
void FolderListBuilder::AddFile(std::string_view folder, std::string_view name) {
    const Tail tail = LastFourCharacters(name);
    const std::string ext = Text::ToLower(name.substr(tail.start));
    bool keep = false;
    switch (request_.filter) {
    case kFilterAllFiles:
        keep = true;
        break;
    case kFilterExecutables:
        keep = !tail.fullLength || Contains(kExecutableExtensions, ext);
        break;
    case kFilterControlPanel:
        keep = ext == kControlPanelExtension;
        break;
    case kFilterUserMask:
        keep = Contains(request_.mask, ext);
        break;
    default:
        break;
    }
    if (!keep)
        return;
    DisplayEntry& added = entries_.emplace_back();
    // A name that is all extension (".env") keeps it: an empty label would say nothing, and
    // would sort above the folders' prefix and so shift its removal onto the wrong entries.
    const bool dropExtension = tail.fullLength && tail.start > 0 && name[tail.start] == '.' &&
                               (Contains(kHiddenExtensions, ext) || !showExtensions_);
    added.LABEL = dropExtension ? name.substr(0, tail.start) : name;
    added.PATH.reserve(folder.size() + name.size());
    added.PATH.append(folder).append(name);
    added.TYPE = kItemFilename;
}

FolderListing FolderListBuilder::Finish() {
    FolderListing listing;
    std::vector<DisplayEntry>& entries = listing.entries;
    entries = std::move(entries_);
    const auto count = static_cast<std::ptrdiff_t>(entries.size());
    if (count > 0)
        SortEntries(entries, 0, count - 1);

    // The prefixes put all folders at one end; take them off again there.
    const auto folders = static_cast<std::ptrdiff_t>(folderCount_);
    if (folderPosition_ == 0 || folderPosition_ == 1) {
        const auto begin = folderPosition_ == 0 ? entries.begin() : entries.end() - folders;
        for (auto it = begin; it != begin + folders; ++it)
            it->LABEL.erase(0, 1);
    }

    if (request_.skip > 0)
        entries.erase(entries.begin(), entries.begin() + std::min<std::ptrdiff_t>(request_.skip, count));
    listing.folderCount = static_cast<std::int32_t>(
        std::count_if(entries.begin(), entries.end(), [](const DisplayEntry& e) { return e.TYPE == kItemFolderPath; }));

    const auto limit = static_cast<std::size_t>(maxItems_);
    if (entries.size() > limit) {
        DisplayEntry more;
        more.LABEL = kMoreLabel;
        more.TYPE = kItemFolderPath;
        more.PATH = request_.folder;
        more.ARG = request_.secondFolder;
        more.RUNSTATE = request_.filter;
        more.FILETYPEMASK = request_.mask;
        entries.resize(limit);
        if (moreOnTop_) {
            entries.pop_back();
            entries.insert(entries.begin(), std::move(more));
            listing.moreIndex = 0;
        } else {
            entries.back() = std::move(more);
            listing.moreIndex = limit - 1;
        }
    }

    if (entries.empty()) {
        entries.emplace_back().LABEL = kEmptyLabel;
        listing.empty = true;
    }
    return listing;
}
