// The pages of the preferences window: their titles in the page list, their headings,
// and the group boxes each page shows its keys in. Which key stands in which group is
// the settings catalogue's to say (PrefControl); this is the order around them.
#pragma once

#include "core/settings_catalogue.h"

#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace Preferences {

struct PageDef {
    PrefPage page;
    std::string_view title;                   // in the page list
    std::string_view heading;                 // above the page's controls
    std::span<const std::string_view> groups; // the group boxes, in the order they are shown
};

// The window's own buttons: Help at the left, then Revert, OK, Cancel and Apply at the right.
inline constexpr std::array<std::string_view, 5> kWindowButtons = {"&Help", "&Revert", "OK", "Cancel", "&Apply"};

// Every page, in the order of the page list.
std::span<const PageDef> Pages();
const PageDef& PageOf(PrefPage page);

// The keys of one group of a page, in catalogue order.
std::vector<const SettingDef*> KeysOf(PrefPage page, std::string_view group);

} // namespace Preferences
