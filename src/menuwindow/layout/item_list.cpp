#include "menuwindow/layout/item_list.h"

#include "core/text.h"
#include "menus/data_manager.h"

#include <charconv>

namespace MenuWindow {

ListSource SourceOf(std::uint8_t kind) {
    switch (kind) {
    case kItemFolderPath:
        return ListSource::Folder;
    case kItemMenuName:
        return ListSource::MenuItems;
    case kItemTaskList:
        return ListSource::TaskList;
    default:
        return ListSource::None;
    }
}

DisplayEntry EntryOf(const MenuItemRec& item) {
    DisplayEntry entry;
    entry.LABEL = item.LABEL;
    entry.TYPE = item.TYPE;
    entry.PATH = item.PATH;
    entry.STARTPATH = item.STARTPATH;
    entry.ARG = item.ARG;
    entry.RUNSTATE = item.RUNSTATE;
    entry.FILETYPEMASK = item.FILETYPEMASK;
    entry.ICONPATH = item.ICONPATH;
    entry.HOTKEY = item.HOTKEY;
    return entry;
}

namespace {

// The icon index after the last comma, when what follows it is a whole number.
std::optional<int> TrailingIndex(std::string_view text) {
    int value = 0;
    const char* first = text.data();
    const char* last = text.data() + text.size();
    while (first != last && *first == ' ')
        ++first;
    auto [end, error] = std::from_chars(first, last, value);
    if (error != std::errc{} || end == first)
        return std::nullopt;
    while (end != last && *end == ' ')
        ++end;
    if (end != last)
        return std::nullopt;
    return value;
}

std::string WithoutQuotes(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        text = text.substr(1, text.size() - 2);
    return std::string(text);
}

} // namespace

DisplayList MenuItemsList(const MenuTable& table, int menuNumber) {
    DisplayList list;
    if (menuNumber < 1 || menuNumber > table.MenuCount())
        return list;
    std::int32_t menu = menuNumber - 1;
    for (std::int32_t position = 0;; ++position) {
        std::int32_t slot = DataManager::FindItem(table, menu, position);
        if (slot == kNoItem)
            break;
        list.entries.push_back(EntryOf(table.pool[static_cast<std::size_t>(slot)]));
    }
    return list;
}

DisplayList FolderList(FolderListing listing) {
    DisplayList list;
    list.entries = std::move(listing.entries);
    list.folderCount = listing.folderCount;
    list.moreItem = listing.moreIndex ? static_cast<int>(*listing.moreIndex) + 1 : 0;
    list.empty = listing.empty;
    return list;
}

DisplayList TaskList(const std::vector<Tasks::TaskEntry>& tasks) {
    DisplayList list;
    for (const Tasks::TaskEntry& task : tasks) {
        DisplayEntry& entry = list.entries.emplace_back();
        entry.LABEL = task.title;
        entry.TYPE = kItemFilename;
        entry.PATH = task.exePath;
        entry.ICONPATH = task.exePath; // the program's own icon, not the shell's for programs
        entry.taskWindow = task.window;
    }
    if (list.entries.empty()) {
        list.entries.emplace_back().LABEL = kEmptyLabel;
        list.empty = true;
    }
    return list;
}

ListChange ChangeBetween(const DisplayList& before, const DisplayList& now) {
    ListChange change;
    change.length = before.Count() != now.Count() || before.empty != now.empty;
    if (change.length)
        return change;
    for (int item = 1; item <= now.Count(); ++item)
        if (!(before.Item(item) == now.Item(item)))
            change.items.push_back(item);
    return change;
}

bool OpensSubMenu(std::uint8_t type) {
    return type == kItemFolderPath || type == kItemMenuName || type == kItemTaskList;
}

bool HasHotkey(std::string_view hotkey) {
    return !hotkey.empty() && hotkey != "0";
}

std::string HotkeyLabel(std::string_view hotkey) {
    return Text::ToUpper(hotkey);
}

std::vector<ItemMeasure> MeasureItems(const DisplayList& list, const TextMeasure& measure) {
    std::vector<ItemMeasure> measures;
    measures.reserve(list.entries.size());
    for (const DisplayEntry& entry : list.entries) {
        ItemMeasure item;
        item.textWidth = measure.Width(FontRole::Button, entry.LABEL);
        item.hasArrow = OpensSubMenu(entry.TYPE);
        item.hasHotkey = HasHotkey(entry.HOTKEY);
        if (item.hasHotkey)
            item.hotkeyTextWidth = measure.Width(FontRole::Button, HotkeyLabel(entry.HOTKEY));
        measures.push_back(item);
    }
    return measures;
}

std::optional<IconSource> IconSourceOf(const DisplayEntry& entry) {
    if (!entry.ICONPATH.empty()) {
        std::string_view path = entry.ICONPATH;
        std::size_t comma = path.rfind(',');
        if (comma != std::string_view::npos) {
            if (std::optional<int> index = TrailingIndex(path.substr(comma + 1)))
                return IconSource{WithoutQuotes(path.substr(0, comma)), *index, false};
        }
        return IconSource{WithoutQuotes(path), 0, false};
    }
    return ShellIconSourceOf(entry);
}

std::string IconPathText(std::string_view file, int index) {
    std::string text;
    const bool quoted = file.find(',') != std::string_view::npos;
    if (quoted)
        text += '"';
    text += file;
    if (quoted)
        text += '"';
    if (index != 0) {
        text += ',';
        text += std::to_string(index);
    }
    return text;
}

std::optional<IconSource> ShellIconSourceOf(const DisplayEntry& entry) {
    if ((entry.TYPE == kItemFilename || entry.TYPE == kItemFolderPath) && !entry.PATH.empty())
        return IconSource{WithoutQuotes(entry.PATH), 0, true};
    return std::nullopt;
}

} // namespace MenuWindow
