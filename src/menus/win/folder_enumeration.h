// Reading folders from disk for folder menus: the wide find functions walk a folder,
// and every entry they find goes to the folder-listing rules.
#pragma once

#include "core/settings.h"
#include "menus/folder_listing.h"
#include "win/handles.h"

#include <windows.h>

#include <string_view>

namespace FolderEnumeration {

// Walks the entries of one folder ("." and ".." included), searching folder + "*.*".
// A folder that is missing or cannot be read has no entries.
//     for (FolderSearch search(folder); search.Next();) use(search.Entry());
class FolderSearch {
public:
    explicit FolderSearch(std::string_view folder);

    // Moves to the next entry; false when there is none left.
    bool Next();
    const WIN32_FIND_DATAW& Entry() const { return data_; }

private:
    Win::UniqueFindHandle find_;
    WIN32_FIND_DATAW data_{};
    bool started_ = false;
};

// Lists the folder (and the second folder) of a folder item as its menu shows them,
// with the hourglass up while a large folder is read.
FolderListing ListFolder(const FolderListRequest& request, const SettingsRec& settings);

} // namespace FolderEnumeration
