// What a control of the preferences window shows for a key, and what the user's input
// does to the working copy of the settings: the numbers behind check boxes, fields and
// drop-downs, the check of a typed number against its range, the keys a font button
// sets, the two halves of a corner, and the hot key with its modifier.
#pragma once

#include "core/settings.h"
#include "core/settings_catalogue.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Preferences {

// A boolean, 16-bit or 32-bit key as a number (a boolean is 1 or 0); 0 for any other key.
std::int32_t NumberOf(const SettingsRec& settings, const SettingDef& def);
// Stores a number into such a key, cut to the key's type; other keys are left alone.
void SetNumber(SettingsRec& settings, const SettingDef& def, std::int32_t value);

// A check box: checked when the key is not 0; checking writes -1 into a number used as
// a switch (the file's true for such keys) and true into a boolean.
bool IsChecked(const SettingsRec& settings, const SettingDef& def);
void SetChecked(SettingsRec& settings, const SettingDef& def, bool checked);

// A string key's text; empty for any other key.
std::string TextOf(const SettingsRec& settings, const SettingDef& def);
void SetText(SettingsRec& settings, const SettingDef& def, std::string text);

// A drop-down: the index of the key's value among its choices; nullopt when the value
// is none of them (a hand-edited file), so that the list shows no choice.
std::optional<int> ChoiceIndexOf(const SettingsRec& settings, const SettingDef& def);
void SetChoice(SettingsRec& settings, const SettingDef& def, int index);

// A number typed into a field. A value outside the range is corrected to the nearer
// end, text that is no number keeps the old value; either way `note` says what the
// field accepts ("0 to 100"), for the word beside the field.
struct NumberInput {
    std::int32_t value = 0;
    bool corrected = false;
    std::string note;
};
NumberInput ReadNumberInput(std::string_view text, const PrefControl& control, std::int32_t current);

// "0 to 100".
std::string RangeText(const PrefControl& control);

// The keys a font button sets with its face name: <stem>FontSize, Bold, Italic and Color.
struct FontKeys {
    const SettingDef* size = nullptr;
    const SettingDef* bold = nullptr;
    const SettingDef* italic = nullptr;
    const SettingDef* colour = nullptr;
};
FontKeys FontKeysOf(const SettingDef& fontKey);

// The word under a font button: the menus draw a face that is not installed in Arial,
// and when Arial is missing too, the system picks a face like it.
std::string FontNote(bool installed, bool arialInstalled);

// The word under the pictures folder: a folder that is not there, else the files the
// look draws from it that did not load as pictures (they are drawn without).
std::string PictureFolderNote(std::string_view bitmapsFolder, bool folderFound,
                              std::span<const std::string> notPictures);

// A corner number (0 top left, 1 top right, 2 bottom left, 3 bottom right) in two halves.
struct CornerHalves {
    bool bottom = false;
    bool right = false;
};
CornerHalves SplitCorner(std::int16_t corner);
std::int16_t JoinCorner(CornerHalves halves);

// The hot key as the hot-key control holds it: a virtual key and its modifiers.
struct HotKeyInput {
    std::uint8_t key = 0;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};
// The control's view of the key and its modifier key (Shift when the partner is on, else Ctrl).
HotKeyInput HotKeyOf(const SettingsRec& settings, const SettingDef& def);
// Takes a hot key the user pressed. Only Shift or Ctrl can go with it: anything else is
// refused with the reason, and the key stays as it was.
std::optional<std::string> SetHotKey(SettingsRec& settings, const SettingDef& def, const HotKeyInput& input);

} // namespace Preferences
