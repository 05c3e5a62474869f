#include "prefs/page_layout.h"

#include "prefs/preference_pages.h"

#include <algorithm>

namespace Preferences {

namespace {

constexpr int kMargin = 4;       // around the page
constexpr int kGroupGap = 6;     // between two group boxes
constexpr int kGroupTop = 12;    // from a group box's top to its first row, under its title
constexpr int kGroupBottom = 6;  // below its last row
constexpr int kGroupInset = 8;   // from a group box's sides to its rows
constexpr int kLabelShare = 42;  // per cent of a row's width for the label
constexpr int kGap = 4;          // between neighbours in a row
constexpr int kNumberWidth = 40; // a number field with its spin button
constexpr int kSwatchWidth = 24;
constexpr int kColourButtonWidth = 50;
constexpr int kBrowseWidth = 46;
constexpr int kHotKeyWidth = 90;
constexpr int kNoteHeight = 9;   // the line under a font or folder row that says what is wrong

int RoomOf(std::span<const GroupRoom> rooms, std::string_view group) {
    for (const GroupRoom& room : rooms)
        if (room.group == group)
            return room.height;
    return 0;
}

// Centres a control of the given height on a row.
DluRect OnRow(int x, int y, int width, int height) {
    return {x, y + (kRowHeight - height) / 2, width, height};
}

// One key's row (two for a corner, a line more for a font or a folder's note), starting
// at top; returns the rows' height.
int PlaceKey(PlacedKey& placed, int left, int top, int width) {
    const int labelWidth = width * kLabelShare / 100;
    const int fieldLeft = left + labelWidth + kGap;
    const int fieldWidth = left + width - fieldLeft;
    placed.label = OnRow(left, top, labelWidth, 8);
    switch (placed.key->control.kind) {
    case ControlKind::Check:
        placed.label = {};
        placed.control = OnRow(left, top, width, 10);
        break;
    case ControlKind::Number:
        placed.control = OnRow(fieldLeft, top, kNumberWidth, kControlHeight);
        placed.note = OnRow(fieldLeft + kNumberWidth + kGap, top, fieldWidth - kNumberWidth - kGap, 8);
        break;
    case ControlKind::Colour:
        placed.control = OnRow(fieldLeft, top, kSwatchWidth, kControlHeight);
        placed.second = OnRow(fieldLeft + kSwatchWidth + kGap, top, kColourButtonWidth, kButtonHeight);
        break;
    case ControlKind::Folder:
        placed.control = OnRow(fieldLeft, top, fieldWidth - kBrowseWidth - kGap, kControlHeight);
        placed.second = OnRow(left + width - kBrowseWidth, top, kBrowseWidth, kButtonHeight);
        placed.note = {fieldLeft, top + kRowHeight, fieldWidth, kNoteHeight};
        return kRowHeight + kNoteHeight;
    case ControlKind::HotKey:
        placed.control = OnRow(fieldLeft, top, kHotKeyWidth, kControlHeight);
        placed.note = OnRow(fieldLeft + kHotKeyWidth + kGap, top, fieldWidth - kHotKeyWidth - kGap, 8);
        break;
    case ControlKind::Corner:
        placed.control = OnRow(fieldLeft, top, fieldWidth, kControlHeight);
        placed.secondLabel = OnRow(left, top + kRowHeight, labelWidth, 8);
        placed.second = OnRow(fieldLeft, top + kRowHeight, fieldWidth, kControlHeight);
        return 2 * kRowHeight;
    case ControlKind::Font:
        placed.control = OnRow(fieldLeft, top, fieldWidth, kButtonHeight);
        placed.note = {fieldLeft, top + kRowHeight, fieldWidth, kNoteHeight};
        return kRowHeight + kNoteHeight;
    case ControlKind::Choice:
    case ControlKind::None:
        placed.control = OnRow(fieldLeft, top, fieldWidth, kControlHeight);
        break;
    }
    return kRowHeight;
}

} // namespace

PageLayout LayOutPage(PrefPage page, int width, std::span<const GroupRoom> rooms) {
    PageLayout layout;
    const int boxWidth = width - 2 * kMargin;
    const int rowLeft = kMargin + kGroupInset;
    const int rowWidth = boxWidth - 2 * kGroupInset;
    int top = kMargin;
    for (std::string_view group : PageOf(page).groups) {
        std::vector<const SettingDef*> keys = KeysOf(page, group);
        const int room = RoomOf(rooms, group);
        if (keys.empty() && room == 0)
            continue;
        PlacedGroup placed{group, {kMargin, top, boxWidth, 0}, {}};
        int y = top + kGroupTop;
        if (room > 0) {
            placed.room = {rowLeft, y, rowWidth, room};
            y += room;
        }
        for (const SettingDef* key : keys) {
            PlacedKey row;
            row.key = key;
            y += PlaceKey(row, rowLeft, y, rowWidth);
            layout.keys.push_back(row);
        }
        placed.box.height = y + kGroupBottom - top;
        layout.groups.push_back(placed);
        top = placed.box.Bottom() + kGroupGap;
    }
    layout.height = std::max(top - kGroupGap, kMargin) + kMargin;
    return layout;
}

} // namespace Preferences
