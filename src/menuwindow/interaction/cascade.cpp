#include "menuwindow/interaction/cascade.h"

#include <algorithm>

namespace MenuWindow {

int CascadeList::Append() {
    CascadeRec record;
    record.id = FreeId();
    records_.push_back(std::move(record));
    return Count();
}

int CascadeList::IndexOf(int id) const {
    auto found = std::find_if(records_.begin(), records_.end(), [id](const CascadeRec& r) { return r.id == id; });
    return found == records_.end() ? 0 : static_cast<int>(found - records_.begin()) + 1;
}

CascadeRec* CascadeList::Find(int id) {
    int index = IndexOf(id);
    return index == 0 ? nullptr : &At(index);
}

const CascadeRec* CascadeList::Find(int id) const {
    int index = IndexOf(id);
    return index == 0 ? nullptr : &At(index);
}

void CascadeList::Remove(int index) {
    if (index < 1 || index > Count())
        return;
    records_.erase(records_.begin() + (index - 1));
}

int CascadeList::FreeId() const {
    int id = 1;
    while (IndexOf(id) != 0)
        ++id;
    return id;
}

int CascadeList::SubMenuOf(int id) const {
    auto found = std::find_if(records_.begin(), records_.end(), [id](const CascadeRec& r) { return r.parentId == id; });
    return id == 0 || found == records_.end() ? 0 : found->id;
}

std::vector<int> CascadeList::WithSubMenus(int id) const {
    std::vector<int> ids;
    if (IndexOf(id) == 0)
        return ids;
    ids.push_back(id);
    auto listed = [&ids](int wanted) { return std::find(ids.begin(), ids.end(), wanted) != ids.end(); };
    for (bool grew = true; grew;) {
        grew = false;
        for (const CascadeRec& record : records_) {
            if (record.parentId != 0 && listed(record.parentId) && !listed(record.id)) {
                ids.push_back(record.id);
                grew = true;
            }
        }
    }
    return ids;
}

namespace {

// The last name of a folder path, without the backslash it ends in.
std::string FolderName(std::string_view path) {
    while (!path.empty() && (path.back() == '\\' || path.back() == '/'))
        path.remove_suffix(1);
    std::size_t slash = path.find_last_of("\\/");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string WithBackslash(std::string path) {
    if (!path.empty() && path.back() != '\\')
        path += '\\';
    return path;
}

} // namespace

std::string MenuTitle(const CascadeRec& record, const MenuTable& menus) {
    if (!record.caption.empty())
        return record.caption;
    if (record.kind == kItemMenuName) {
        if (record.menuNumber >= 1 && record.menuNumber <= menus.MenuCount())
            return menus.menus[static_cast<std::size_t>(record.menuNumber)].NAME;
        return record.path;
    }
    if (record.kind == kItemFolderPath)
        return FolderName(record.path);
    if (record.kind == kItemTaskList)
        return std::string(kTaskListTitle);
    return {};
}

FolderListRequest FolderRequestOf(const CascadeRec& record) {
    FolderListRequest request;
    request.folder = WithBackslash(record.path);
    if (!record.openedByHotspot)
        request.secondFolder = WithBackslash(record.path2);
    bool known = record.menuType >= kFilterAllFiles && record.menuType <= kFilterUserMask;
    request.filter = known ? static_cast<std::uint8_t>(record.menuType) : kFilterAllFiles;
    request.mask = record.fileTypeMask;
    request.skip = record.skip;
    return request;
}

} // namespace MenuWindow
