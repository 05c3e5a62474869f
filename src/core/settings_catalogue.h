// The settings catalogue: every key of section [TARVEX] once, in the order in which
// the keys are written, with its type, whether a theme file holds it, and the field of
// SettingsRec it fills. Loading, saving and the preferences pages all read this table.
#pragma once

#include "core/settings.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

enum class SettingType {
    Boolean, // "True"/"False"
    Int16,   // decimal
    Int32,   // decimal
    Color,   // decimal 0x00BBGGRR; also read as "r,g,b"
    String,  // as it is
};

// The field a key fills. The two list members stand for the count keys NoOfUserTasks and
// NoOfHotSpots: the count is the size of the list, and the list's own keys follow it.
using SettingField = std::variant<bool SettingsRec::*, std::int16_t SettingsRec::*, std::int32_t SettingsRec::*,
                                  std::string SettingsRec::*, std::vector<UserTaskRec> SettingsRec::*,
                                  std::vector<HotspotRec> SettingsRec::*>;

// The pages of the preferences window, in the order of its page list.
enum class PrefPage : std::uint8_t {
    Titlebar,
    Bitmap,
    MenuButton,
    Menu,
    SoundAnimation,
    TasklistSystray,
    Hotspots,
    MenuEditor,
    Themes,
    Global,
    About
};

// The control a key gets on its page.
enum class ControlKind : std::uint8_t {
    None,   // no control of its own: set on another page or by another key's control, or read by nothing
    Check,  // a check box; a number used as a switch is checked when not 0 and written as -1 or 0
    Number, // an edit field with a spin button, kept within [min, max]
    Choice, // a drop-down list; a boolean's choices have the values 0 (False) and 1 (True)
    Colour, // a colour button (the colour dialog)
    Font,   // a font button (the font dialog) for <stem>Font; it also sets <stem>FontSize,
            // <stem>FontBold, <stem>FontItalic and <stem>FontColor
    Folder, // a folder field with a Browse button
    Corner, // two drop-downs, "Vert.Pos.:" (Top, Bottom) and "Hrz.Pos.:" (Left, Right), for a
            // corner number: 0 top left, 1 top right, 2 bottom left, 3 bottom right
    HotKey, // a hot-key control for a virtual-key code; the key named by `partner` (a boolean)
            // is on when the modifier is Shift and off when it is Ctrl
};

struct PrefChoice {
    std::int16_t value;
    std::string_view label;
};

// Where and how the preferences window shows a key.
struct PrefControl {
    ControlKind kind = ControlKind::None;
    PrefPage page = PrefPage::Titlebar;
    std::string_view group;              // the group box on the page, one of the page's groups
    std::string_view label;              // with '&' before the mnemonic letter
    std::int32_t min = 0;                // Number: the range
    std::int32_t max = 0;
    std::span<const PrefChoice> choices; // Choice
    std::string_view partner;            // HotKey: the modifier's key
};

struct SettingDef {
    std::string_view name;
    SettingType type;
    bool theme; // written into theme files too; all such keys come first
    SettingField field;
    PrefControl control;
};

std::span<const SettingDef> SettingsCatalogue();

// The key of that name (exact spelling); null when there is none.
const SettingDef* FindSetting(std::string_view name);
