#include "prefs/control_values.h"

#include "core/text.h"

#include <algorithm>
#include <string>

namespace Preferences {

std::int32_t NumberOf(const SettingsRec& settings, const SettingDef& def) {
    return std::visit(
        [&](auto member) -> std::int32_t {
            const auto& value = settings.*member;
            using Value = std::remove_cvref_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, bool>)
                return value ? 1 : 0;
            else if constexpr (std::is_same_v<Value, std::int16_t> || std::is_same_v<Value, std::int32_t>)
                return value;
            else
                return 0;
        },
        def.field);
}

void SetNumber(SettingsRec& settings, const SettingDef& def, std::int32_t number) {
    std::visit(
        [&](auto member) {
            auto& value = settings.*member;
            using Value = std::remove_cvref_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, bool>)
                value = number != 0;
            else if constexpr (std::is_same_v<Value, std::int16_t>)
                value = static_cast<std::int16_t>(std::clamp<std::int32_t>(number, INT16_MIN, INT16_MAX));
            else if constexpr (std::is_same_v<Value, std::int32_t>)
                value = number;
        },
        def.field);
}

bool IsChecked(const SettingsRec& settings, const SettingDef& def) {
    return NumberOf(settings, def) != 0;
}

void SetChecked(SettingsRec& settings, const SettingDef& def, bool checked) {
    SetNumber(settings, def, checked ? -1 : 0);
}

std::string TextOf(const SettingsRec& settings, const SettingDef& def) {
    if (const auto* member = std::get_if<std::string SettingsRec::*>(&def.field))
        return settings.**member;
    return {};
}

void SetText(SettingsRec& settings, const SettingDef& def, std::string text) {
    if (const auto* member = std::get_if<std::string SettingsRec::*>(&def.field))
        settings.**member = std::move(text);
}

std::optional<int> ChoiceIndexOf(const SettingsRec& settings, const SettingDef& def) {
    const std::int32_t value = NumberOf(settings, def);
    const auto& choices = def.control.choices;
    for (std::size_t i = 0; i < choices.size(); ++i)
        if (choices[i].value == value)
            return static_cast<int>(i);
    return std::nullopt;
}

void SetChoice(SettingsRec& settings, const SettingDef& def, int index) {
    const auto& choices = def.control.choices;
    if (index >= 0 && static_cast<std::size_t>(index) < choices.size())
        SetNumber(settings, def, choices[static_cast<std::size_t>(index)].value);
}

std::string RangeText(const PrefControl& control) {
    return std::to_string(control.min) + " to " + std::to_string(control.max);
}

NumberInput ReadNumberInput(std::string_view text, const PrefControl& control, std::int32_t current) {
    NumberInput input{current, false, {}};
    std::string_view trimmed = Text::Trim(text);
    bool digits = !trimmed.empty() && std::all_of(trimmed.begin() + (trimmed.front() == '-' ? 1 : 0), trimmed.end(),
                                                  [](char c) { return c >= '0' && c <= '9'; });
    if (!digits || trimmed == "-") {
        input.corrected = true;
        input.note = RangeText(control);
        return input;
    }
    double typed = Text::NumericValue(trimmed);
    double kept = std::clamp<double>(typed, control.min, control.max);
    input.value = static_cast<std::int32_t>(kept);
    if (kept != typed) {
        input.corrected = true;
        input.note = RangeText(control);
    }
    return input;
}

std::string FontNote(bool installed, bool arialInstalled) {
    if (installed)
        return {};
    return arialInstalled ? "Not installed: Arial is used" : "Not installed: a similar font is used";
}

std::string PictureFolderNote(std::string_view bitmapsFolder, bool folderFound,
                              std::span<const std::string> notPictures) {
    if (bitmapsFolder.empty())
        return {};
    if (!folderFound)
        return "Folder not found: no pictures are drawn";
    if (notPictures.empty())
        return {};
    std::string note = notPictures.size() == 1 ? "Not a picture: " : "Not pictures: ";
    for (std::size_t i = 0; i < notPictures.size(); ++i)
        note += (i ? ", " : "") + notPictures[i];
    return note;
}

FontKeys FontKeysOf(const SettingDef& fontKey) {
    std::string stem(fontKey.name);
    return {FindSetting(stem + "Size"), FindSetting(stem + "Bold"), FindSetting(stem + "Italic"),
            FindSetting(stem + "Color")};
}

CornerHalves SplitCorner(std::int16_t corner) {
    return {corner == 2 || corner == 3, corner == 1 || corner == 3};
}

std::int16_t JoinCorner(CornerHalves halves) {
    return static_cast<std::int16_t>((halves.bottom ? 2 : 0) + (halves.right ? 1 : 0));
}

HotKeyInput HotKeyOf(const SettingsRec& settings, const SettingDef& def) {
    const SettingDef* partner = FindSetting(def.control.partner);
    bool shift = partner && IsChecked(settings, *partner);
    auto key = static_cast<std::uint8_t>(std::clamp<std::int32_t>(NumberOf(settings, def), 0, 255));
    return {key, shift, !shift, false};
}

std::optional<std::string> SetHotKey(SettingsRec& settings, const SettingDef& def, const HotKeyInput& input) {
    if (input.key == 0)
        return "Press a key with Ctrl or Shift.";
    if (input.alt || input.shift == input.ctrl)
        return "Use either Ctrl or Shift with the key.";
    SetNumber(settings, def, input.key);
    if (const SettingDef* partner = FindSetting(def.control.partner))
        SetChecked(settings, *partner, input.shift);
    return std::nullopt;
}

} // namespace Preferences
