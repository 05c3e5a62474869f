#include "menus/win/folder_enumeration.h"

#include "win/text_convert.h"

#include <string>

namespace FolderEnumeration {

namespace {

// Shows the hourglass from Show() on and puts the previous pointer back when it goes.
class WaitCursor {
public:
    WaitCursor() = default;
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() {
        if (shown_)
            ::SetCursor(previous_);
    }

    void Show() {
        if (shown_)
            return;
        previous_ = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        shown_ = true;
    }

private:
    HCURSOR previous_ = nullptr;
    bool shown_ = false;
};

} // namespace

// The basic information level leaves out the short 8.3 names, which no menu shows,
// and the large fetch asks for many entries per call into the file system.
FolderSearch::FolderSearch(std::string_view folder) {
    std::wstring pattern = Win::Widen(folder);
    pattern += L"*.*";
    find_.reset(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data_, FindExSearchNameMatch, nullptr,
                                   FIND_FIRST_EX_LARGE_FETCH));
}

bool FolderSearch::Next() {
    if (!find_)
        return false;
    if (!started_) {
        started_ = true;
        return true;
    }
    return ::FindNextFileW(find_.get(), &data_) != FALSE;
}

FolderListing ListFolder(const FolderListRequest& request, const SettingsRec& settings) {
    FolderListBuilder builder(request, settings);
    WaitCursor hourglass;
    DirEntry entry;
    for (const std::string& folder : builder.Folders()) {
        for (FolderSearch search(folder); search.Next();) {
            const WIN32_FIND_DATAW& found = search.Entry();
            entry.name = Win::Narrow(found.cFileName);
            entry.attributes = found.dwFileAttributes;
            entry.isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
            if (builder.Add(folder, entry))
                hourglass.Show();
        }
    }
    return builder.Finish();
}

} // namespace FolderEnumeration
