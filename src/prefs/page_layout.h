// Where the controls of a preferences page stand, in dialog units: the page's groups one
// under the other, each a group box around its keys' rows, a label on the left of each
// row and the control on the right. The window turns dialog units into pixels for the
// font and DPI it runs with, so the same layout serves every scaling.
#pragma once

#include "core/settings_catalogue.h"

#include <span>
#include <string_view>
#include <vector>

namespace Preferences {

struct DluRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int Right() const { return x + width; }
    int Bottom() const { return y + height; }
    bool operator==(const DluRect&) const = default;
};

// A group that holds more than its keys: room, above its keys, that the page fills itself.
struct GroupRoom {
    std::string_view group;
    int height = 0;
};

struct PlacedKey {
    const SettingDef* key = nullptr;
    DluRect label;   // empty for a check box, whose text is its own
    DluRect control; // the check box, field, list or button; a corner's vertical list
    DluRect second;  // a corner's horizontal list, a colour's button, a folder's Browse button
    DluRect secondLabel; // a corner's "Hrz.Pos.:"
    DluRect note;    // the word beside a field that says what it accepts
};

struct PlacedGroup {
    std::string_view title;
    DluRect box;
    DluRect room; // the group's own room (GroupRoom), empty when it asked for none
};

struct PageLayout {
    std::vector<PlacedGroup> groups;
    std::vector<PlacedKey> keys; // in tab order
    int height = 0;              // of the whole page, margins included
};

// The width of every page.
inline constexpr int kPageWidth = 260;
inline constexpr int kRowHeight = 16;
inline constexpr int kControlHeight = 12;
inline constexpr int kButtonHeight = 14;

// Lays out a page `width` dialog units wide. Groups without keys or room are left out.
PageLayout LayOutPage(PrefPage page, int width, std::span<const GroupRoom> rooms = {});

} // namespace Preferences
