#include "menuwindow/win/item_icons.h"

#include "win/text_convert.h"

#include <shellapi.h>
#include <shlobj.h>

namespace MenuWindow {

namespace {

Win::UniqueIcon ShellIcon(const std::wstring& path, int size) {
    SHFILEINFOW info{};
    UINT which = size <= ::GetSystemMetrics(SM_CXSMICON) ? SHGFI_SMALLICON : SHGFI_LARGEICON;
    if (!::SHGetFileInfoW(path.c_str(), 0, &info, sizeof info, SHGFI_ICON | which))
        return {};
    return Win::UniqueIcon(info.hIcon);
}

// The icon at the index, made at the size asked for rather than stretched from another.
Win::UniqueIcon IconInFile(const std::wstring& file, int index, int size) {
    HICON icon = nullptr;
    UINT sizes = MAKELONG(size, size);
    if (SUCCEEDED(::SHDefExtractIconW(file.c_str(), index, 0, &icon, nullptr, sizes)) && icon)
        return Win::UniqueIcon(icon);
    HICON large = nullptr;
    HICON small = nullptr;
    if (::ExtractIconExW(file.c_str(), index, &large, &small, 1) == 0)
        return {};
    Win::UniqueIcon largeIcon(large);
    Win::UniqueIcon smallIcon(small);
    bool wantSmall = size <= ::GetSystemMetrics(SM_CXSMICON);
    return std::move(wantSmall && smallIcon ? smallIcon : largeIcon);
}

} // namespace

Win::UniqueIcon LoadItemIcon(const IconSource& source, int size) {
    std::wstring file = Win::Widen(source.file);
    if (file.empty() || size <= 0)
        return {};
    return source.shellIcon ? ShellIcon(file, size) : IconInFile(file, source.index, size);
}

void ItemIcons::Reset(int count, int size) {
    if (static_cast<std::size_t>(std::max(0, count)) == icons_.size() && size == size_)
        return;
    icons_.clear();
    icons_.resize(static_cast<std::size_t>(std::max(0, count)));
    size_ = size;
}

HICON ItemIcons::Get(int item, const DisplayEntry& entry) {
    if (item < 1 || item > static_cast<int>(icons_.size()))
        return nullptr;
    std::optional<Win::UniqueIcon>& slot = icons_[static_cast<std::size_t>(item - 1)];
    if (!slot) {
        std::optional<IconSource> source = IconSourceOf(entry);
        slot = source ? LoadItemIcon(*source, size_) : Win::UniqueIcon();
        std::optional<IconSource> shell = ShellIconSourceOf(entry);
        if (!*slot && shell && shell != source)
            slot = LoadItemIcon(*shell, size_);
    }
    return slot->get();
}

void ItemIcons::Forget(int item) {
    if (item >= 1 && item <= static_cast<int>(icons_.size()))
        icons_[static_cast<std::size_t>(item - 1)].reset();
}

void ItemIcons::Clear() {
    icons_.clear();
}

int ItemIcons::Held() const {
    int held = 0;
    for (const auto& slot : icons_)
        held += slot && *slot ? 1 : 0;
    return held;
}

} // namespace MenuWindow
